#include "commandgroups.h"

#include "batch.h"
#include "helptext.h"
#include "suggestions.h"
#include "task.h"
#include "terminal.h"
#include "texts.h"

#include <unistd.h>

namespace {

constexpr Option helpWords[] = {
    {"topic", ValueType::command, TEXT("komento tai aihe"), Option::plainWord | Option::list | Option::onlyWord},
};

bool help(Task &task)
{
    const QString topic = task.arguments.texts("topic").join(QLatin1Char(' '));
    const QString text = HelpText::of(topic);
    if (!text.isEmpty()) {
        task.answer.line(text.chopped(1));
        return true;
    }
    Problem problem;
    problem.code = Problem::unknownCommand;
    problem.message = ::text(TEXT("ohjetta ei ole: %1")).arg(topic);
    problem.value = topic;
    problem.see = QStringLiteral("billora help");
    return task.fail(problem);
}

constexpr Option batchOptions[] = {
    {"each", ValueType::flag, TEXT("oma tapahtuma joka riville; virheen jälkeen jatketaan")},
};

bool batch(Task &task)
{
    if (Terminal::isInput())
        return task.fail(Problem::missingOption, text(TEXT("komennot luetaan vakiosyötteestä, yksi JSON-olio rivillä")));
    Batch::Options options;
    options.isEach = task.flag("each");
    options.manners = task.manners;
    options.key = task.answer.options().key;
    Batch batch(task.session, options, [](const QByteArray &line) { return Terminal::write(STDOUT_FILENO, line); });
    const int code = batch.run();
    if (code < 0)
        return false;
    task.exitCode = code;
    return true;
}

constexpr Command commands[] = {
    {"batch", TEXT("komennot JSON-riveinä vakiosyötteestä, yhtenä tapahtumana"), batch,
     Command::writes | Command::noCompany | Command::single | Command::paints, nullptr, nullptr, {group(batchOptions)},
     "batch --each"},
    {"help",
     TEXT("ohje komennosta tai aiheesta"),
     help,
     Command::noCompany | Command::single,
     nullptr,
     nullptr,
     {group(helpWords)},
     "help invoice add\n"
     "help dates"},
};

} // namespace

CommandGroup programCommands() { return commandGroup(commands); }

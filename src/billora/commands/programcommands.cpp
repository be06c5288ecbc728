#include "commandgroups.h"

#include "helptext.h"
#include "suggestions.h"
#include "task.h"
#include "texts.h"

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

constexpr Command commands[] = {
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

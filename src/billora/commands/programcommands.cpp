#include "commandgroups.h"

#include "batch.h"
#include "commandtable.h"
#include "completionscript.h"
#include "description.h"
#include "helptext.h"
#include "jsonwriter.h"
#include "manpage.h"
#include "mcpserver.h"
#include "suggestions.h"
#include "task.h"
#include "terminal.h"
#include "texts.h"

#include <unistd.h>

namespace {

constexpr Option helpWords[] = {
    {"roff", ValueType::flag, TEXT("man-sivu")},
    {"topic", ValueType::command, TEXT("komento tai aihe"), Option::plainWord | Option::list | Option::onlyWord},
};

bool help(Task &task)
{
    const QString topic = task.arguments.texts("topic").join(QLatin1Char(' '));
    const QString text = task.flag("roff") ? ManPage::of(topic) : HelpText::of(topic);
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

constexpr Option describeOptions[] = {
    {"command", ValueType::command, TEXT("komento"), Option::plainWord | Option::list | Option::onlyWord},
    {"schema", ValueType::text, TEXT("tietueen JSON-skeema"), 0, nullptr, 0, "RECORD"},
};

/** Always JSON. */
bool describe(Task &task)
{
    QByteArray bytes;
    JsonWriter json(bytes);
    const QString name = task.arguments.texts("command").join(QLatin1Char(' '));
    Problem problem;
    if (task.arguments.has("schema")) {
        const QString record = task.arguments.text("schema");
        const RecordTable *table = Description::record(record);
        if (!table) {
            problem.code = Problem::notFound;
            problem.message = text(TEXT("tietuetta ei ole: %1")).arg(record);
            problem.option = QStringLiteral("schema");
            problem.value = record;
            const QStringList names = Description::recordNames();
            const QStringList near = Suggestions::nearest(record, names);
            for (const QString &word : near.isEmpty() ? names : near)
                problem.suggestions.append({word, QString()});
            return task.fail(problem);
        }
        Description::writeSchema(json, *table);
    } else {
        const Command *command = name.isEmpty() ? nullptr : CommandTable::find(name);
        if (!name.isEmpty() && !command) {
            problem.code = Problem::unknownCommand;
            problem.message = text(TEXT("tuntematon komento: %1")).arg(name);
            problem.value = name;
            return task.fail(problem);
        }
        Description::write(json, command);
    }
    task.answer.bytes(bytes + '\n');
    return true;
}

constexpr Choice shells[] = {{"bash", "bash"}, {"zsh", "zsh"}, {"fish", "fish"}, {nullptr, nullptr}};
constexpr Option completionWords[] = {
    {"shell", ValueType::word, TEXT("komentotulkki"), Option::plainWord | Option::required | Option::onlyWord, shells,
     0, "bash|zsh|fish"},
};

bool completion(Task &task)
{
    QString shell;
    if (!task.reader.word(QStringLiteral("shell"), shells, task.arguments.text("shell"), shell))
        return false;
    task.answer.bytes(CompletionScript::of(shell).toUtf8());
    return true;
}

constexpr Option mcpOptions[] = {
    {"readOnly", ValueType::flag, TEXT("vain komennot, jotka eivät muuta mitään")},
    {"allowRemove", ValueType::flag, TEXT("myös poistavat komennot")},
};

bool mcp(Task &task)
{
    McpServer::Options options;
    options.isReadOnly = task.flag("readOnly");
    options.mayRemove = task.flag("allowRemove");
    options.manners = task.manners;
    McpServer(task.session, options, [](const QByteArray &line) { return Terminal::write(STDOUT_FILENO, line); }).run();
    return true;
}

constexpr Option batchOptions[] = {
    {"each", ValueType::flag, TEXT("oma tapahtuma joka riville; virheen jälkeen jatketaan")},
};

bool batch(Task &task)
{
    if (Terminal::isInput())
        return task.fail(Problem::missingOption,
                         text(TEXT("komennot luetaan vakiosyötteestä, yksi JSON-olio rivillä")));
    Batch::Options options;
    options.isEach = task.flag("each");
    options.manners = task.manners;
    options.key = task.answer.options().key;
    if (options.isEach && !options.key.isEmpty()) // each line has its own
        return task.fail(Problem::conflict, text(TEXT("valinnat --each ja --key sulkevat toisensa pois")),
                         QStringLiteral("key"), options.key);
    Batch batch(task.session, options, [](const QByteArray &line) { return Terminal::write(STDOUT_FILENO, line); });
    const int code = batch.run();
    if (code < 0)
        return false;
    task.exitCode = code;
    return true;
}

constexpr Command commands[] = {
    {"batch",
     TEXT("komennot JSON-riveinä vakiosyötteestä, yhtenä tapahtumana"),
     batch,
     Command::writes | Command::noCompany | Command::single | Command::paints,
     nullptr,
     nullptr,
     {group(batchOptions)},
     "batch --each"},
    {"describe",
     TEXT("komennot, kentät ja virhekoodit JSON-muodossa"),
     describe,
     Command::noCompany | Command::single,
     nullptr,
     nullptr,
     {group(describeOptions)},
     "describe invoice add\n"
     "describe --schema invoice"},
    {"mcp",
     TEXT("Model Context Protocol -palvelin vakiosyötteessä ja -tulosteessa"),
     mcp,
     Command::noCompany | Command::single | Command::paints,
     nullptr,
     nullptr,
     {group(mcpOptions)},
     "mcp --read-only"},
    {"completion",
     TEXT("komentotulkin täydennys"),
     completion,
     Command::noCompany | Command::single,
     nullptr,
     nullptr,
     {group(completionWords)},
     "completion bash"},
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

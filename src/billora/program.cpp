#include "program.h"

#include "calendar.h"
#include "commandtable.h"
#include "companies.h"
#include "completer.h"
#include "databaselist.h"
#include "helptext.h"
#include "language.h"
#include "runner.h"
#include "settings.h"
#include "terminal.h"
#include "texts.h"
#include "valuewriter.h"

#include <QSettings>

#include <unistd.h>

namespace {

/** Options such as `-c FILE` stand in front of it. */
constexpr int maxWordsBeforeComplete = 4;

bool isGiven(const Arguments &global, const char *flag) { return ValueReader::isTrue(global.text(flag)); }

bool writeOutput(const QByteArray &bytes) { return Terminal::write(STDOUT_FILENO, bytes); }

void print(const QString &text) { writeOutput(text.toUtf8()); }

} // namespace

void Program::chooseLanguage(const Arguments &global)
{
    const QString option = global.text("lang");
    const QString environment = qEnvironmentVariable("BILLORA_LANG");
    QString setting;
    if (!Language::isKnown(option) && !Language::isKnown(environment))
        setting = m_session.registry().appSettings()->value(QStringLiteral("billora/language")).toString();
    Language::use(Language::choose(option, environment, setting));
}

bool Program::readForm(const Arguments &global)
{
    const struct {
        const char *flag;
        OutputForm form;
    } forms[] = {{"json", OutputForm::json}, {"jsonl", OutputForm::jsonl}, {"csv", OutputForm::csv}};
    const char *chosen = nullptr;
    for (const auto &form : forms) {
        if (!isGiven(global, form.flag))
            continue;
        if (!chosen) {
            chosen = form.flag;
            m_options.form = form.form;
            continue;
        }
        Problem problem;
        problem.code = Problem::conflict;
        problem.option = QLatin1String(form.flag);
        problem.message = text(TEXT("valinnat --%1 ja --%2 sulkevat toisensa pois"))
                              .arg(QLatin1String(chosen), QLatin1String(form.flag));
        return m_session.fail(problem);
    }
    return true;
}

bool Program::readGlobals(const CommandLine &line)
{
    const Arguments &global = line.global;
    const ValueReader reader(m_session, Calendar::today());
    for (const Option &option : CommandTable::globalOptions()) {
        const QString name = QLatin1String(option.name);
        bool isTrue = false;
        QString word;
        if (!global.has(name))
            continue;
        if (option.type == ValueType::flag && !reader.flag(name, global.text(name), isTrue))
            return false;
        if (option.type == ValueType::word && !reader.word(name, option.choices, global.text(name), word))
            return false;
    }
    m_key = global.text("key");
    m_options.key = m_key;
    m_options.quiet = isGiven(global, "quiet");
    if (m_options.quiet && m_options.form != OutputForm::text) {
        Problem problem;
        problem.code = Problem::conflict;
        problem.option = QStringLiteral("quiet");
        problem.message = text(TEXT("valinta --quiet ei sovi yhteen muodon kanssa"));
        return m_session.fail(problem);
    }
    m_options.fields = global.text("fields").split(QLatin1Char(','), Qt::SkipEmptyParts);
    m_options.isTerminal = Terminal::isOutput();
    m_options.width = m_options.isTerminal ? Terminal::width() : 0;
    m_options.isDryRun = isGiven(global, "dryRun");
    QString color = global.text("color");
    if (color.isEmpty())
        color = m_session.registry().appSettings()->value(QStringLiteral("billora/color")).toString();
    const bool mayColor = m_options.isTerminal && qEnvironmentVariableIsEmpty("NO_COLOR") && qgetenv("TERM") != "dumb";
    m_options.hasColor = color == QLatin1String("always") || (color != QLatin1String("never") && mayColor);
    m_options.isTerminal = m_options.isTerminal || color == QLatin1String("always");
    if (m_options.isTerminal && m_options.width == 0)
        m_options.width = Terminal::width();
    m_manners.isDryRun = m_options.isDryRun;
    m_manners.agreesToAll = isGiven(global, "yes");
    m_manners.isInteractive = Terminal::isInput() && Terminal::isError() && !isGiven(global, "noInput");
    m_session.setVerbose(isGiven(global, "verbose"));
    m_session.context().session.setTrial(m_options.isDryRun);
    return true;
}

int Program::run(const QStringList &words)
{
    const int completeAt = words.indexOf(QStringLiteral("__complete"));
    if (completeAt >= 0 && completeAt <= maxWordsBeforeComplete)
        return complete(words.mid(0, completeAt), words.mid(completeAt + 1));
    CommandLine line = OptionParser::parse(words);
    QString settingsFile = line.global.text("config");
    if (settingsFile.isEmpty())
        settingsFile = qEnvironmentVariable("BILLORA_CONFIG");
    // What is wrong with the line does not keep the help from who asks for it.
    const QStringList options = words.mid(0, words.indexOf(QStringLiteral("--")));
    const bool asksForHelp =
        line.problem.isSet() && (options.contains(QStringLiteral("-h")) || options.contains(QStringLiteral("--help")));
    const bool hasHelp = words.isEmpty() || isGiven(line.global, "help") || asksForHelp;
    if (!hasHelp && isGiven(line.global, "version")) { // needs no settings
        print(QStringLiteral("billora " BILLORA_VERSION "\n"));
        return 0;
    }
    QString database = line.global.text("db");
    if (database.isEmpty())
        database = qEnvironmentVariable("BILLORA_DB");
    m_session.choose(settingsFile, database);
    chooseLanguage(line.global);
    if (hasHelp) {
        const QString topic = line.command ? QString::fromLatin1(line.command->name) : line.noun;
        print(HelpText::of(topic));
        return 0;
    }
    if (line.problem.isSet()) { // what was not read of the line may still say how the problem is to be told
        for (const char *form : {"json", "jsonl", "csv"}) {
            if (words.contains(QLatin1String("--") + QLatin1String(form)) && !line.global.has(form))
                line.global.add(QLatin1String(form), QStringLiteral("true"));
        }
    }
    readForm(line.global);
    if (line.problem.isSet()) // again: the first time it was told before the language was known
        line = OptionParser::parse(words);
    if (!line.problem.isSet() && !m_session.problem().isSet())
        readGlobals(line);
    if (line.problem.isSet())
        return report(line.problem);
    if (m_session.problem().isSet())
        return report(m_session.problem());
    if (!line.command) {
        if (line.noun.isEmpty()) {
            print(HelpText::of(QString()));
            return 0;
        }
        Terminal::write(STDERR_FILENO, HelpText::of(line.noun).toUtf8());
        return 1;
    }
    return execute(*line.command, line.arguments);
}

int Program::exitCode(int ofRun) const
{
    const QString reason = Terminal::outputError();
    if (reason.isEmpty())
        return ofRun;
    Problem problem;
    problem.code = Problem::file;
    problem.message = text(TEXT("vastausta ei voi kirjoittaa: %1")).arg(reason);
    return report(problem);
}

/** Answers a shell: whatever is wrong, it is only that nothing is known. */
int Program::complete(const QStringList &before, QStringList words)
{
    if (!words.isEmpty() && words.first() == QLatin1String("--"))
        words.removeFirst();
    const CommandLine line = OptionParser::parse(before + words.mid(0, std::max(0, words.size() - 1)));
    const auto chosen = [&line](const char *option, const char *variable) {
        const QString given = line.global.text(option);
        return given.isEmpty() ? qEnvironmentVariable(variable) : given;
    };
    m_session.choose(chosen("config", "BILLORA_CONFIG"), chosen("db", "BILLORA_DB"));
    chooseLanguage(line.global);
    print(Completer::complete(m_session, words).join(QLatin1Char('\n')) + QLatin1Char('\n'));
    return 0;
}

int Program::execute(const Command &command, const Arguments &arguments)
{
    m_session.setMayDraw(command.is(Command::paints));
    if (!command.is(Command::noCompany) && Companies::isPattern(m_session.chosenDatabase()))
        return executeForEach(command, arguments);
    Answer answer(m_options, writeOutput);
    Runner runner(m_session);
    int exitCode = 0;
    const bool done = runner.run(command, arguments, answer, m_manners,
                                 QLatin1String(command.name) == QLatin1String("batch") ? QString() : m_key, exitCode);
    if (!done)
        answer.take();
    answer.flush();
    m_session.context().session.closeDatabase();
    return done ? exitCode : report(m_session.problem());
}

/** A company that fails must not hide what the others have to tell, nor be overlooked itself. */
int Program::executeForEach(const Command &command, const Arguments &arguments)
{
    const QString pattern = m_session.chosenDatabase();
    Answer answer(m_options, writeOutput);
    Runner runner(m_session);
    Task task(m_session, command, arguments, answer, m_manners);
    if (!command.is(Command::companies))
        return task.failSeveralCompanies(), report(m_session.problem());
    const DatabaseList list(m_session.settingsFile(), DatabaseList::reading);
    bool isFound = false;
    int exitCode = 0;
    for (const QVariantMap &entry : list.entries()) {
        m_session.clearProblem();
        Companies::Look look;
        const bool isMatch = Companies::isMatch(entry, pattern);
        const bool isRead = isMatch || Companies::look(m_session.context(), entry, look);
        if (isRead && !isMatch && !Companies::isNameMatch(look.sellerName, pattern))
            continue;
        isFound = true;
        int code = 0;
        DatabaseSession &session = m_session.context().session;
        bool done = isRead && m_session.openCompany(entry) && session.fetch(CachedList::settings);
        answer.beginCompany(DatabaseList::number(entry),
                            done ? m_session.registry().settings()->sellerName : QString());
        done = done && runner.run(command, arguments, answer, m_manners, m_key, code);
        exitCode = std::max(exitCode, done ? code : exitNeedsLook);
        if (done)
            continue;
        answer.take();
        const Problem::Code reason = m_session.problem().code;
        const bool isOfTheLine =
            m_session.problem().exitCode() == 1 || reason == Problem::badValue || reason == Problem::badJson;
        if (isOfTheLine) // the others would say the same
            return report(m_session.problem());
        report(m_session.problem(), DatabaseList::number(entry));
        if (answer.isReaderGone())
            break;
    }
    m_session.context().session.closeDatabase();
    if (!isFound)
        return m_session.fail(Failure::databaseNumberUnknown, {pattern}), report(m_session.problem());
    answer.endCompanies();
    answer.flush();
    return exitCode;
}

int Program::report(const Problem &problem, int company) const
{
    if (m_options.form == OutputForm::text) {
        QString lines = QStringLiteral("billora: ");
        if (company > 0)
            lines += text(TEXT("yritys %1: ")).arg(company);
        lines += problem.message;
        const QString indent = QStringLiteral("\n  ");
        for (int i = 0; i < problem.suggestions.size(); ++i) {
            const Problem::Suggestion &suggestion = problem.suggestions.at(i);
            lines += indent + (i == 0 ? text(TEXT("Tarkoititko: ")) : QString(13, QLatin1Char(' '))) + suggestion.word;
            if (!suggestion.description.isEmpty())
                lines += QStringLiteral("  ") + suggestion.description;
        }
        if (!problem.see.isEmpty())
            lines += indent + text(TEXT("Katso: ")) + problem.see;
        Terminal::writeError(lines);
        return problem.exitCode();
    }
    QByteArray bytes;
    JsonWriter json(bytes);
    json.beginObject();
    if (company > 0) {
        json.name("company");
        json.beginObject();
        json.member("number", company);
        json.endObject();
    }
    json.name("error");
    problem.write(json);
    json.endObject();
    bytes += '\n';
    Terminal::write(STDERR_FILENO, bytes);
    return problem.exitCode();
}

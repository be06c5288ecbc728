#include "batch.h"

#include "calendar.h"
#include "commandtable.h"
#include "database.h"
#include "inputline.h"
#include "keytable.h"
#include "suggestions.h"
#include "texts.h"
#include "writetransaction.h"

#include <QCryptographicHash>

#include <unistd.h>

namespace {

/** Answers are gathered up to this size. */
constexpr int pieceSize = 65536;

} // namespace

Batch::Batch(Session &session, const Options &options, Write write)
    : m_session(session), m_runner(session), m_options(options), m_write(std::move(write))
{
}

/** Puts the ids of records in place of the names that earlier lines gave them. */
bool Batch::insertNames(Arguments &arguments)
{
    arguments.replace([this](QString &text) {
        if (text.startsWith(QLatin1Char('@')) && m_ids.contains(text.mid(1)))
            text = QStringLiteral("id:%1").arg(m_ids.value(text.mid(1)));
    });
    return true;
}

bool Batch::runLine(const QByteArray &json, QByteArray &result)
{
    const ValueReader reader(m_session, Calendar::today());
    JsonArguments::Line line;
    if (!JsonArguments::readLine(reader, json, line))
        return false;
    const Command *command = CommandTable::find(line.command);
    Problem problem;
    problem.option = QStringLiteral("command");
    problem.value = line.command;
    if (!command) {
        problem.code = Problem::unknownCommand;
        problem.message = text(TEXT("tuntematon komento: %1")).arg(line.command);
        const QStringList near = Suggestions::nearest(line.command, CommandTable::names());
        for (const QString &name : near)
            problem.suggestions.append({name, QString()});
        return m_session.fail(problem);
    }
    if (command->is(Command::single) || (command->is(Command::eachOnly) && !m_options.isEach)) {
        problem.code = Problem::conflict;
        problem.message = command->is(Command::single)
                              ? text(TEXT("komento ei käy eräajossa: %1")).arg(line.command)
                              : text(TEXT("komento käy eräajossa vain valinnan --each kanssa: %1")).arg(line.command);
        return m_session.fail(problem);
    }
    insertNames(line.arguments);
    int exitCode = 0;
    if (!m_runner.runForProgram(*command, line.arguments, m_options.manners, line.key, result, exitCode))
        return false;
    if (!line.as.isEmpty())
        m_ids.insert(line.as, m_runner.lastSaved(*command));
    return true;
}

bool Batch::send(bool isNextThere)
{
    if (isNextThere && m_gathered.size() < pieceSize)
        return true;
    const bool isWritten = m_gathered.isEmpty() || m_write(m_gathered);
    m_gathered.resize(0); // keeps its memory
    return isWritten;
}

bool Batch::writeResult(int line, const QByteArray &result, bool isNextThere)
{
    m_gathered += "{\"line\":";
    m_gathered += QByteArray::number(line);
    m_gathered += ",\"ok\":true,\"result\":";
    m_gathered += result;
    m_gathered += "}\n";
    return send(isNextThere);
}

bool Batch::writeFailure(int line)
{
    JsonWriter json(m_gathered);
    json.beginObject();
    json.member("line", line);
    json.member("ok", false);
    json.name("error");
    m_session.problem().write(json);
    json.endObject();
    m_gathered += '\n';
    return send(false);
}

bool Batch::writeEnd(bool isCommitted, int lines, int failed, bool isReplayed)
{
    JsonWriter json(m_gathered);
    json.beginObject();
    json.member("committed", isCommitted);
    json.member("lines", lines);
    if (m_options.isEach)
        json.member("failed", failed);
    if (m_options.manners.isDryRun)
        json.member("dryRun", true);
    if (isReplayed)
        json.member("replayed", true);
    json.endObject();
    m_gathered += '\n';
    return send(false);
}

int Batch::runEach()
{
    InputLine input(STDIN_FILENO);
    QByteArray line, result;
    int count = 0, failed = 0;
    while (input.readBytes(line)) {
        ++count;
        if (line.trimmed().isEmpty())
            continue;
        m_session.clearProblem();
        const bool done = runLine(line, result);
        if (!done)
            ++failed;
        if (!(done ? writeResult(count, result, false) : writeFailure(count)))
            return 0; // nobody reads any more
    }
    writeEnd(!m_options.manners.isDryRun, count, failed);
    return failed > 0 ? 3 : 0;
}

int Batch::runTogether()
{
    InputLine input(STDIN_FILENO);
    QByteArray line, result;
    DatabaseSession &database = m_session.context().session;
    WriteTransaction transaction(database);
    if (!transaction.hasBegun()) {
        writeFailure(0);
        writeEnd(false, 0, 0);
        return m_session.problem().exitCode();
    }
    QVector<QByteArray> lines;
    QString digest;
    if (!m_options.key.isEmpty()) { // the whole of it is the request
        QCryptographicHash hash(QCryptographicHash::Sha256);
        while (input.readBytes(line)) {
            lines.append(line);
            hash.addData(line + '\n');
        }
        digest = QString::fromLatin1(hash.result().toHex());
        KeyTable keys = database.database()->keys();
        KeyTable::Entry entry;
        bool isFound = false;
        if (!keys.find(m_options.key, entry, isFound))
            return database.failDatabase(keys.lastError()), m_session.problem().exitCode();
        if (isFound && entry.digest == digest)
            return writeEnd(true, lines.size(), 0, true), 0;
        if (isFound) {
            Problem problem;
            problem.code = Problem::keyReused;
            problem.option = QStringLiteral("key");
            problem.value = m_options.key;
            problem.message = text(TEXT("avaimella on tehty toinen pyyntö: %1")).arg(m_options.key);
            m_session.fail(problem);
            writeFailure(0);
            writeEnd(false, lines.size(), 0);
            return problem.exitCode();
        }
    }
    int count = 0, next = 0;
    const auto readNext = [&] {
        if (m_options.key.isEmpty())
            return input.readBytes(line);
        if (next >= lines.size())
            return false;
        line = lines.at(next++);
        return true;
    };
    database.setEnclosed(true);
    bool isWhole = true;
    while (isWhole && readNext()) {
        ++count;
        if (line.trimmed().isEmpty())
            continue;
        isWhole = runLine(line, result);
        if (!isWhole)
            writeFailure(count);
        else if (!writeResult(count, result, input.hasLine() || next < lines.size()))
            isWhole = false; // who does not read the answers does not know that anything was done
    }
    isWhole = isWhole && send(false);
    if (isWhole && !digest.isEmpty() && !m_options.manners.isDryRun) {
        KeyTable keys = database.database()->keys();
        isWhole = keys.add(m_options.key, {digest, 0}) || database.failDatabase(keys.lastError());
    }
    database.setEnclosed(false);
    const bool isCommitted = isWhole && transaction.commit();
    if (isWhole && !isCommitted)
        writeFailure(count);
    writeEnd(isCommitted && !m_options.manners.isDryRun, count, 0);
    return isCommitted ? 0 : std::max(1, m_session.problem().exitCode());
}

int Batch::run()
{
    if (!m_session.open())
        return -1;
    return m_options.isEach ? runEach() : runTogether();
}

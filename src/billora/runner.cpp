#include "runner.h"

#include "calendar.h"
#include "commandtable.h"
#include "database.h"
#include "keytable.h"
#include "optionparser.h"
#include "records.h"
#include "suggestions.h"
#include "texts.h"
#include "writetransaction.h"

#include <QCryptographicHash>
#include <QFile>

#include <algorithm>

namespace {

/** Global options that a program may give with the arguments of a command. */
const QStringList globalNames = {QStringLiteral("fields"), QStringLiteral("yes")};

bool takesRows(const Command &command)
{
    return command.edits == &invoiceTable && command.noun() == QLatin1String("invoice");
}

void addTo(QCryptographicHash &hash, const Arguments &arguments)
{
    QStringList names = arguments.names();
    names.sort();
    for (const QString &name : qAsConst(names)) {
        hash.addData(name.toUtf8() + '\0');
        const QStringList texts = arguments.texts(name.toLatin1().constData());
        for (const QString &text : texts)
            hash.addData(text.toUtf8() + '\1');
    }
    for (const Arguments &row : arguments.rows) {
        hash.addData("\2", 1);
        addTo(hash, row);
    }
}

} // namespace

QString Runner::digest(const QString &command, const Arguments &arguments)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    hash.addData(command.toUtf8() + '\0');
    addTo(hash, arguments);
    const QStringList files = arguments.texts("file");
    for (const QString &name : files) { // a file is what is in it
        QFile file(name);
        if (file.open(QIODevice::ReadOnly))
            hash.addData(&file);
    }
    return QString::fromLatin1(hash.result().toHex());
}

int Runner::lastSaved(const Command &command) const
{
    const LastSavedIds &ids = m_session.context().lastSaved;
    const struct {
        const char *noun;
        int id;
    } rows[] = {{"invoice", ids.invoice}, {"row", ids.invoice},         {"customer", ids.customer},
                {"product", ids.product}, {"account", ids.bankAccount}, {"payment", ids.payment}};
    for (const auto &row : rows) {
        if (command.noun() == QLatin1String(row.noun))
            return row.id;
    }
    return 0;
}

bool Runner::check(const Command &command, const Arguments &arguments, const Manners &manners)
{
    const ValueReader reader(m_session, Calendar::today());
    const QVector<const Option *> options = CommandTable::options(command);
    for (const Option *option : options) {
        if (option->type != ValueType::flag)
            continue;
        const QString name = QLatin1String(option->name);
        bool isTrue = false;
        const bool isField = command.edits && command.edits->find(name);
        if (!isField && arguments.has(name) && !reader.flag(name, arguments.text(name), isTrue))
            return false;
    }
    if (manners.isInteractive && command.is(Command::asks))
        return true;
    const bool isFromFile = arguments.has("from"); // what the file holds is not known yet
    const Problem missing = isFromFile ? Problem() : OptionParser::missing(command, arguments);
    return !missing.isSet() || m_session.fail(missing);
}

bool Runner::run(const Command &command, const Arguments &arguments, Answer &answer, const Manners &manners,
                 const QString &key, int &exitCode)
{
    Task task(m_session, command, arguments, answer, manners);
    if (!check(command, arguments, manners))
        return false;
    if (!key.isEmpty() && !command.is(Command::keyed))
        return task.fail(Problem::conflict,
                         text(TEXT("valinta --key ei sovi komentoon %1")).arg(QLatin1String(command.name)),
                         QStringLiteral("key"), key);
    if (!command.is(Command::noCompany) && !m_session.open())
        return false;
    const bool done = key.isEmpty() || manners.isDryRun ? command.run(task) : runKeyed(task, key);
    exitCode = task.exitCode;
    return done;
}

/** The request and its key are kept together, or neither. */
bool Runner::runKeyed(Task &task, const QString &key)
{
    DatabaseSession &session = m_session.context().session;
    const bool wasEnclosed = session.isEnclosed();
    WriteTransaction transaction(session);
    if (!transaction.hasBegun())
        return false;
    KeyTable keys = session.database()->keys();
    KeyTable::Entry entry;
    bool isFound = false;
    const QString digest = Runner::digest(QLatin1String(task.command.name), task.arguments);
    if (!keys.find(key, entry, isFound))
        return session.failDatabase(keys.lastError());
    session.setEnclosed(true);
    bool done = false;
    if (isFound && entry.digest != digest) {
        done = task.fail(Problem::keyReused, text(TEXT("avaimella on tehty toinen pyyntö: %1")).arg(key),
                         QStringLiteral("key"), key);
    } else if (isFound) {
        task.answer.setReplayed();
        QString noun = task.command.noun();
        if (noun == QLatin1String("row"))
            noun = QStringLiteral("invoice");
        const Command *show = entry.recordId > 0 ? CommandTable::find(noun + QLatin1String(" show")) : nullptr;
        if (show) {
            Arguments arguments;
            arguments.add(noun, QStringLiteral("id:%1").arg(entry.recordId));
            Task again(m_session, *show, arguments, task.answer, task.manners);
            done = show->run(again);
        } else {
            task.answer.object([](JsonWriter &) {}, text(TEXT("Pyyntö on jo tehty.")));
            done = true;
        }
    } else {
        done = task.command.run(task) &&
               (keys.add(key, {digest, lastSaved(task.command)}) || session.failDatabase(keys.lastError()));
    }
    session.setEnclosed(wasEnclosed);
    return done && transaction.commit();
}

/** Names that a program gives must be the command's: nothing is overlooked in silence. */
bool Runner::checkNames(const Command &command, const Arguments &arguments)
{
    const QVector<const Option *> options = CommandTable::options(command);
    if ((arguments.hasRows || !arguments.rows.isEmpty()) && !takesRows(command)) {
        Problem problem;
        problem.code = Problem::unknownField;
        problem.option = QStringLiteral("rows");
        problem.message = text(TEXT("kenttää ei ole: %1")).arg(problem.option);
        return m_session.fail(problem);
    }
    QStringList names = arguments.names();
    for (const QString &name : arguments.lists) {
        if (!names.contains(name)) // an empty one has no value
            names.append(name);
    }
    for (const QString &name : qAsConst(names)) {
        const auto found = std::find_if(options.begin(), options.end(),
                                        [&name](const Option *option) { return name == QLatin1String(option->name); });
        Problem problem;
        problem.option = name;
        const bool isKnown = found != options.end() || globalNames.contains(name);
        if (!isKnown) {
            problem.code = Problem::unknownField;
            problem.message = text(TEXT("kenttää ei ole: %1")).arg(name);
            problem.value = name;
            QStringList known;
            for (const Option *option : options)
                known.append(QLatin1String(option->name));
            const QStringList near = Suggestions::nearest(name, known);
            for (const QString &word : near)
                problem.suggestions.append({word, QString()});
            return m_session.fail(problem);
        }
        const bool isFlag = found != options.end() ? (*found)->type == ValueType::flag : name == QLatin1String("yes");
        const bool isList = found != options.end() && (*found)->is(Option::list);
        const QStringList values = arguments.texts(name.toLatin1().constData());
        const bool isBoolean = arguments.booleans.contains(name);
        const bool isSeveral = arguments.lists.contains(name) && !isList && name != QLatin1String("fields");
        // A text may stand for true or false, as the plain forms of answers write them.
        const bool fitsFlag = isBoolean || arguments.nulls.contains(name) ||
                              values == QStringList(QStringLiteral("true")) ||
                              values == QStringList(QStringLiteral("false"));
        if (isSeveral || (isFlag ? !fitsFlag : isBoolean)) {
            problem.code = Problem::badValue;
            problem.message = text(TEXT("%1 ei voi olla tätä tyyppiä")).arg(name);
            return m_session.fail(problem);
        }
        // Standard input and output are the requests' and the answers' own.
        const bool namesStream = found != options.end() && values.contains(QStringLiteral("-")) &&
                                 ((*found)->type == ValueType::file || (*found)->type == ValueType::invoices);
        if (!namesStream)
            continue;
        problem.code = Problem::conflict;
        problem.value = QStringLiteral("-");
        problem.message = text(TEXT("vakiosyöte ja -tuloste ovat istunnon: %1")).arg(name);
        return m_session.fail(problem);
    }
    for (const Arguments &row : arguments.rows) {
        const QStringList fields = row.names();
        for (const QString &name : fields) {
            const Field *field = rowTable.find(name);
            const bool isKnown = name == QLatin1String("product") || (field && field->is(Field::editable));
            if (isKnown)
                continue;
            Problem problem;
            problem.code = Problem::unknownField;
            problem.option = name;
            problem.message = text(TEXT("rivillä ei ole kenttää: %1")).arg(name);
            return m_session.fail(problem);
        }
    }
    return true;
}

bool Runner::runForProgram(const Command &command, Arguments arguments, const Manners &manners, const QString &key,
                           QByteArray &result, int &exitCode)
{
    if (!checkNames(command, arguments))
        return false;
    // Null is "not given", except for a field that it empties.
    const QStringList nulls = arguments.nulls;
    for (const QString &name : nulls) {
        const Field *field = command.edits ? command.edits->find(name) : nullptr;
        if (!field || !field->is(Field::clearable))
            arguments.remove(name.toLatin1().constData());
    }
    AnswerOptions options;
    options.form = OutputForm::json;
    options.isDryRun = manners.isDryRun;
    for (const QString &text : arguments.texts("fields"))
        options.fields += text.split(QLatin1Char(','), Qt::SkipEmptyParts);
    arguments.remove("fields");
    Manners own = manners;
    own.isInteractive = false;
    own.agreesToAll = manners.agreesToAll || ValueReader::isTrue(arguments.text("yes"));
    arguments.remove("yes");
    result.resize(0); // keeps its memory
    Answer answer(options, [&result](const QByteArray &bytes) {
        result += bytes;
        return true;
    });
    if (!run(command, arguments, answer, own, key, exitCode))
        return false;
    answer.flush();
    while (result.endsWith('\n'))
        result.chop(1);
    if (result.contains('\n'))
        result.replace('\n', QByteArray());
    if (result.isEmpty())
        result = "null";
    return true;
}

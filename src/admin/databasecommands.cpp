#include "databasecommands.h"

#include "databaselist.h"
#include "parametertable.h"
#include "postgresqldatabase.h"
#include "sqlitedatabase.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QTemporaryDir>

#include <memory>
#include <optional>

namespace {

struct State {
    QVariantMap entry; ///< as it will stand in the list
    std::optional<int> number;
};

bool number(CommandContext &context, const QString &key, const QString &value, State &state)
{
    int parsed = 0;
    if (!context.values.parseIntValue(key, value, parsed))
        return false;
    if (parsed < 1) // such numbers mean the last used database
        return context.values.failNumber(key, value);
    state.number = parsed;
    return true;
}

bool port(CommandContext &context, const QString &key, const QString &value, State &state)
{
    int parsed = 0;
    if (!context.values.parseIntValue(key, value, parsed))
        return false;
    if (parsed < 1 || parsed > 65535)
        return context.values.failNumber(key, value);
    state.entry.insert(key, parsed);
    return true;
}

bool text(CommandContext &, const QString &key, const QString &value, State &state)
{
    state.entry.insert(key, value);
    return true;
}

bool type(CommandContext &context, const QString &key, const QString &value, State &state)
{
    if (value != QLatin1String("sqlite") && value != QLatin1String("postgresql"))
        return context.status.fail(ExitCode::badData,
                                   CommandContext::tr("Virheellinen tietokantatyyppi: %1").arg(value));
    return text(context, key, value, state);
}

bool filename(CommandContext &context, const QString &key, const QString &value, State &state)
{
    if (value.isEmpty())
        return context.status.fail(ExitCode::badData, CommandContext::tr("Parametri filename on pakollinen"));
    // Absolute: the list is used from any folder.
    return text(context, key, QFileInfo(QDir::fromNativeSeparators(value)).absoluteFilePath(), state);
}

constexpr Parameter<State> createParameters[] = {
    {"type", type},     {"filename", filename}, {"host", text}, {"port", port},     {"databaseName", text},
    {"username", text}, {"password", text},     {"name", text}, {"number", number},
};

constexpr Parameter<State> numberParameter[] = {{"number", number}};

void printDatabase(ResponseWriter &response, const QVariantMap &entry, int lastUsed)
{
    const bool postgresql = DatabaseList::isPostgreSQL(entry);
    const auto property = [&](const char *key, bool applies) {
        response.printProperty(key, applies ? entry.value(QLatin1String(key)).toString() : QStringLiteral(""));
    };
    response.startRecord(QStringLiteral("database"));
    response.printProperty("number", DatabaseList::number(entry));
    response.printProperty("type", postgresql ? QStringLiteral("postgresql") : QStringLiteral("sqlite"));
    property("filename", !postgresql);
    property("host", postgresql);
    property("databaseName", postgresql);
    response.printProperty("lastUsed", DatabaseList::number(entry) == lastUsed);
    response.endRecord();
}

/** Creates the database through its backend. On failure nothing of it is left. */
bool createDatabase(CommandContext &context, const QVariantMap &entry)
{
    // The backend reads the keys of a settings object; the list gets the entry only when all went well.
    const QTemporaryDir folder;
    QSettings settings(folder.filePath(QStringLiteral("database.ini")), QSettings::IniFormat);
    for (auto it = entry.cbegin(); it != entry.cend(); ++it)
        settings.setValue(it.key(), it.value());

    const bool postgresql = DatabaseList::isPostgreSQL(entry);
    std::unique_ptr<Database> database;
    if (postgresql)
        database = std::make_unique<PostgreSQLDatabase>();
    else
        database = std::make_unique<SQLiteDatabase>();
    database->setCreateIfNotExist(true);
    const bool created = database->open(&settings) && database->exists();
    const QString error = database->lastError();
    database->close();
    if (created)
        return true;
    if (!postgresql)
        QFile::remove(entry.value(QStringLiteral("filename")).toString());
    return context.status.fail(ExitCode::databaseFailure, error);
}

/** Fills what a new entry was not given; false when the entry cannot be used. */
bool completeEntry(CommandContext &context, State &state, const DatabaseList &list)
{
    QVariantMap &entry = state.entry;
    if (!entry.contains(QStringLiteral("type")))
        entry.insert(QStringLiteral("type"), QStringLiteral("sqlite"));
    const int chosen = state.number.value_or(list.nextFreeNumber());
    entry.insert(QStringLiteral("number"), chosen);
    if (list.contains(chosen))
        return context.status.fail(ExitCode::badData,
                                   CommandContext::tr("Tietokanta numerolla %1 on jo olemassa").arg(chosen));
    if (DatabaseList::isPostgreSQL(entry))
        return true;
    const QString file = entry.value(QStringLiteral("filename")).toString();
    if (file.isEmpty())
        return context.status.fail(ExitCode::badData, CommandContext::tr("Parametri filename on pakollinen"));
    if (QFileInfo(file).exists() || QFileInfo(file).isSymLink())
        return context.status.fail(ExitCode::badData, CommandContext::tr("Tiedosto on jo olemassa: %1").arg(file));
    return true;
}

bool failSettingsFile(CommandContext &context)
{
    const QString file = context.session.registry().appSettings()->fileName();
    return context.status.fail(ExitCode::databaseFailure,
                               CommandContext::tr("Asetustiedostoa ei voi kirjoittaa: %1").arg(file));
}

/** Takes the one parameter, number=N, and checks that the list has such a database. */
bool parseNumber(CommandContext &context, QStringList &args, const DatabaseList &list, int &result)
{
    State state;
    if (!applyParameters(context, parseParameters(args), numberParameter, SaveCommandMode::edit, state))
        return false;
    if (!state.number)
        return context.status.fail(ExitCode::badData, CommandContext::tr("Parametri number on pakollinen"));
    if (!list.contains(*state.number))
        return context.status.fail(ExitCode::badData,
                                   CommandContext::tr("Tietokantaa ei löytynyt numerolla %1").arg(*state.number));
    result = *state.number;
    return true;
}

} // namespace

void parseCreateDatabaseCommand(CommandContext &context, QStringList &args)
{
    State state;
    if (!applyParameters(context, parseParameters(args), createParameters, SaveCommandMode::add, state))
        return;
    DatabaseList list(context.session.registry().appSettings());
    if (!completeEntry(context, state, list))
        return;
    context.session.closeDatabase(); // both would use one connection name
    if (!createDatabase(context, state.entry))
        return;
    state.entry.remove(QStringLiteral("name")); // served the creation only
    const int number = DatabaseList::number(state.entry);
    list.append(state.entry);
    if (list.lastUsed() < 0)
        list.setLastUsed(number);
    if (!list.save()) {
        if (!DatabaseList::isPostgreSQL(state.entry))
            QFile::remove(state.entry.value(QStringLiteral("filename")).toString());
        failSettingsFile(context);
        return;
    }
    if (!context.session.openDatabase(number, false))
        return;
    context.response.startResponse(QStringLiteral("OK"));
    printDatabase(context.response, state.entry, list.lastUsed());
    context.response.endResponse();
}

void parseFindDatabasesCommand(CommandContext &context, QStringList &args)
{
    const ParameterList words = parseParameters(args);
    if (!words.isEmpty()) {
        context.status.failUnknownParameter(words.first().first);
        return;
    }
    const DatabaseList list(context.session.registry().appSettings());
    context.response.startResponse(QStringLiteral("OK"));
    for (const QVariantMap &entry : list.entries())
        printDatabase(context.response, entry, list.lastUsed());
    context.response.endResponse();
}

void parseSelectDatabaseCommand(CommandContext &context, QStringList &args)
{
    DatabaseList list(context.session.registry().appSettings());
    int number = 0;
    if (!parseNumber(context, args, list, number))
        return;
    list.setLastUsed(number);
    if (!list.save()) {
        failSettingsFile(context);
        return;
    }
    context.response.startResponse(QStringLiteral("OK"));
    for (const QVariantMap &entry : list.entries()) {
        if (DatabaseList::number(entry) == number)
            printDatabase(context.response, entry, number);
    }
    context.response.endResponse();
}

void parseForgetDatabaseCommand(CommandContext &context, QStringList &args)
{
    DatabaseList list(context.session.registry().appSettings());
    int number = 0;
    if (!parseNumber(context, args, list, number))
        return;
    list.remove(number);
    if (!list.save()) {
        failSettingsFile(context);
        return;
    }
    context.response.startResponse(QStringLiteral("OK"));
    context.response.printNumRemoved(1);
    context.response.endResponse();
}

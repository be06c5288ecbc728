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

#include <cerrno>
#include <cstring>
#include <optional>

#include <fcntl.h>
#include <stdio.h> // renameat2()
#include <unistd.h>

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
    const QString name = value.toLower();
    if (name != QLatin1String("sqlite") && name != QLatin1String("postgresql"))
        return context.status.fail(ExitCode::badData,
                                   CommandContext::tr("Virheellinen tietokantatyyppi: %1").arg(value));
    return text(context, key, name, state);
}

bool filename(CommandContext &context, const QString &key, const QString &value, State &state)
{
    if (value.isEmpty())
        return context.status.fail(ExitCode::badData, CommandContext::tr("Parametri filename on pakollinen"));
    if (value.startsWith(QLatin1Char(':'))) // names a resource or a database in memory
        return context.status.fail(ExitCode::badData, CommandContext::tr("Virheellinen tiedostonimi: %1").arg(value));
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

/**
 * Puts a finished file in place unless another one has come there meanwhile.
 * @return false with errno set
 */
bool putInPlace(const QString &from, const QString &to)
{
    const QByteArray source = QFile::encodeName(from);
    const QByteArray target = QFile::encodeName(to);
    if (::renameat2(AT_FDCWD, source.constData(), AT_FDCWD, target.constData(), RENAME_NOREPLACE) == 0)
        return true;
    if (errno != EINVAL && errno != ENOSYS)
        return false;
    return ::link(source.constData(), target.constData()) == 0 && ::unlink(source.constData()) == 0;
}

/** Creates the database of an entry through its backend. On failure nothing of it is left. */
bool createThroughBackend(CommandContext &context, Database &database, const QVariantMap &entry)
{
    // The backend reads the keys of a settings object; the list gets the entry only when all went well.
    const QTemporaryDir folder;
    QSettings settings(folder.filePath(QStringLiteral("database.ini")), QSettings::IniFormat);
    for (auto it = entry.cbegin(); it != entry.cend(); ++it)
        settings.setValue(it.key(), it.value());
    database.setCreateIfNotExist(true);
    const bool created = database.open(&settings) && database.exists();
    const QString error = database.lastError();
    database.close();
    return created || context.status.fail(ExitCode::databaseFailure, error);
}

/** A new file is made under another name first: what stands under its own name is whole, and is never another's. */
bool createSQLiteDatabase(CommandContext &context, const QVariantMap &entry)
{
    const QString file = entry.value(QStringLiteral("filename")).toString();
    QVariantMap part = entry;
    const QString partName = QStringLiteral("%1.%2.part").arg(file).arg(::getpid());
    part.insert(QStringLiteral("filename"), partName);
    SQLiteDatabase database;
    const bool created = createThroughBackend(context, database, part);
    if (created && putInPlace(partName, file))
        return true;
    const int error = errno;
    QFile::remove(partName);
    context.status.lastError.replace(partName, file); // the user knows the name that was asked for
    if (!created)
        return false;
    return context.status.fail(ExitCode::databaseFailure,
                               error == EEXIST ? CommandContext::tr("Tiedosto on jo olemassa: %1").arg(file)
                                               : CommandContext::tr("Tiedostoa %1 ei voi kirjoittaa: %2")
                                                     .arg(file, QString::fromLocal8Bit(std::strerror(error))));
}

bool createDatabase(CommandContext &context, const QVariantMap &entry)
{
    if (!DatabaseList::isPostgreSQL(entry))
        return createSQLiteDatabase(context, entry);
    PostgreSQLDatabase database;
    return createThroughBackend(context, database, entry);
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

QString settingsFile(CommandContext &context) { return context.session.registry().appSettings()->fileName(); }

bool failSettingsFile(CommandContext &context)
{
    return context.status.fail(ExitCode::databaseFailure,
                               CommandContext::tr("Asetustiedostoa ei voi kirjoittaa: %1").arg(settingsFile(context)));
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
    DatabaseList list(settingsFile(context), DatabaseList::writing);
    if (!completeEntry(context, state, list))
        return;
    if (!list.isWritable()) {
        failSettingsFile(context);
        return;
    }
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
    context.session.registry().appSettings()->sync(); // another object wrote the file
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
    const DatabaseList list(settingsFile(context), DatabaseList::reading);
    context.response.startResponse(QStringLiteral("OK"));
    for (const QVariantMap &entry : list.entries())
        printDatabase(context.response, entry, list.lastUsed());
    context.response.endResponse();
}

void parseSelectDatabaseCommand(CommandContext &context, QStringList &args)
{
    DatabaseList list(settingsFile(context), DatabaseList::writing);
    int number = 0;
    if (!parseNumber(context, args, list, number))
        return;
    list.setLastUsed(number);
    if (!list.save()) {
        failSettingsFile(context);
        return;
    }
    context.session.registry().appSettings()->sync();
    context.response.startResponse(QStringLiteral("OK"));
    for (const QVariantMap &entry : list.entries()) {
        if (DatabaseList::number(entry) == number)
            printDatabase(context.response, entry, number);
    }
    context.response.endResponse();
}

void parseForgetDatabaseCommand(CommandContext &context, QStringList &args)
{
    DatabaseList list(settingsFile(context), DatabaseList::writing);
    int number = 0;
    if (!parseNumber(context, args, list, number))
        return;
    list.remove(number);
    if (!list.save()) {
        failSettingsFile(context);
        return;
    }
    context.session.registry().appSettings()->sync();
    context.response.startResponse(QStringLiteral("OK"));
    context.response.printNumRemoved(1);
    context.response.endResponse();
}

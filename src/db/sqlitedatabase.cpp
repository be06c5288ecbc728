#include "sqlitedatabase.h"

#include "journalfile.h"
#include "query.h"
#include "sqlitecursor.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QSettings>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>

namespace {

/** How long a statement waits for another program's lock before it fails. */
constexpr int busyTimeoutMs = 5000;

/** How long an upgrade by another program is waited for. */
constexpr int upgradeWaitMs = 60000;

} // namespace

SQLiteDatabase::SQLiteDatabase(QObject *parent) : Database(QStringLiteral("sqlite"), parent) {}

SQLiteDatabase::~SQLiteDatabase() = default;

bool SQLiteDatabase::driverAvailable() const { return QSqlDatabase::isDriverAvailable(QStringLiteral("QSQLITE")); }

bool SQLiteDatabase::open(QSettings *settings)
{
    const QString filename = settings->value(QStringLiteral("filename")).toString();
    if (filename.isEmpty())
        return fail(tr("Tietokannan tiedostonimi puuttuu"));
    m_exists = QFile::exists(filename); // before the connection: opening makes the file
    QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_connectionName);
    database.setDatabaseName(filename);
    database.setConnectOptions(m_isGlance ? QStringLiteral("QSQLITE_BUSY_TIMEOUT=0;QSQLITE_OPEN_READONLY")
                                          : QStringLiteral("QSQLITE_BUSY_TIMEOUT=%1").arg(busyTimeoutMs));
    if (!database.open())
        return fail(tr("Tietokantaa %1 ei voi avata: %2").arg(filename, database.lastError().text().trimmed()));
    if (!m_exists) {
        if (!isCreateIfNotExist())
            return true; // the caller looks at exists()
        m_exists = createTables(settings->value(QStringLiteral("name")).toString());
        if (!m_exists)
            return false;
    }
    return upgrade(filename);
}

void SQLiteDatabase::close()
{
    m_dataVersion.reset();
    Database::close();
}

bool SQLiteDatabase::beginWriting()
{
    // IMMEDIATE: a transaction that first reads and then wants to write could otherwise meet another one that does
    // the same, and neither could go on.
    fail(QString());
    QSqlQuery query(connection(false));
    return query.exec(QStringLiteral("BEGIN IMMEDIATE")) || fail(query.lastError().text());
}

std::unique_ptr<Cursor> SQLiteDatabase::cursor() const { return std::make_unique<SQLiteCursor>(connection(true)); }

Query *SQLiteDatabase::query() { return new Query(cursor(), this); }

long long SQLiteDatabase::foreignChanges()
{
    if (!m_dataVersion) {
        m_dataVersion = std::make_unique<QSqlQuery>(connection(false));
        m_dataVersion->setForwardOnly(true);
        m_dataVersion->prepare(QStringLiteral("PRAGMA data_version"));
    }
    const bool known = m_dataVersion->exec() && m_dataVersion->next();
    const long long version = known ? m_dataVersion->value(0).toLongLong() : -1;
    m_dataVersion->finish();
    return version;
}

bool SQLiteDatabase::backupTo(const QString &filename)
{
    if (QFileInfo::exists(filename))
        return fail(tr("Tiedosto on jo olemassa: %1").arg(filename));
    // Made here and empty, so that it is ours, whoever else makes a file of the name; an absolute path is a file to the
    // library, never a database in memory.
    QFile target(QFileInfo(filename).absoluteFilePath());
    if (!target.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        return fail(tr("Tiedostoa %1 ei voi kirjoittaa: %2").arg(filename, target.errorString()));
    target.setPermissions(QFile::permissions(connection(false).databaseName()));
    target.close();
    QSqlQuery query(connection(false));
    query.prepare(QStringLiteral("VACUUM INTO ?"));
    query.bindValue(0, target.fileName());
    if (query.exec())
        return true;
    target.remove();
    return fail(tr("Tiedostoa %1 ei voi kirjoittaa: %2").arg(filename, query.lastError().text().trimmed()));
}

/** @return the schema version, 0 without a settings row, nothing when it cannot be read */
std::optional<int> SQLiteDatabase::storedVersion()
{
    QSqlQuery query(connection(false));
    query.exec(QStringLiteral("SELECT version FROM settings"));
    if (query.isActive())
        return query.next() ? query.value(0).toInt() : 0;
    fail(query.lastError().text());
    return std::nullopt;
}

bool SQLiteDatabase::upgrade(const QString &filename)
{
    std::optional<int> version = storedVersion();
    if (!version)
        return fail(tr("Tietokantaa %1 ei voi lukea: %2").arg(filename, lastError()));
    m_foundVersion = *version;
    if (*version < 1 || *version >= schemaVersion || m_olderSchema == OlderSchema::kept)
        return true;
    if (m_olderSchema == OlderSchema::refused)
        return fail(tr("Tietokannan %1 rakenne on vanha").arg(filename));
    // One program at a time: two that run the same steps would write each other's version numbers. A lock of the
    // database itself would not outlive the copying of the file.
    QLockFile lock(filename + QLatin1String(".upgrade-lock"));
    if (!lock.tryLock(upgradeWaitMs) && lock.error() == QLockFile::LockFailedError)
        return fail(tr("Toinen ohjelma päivittää tietokantaa %1").arg(filename));
    version = storedVersion();
    QSqlQuery query(connection(false));
    for (int from = version.value_or(schemaVersion); from < schemaVersion; ++from) {
        backup(filename);
        if (!upgradeStep(query, from)) // the version still tells the truth
            return false;
    }
    return true;
}

void SQLiteDatabase::backup(const QString &filename) const
{
    const QString stamp = QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss"));
    const QString target = QStringLiteral("%1/backup-%2.sqlite").arg(QFileInfo(filename).path(), stamp);
    QFile::copy(filename, appendSuffixToFilename(target)); // a failure does not keep the database from opening
}

QString SQLiteDatabase::appendSuffixToFilename(const QString &name)
{
    if (!QFile::exists(name))
        return name;
    QString suffix = QFileInfo(name).completeSuffix();
    if (!suffix.isEmpty())
        suffix.prepend(QLatin1Char('.'));
    const QString base = name.left(name.size() - suffix.size());
    for (int i = 1;; ++i) {
        const QString candidate = QStringLiteral("%1-%2%3").arg(base, QString::number(i), suffix);
        if (!QFile::exists(candidate))
            return candidate;
    }
}

bool SQLiteDatabase::isLockError(const QString &reason) const { return reason.contains(QLatin1String("locked")); }

std::unique_ptr<JournalStore> SQLiteDatabase::journal() const
{
    return std::make_unique<JournalFile>(connection(false).databaseName());
}

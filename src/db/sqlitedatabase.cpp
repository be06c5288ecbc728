#include "sqlitedatabase.h"

#include "journalfile.h"
#include "query.h"
#include "sqlitecursor.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QSettings>

#include <sqlite3.h>

namespace {

/** How long a statement waits for another program's lock before it fails. */
constexpr int busyTimeoutMs = 5000;

/** How long an upgrade by another program is waited for. */
constexpr int upgradeWaitMs = 60000;

/** Neither locks between threads nor counts of memory, which small statements would pay for; before the first use. */
void configureLibrary()
{
    static const bool isDone = sqlite3_config(SQLITE_CONFIG_SINGLETHREAD) == SQLITE_OK &&
                               sqlite3_config(SQLITE_CONFIG_MEMSTATUS, 0) == SQLITE_OK;
    Q_UNUSED(isDone)
}

} // namespace

SQLiteDatabase::SQLiteDatabase(QObject *parent) : Database(parent) {}

SQLiteDatabase::~SQLiteDatabase() = default;

// Also where a statement is forgotten: the connection then ends with it.
void SQLiteDatabase::Closer::operator()(sqlite3 *handle) const { sqlite3_close_v2(handle); }

bool SQLiteDatabase::open(QSettings *settings)
{
    const QString filename = settings->value(QStringLiteral("filename")).toString();
    if (filename.isEmpty())
        return fail(tr("Tietokannan tiedostonimi puuttuu"));
    m_exists = QFile::exists(filename); // before the connection: opening makes the file
    configureLibrary();
    const int access = m_isGlance ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE;
    sqlite3 *handle = nullptr;
    const int result = sqlite3_open_v2(filename.toUtf8().constData(), &handle, access | SQLITE_OPEN_NOMUTEX, nullptr);
    m_handle.reset(handle);
    if (result != SQLITE_OK) {
        const QString reason = QString::fromUtf8(sqlite3_errmsg(handle)) + QLatin1String(" Error opening database");
        return fail(tr("Tietokantaa %1 ei voi avata: %2").arg(filename, reason));
    }
    sqlite3_busy_timeout(handle, m_isGlance ? 0 : busyTimeoutMs);
    m_fileName = filename;
    m_statements = std::make_unique<SQLiteCursor>(handle);
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
    m_statements.reset();
    m_handle.reset();
}

bool SQLiteDatabase::runTransaction(const QString &sql, const char *what)
{
    fail(QString());
    if (m_statements->execute(sql, {}))
        return true;
    const QString reason = m_statements->lastError();
    return fail(reason.left(reason.lastIndexOf(QLatin1String(" Unable"))) + QLatin1Char(' ') + QLatin1String(what));
}

bool SQLiteDatabase::transaction() { return runTransaction(QStringLiteral("BEGIN"), "Unable to begin transaction"); }

bool SQLiteDatabase::commit() { return runTransaction(QStringLiteral("COMMIT"), "Unable to commit transaction"); }

bool SQLiteDatabase::rollback() { return m_statements->execute(QStringLiteral("ROLLBACK"), {}); }

bool SQLiteDatabase::beginWriting()
{
    // IMMEDIATE: a transaction that first reads and then wants to write could otherwise meet another one that does
    // the same, and neither could go on.
    fail(QString());
    return run(QStringLiteral("BEGIN IMMEDIATE"));
}

std::unique_ptr<Cursor> SQLiteDatabase::cursor() const { return std::make_unique<SQLiteCursor>(m_handle.get()); }

Query *SQLiteDatabase::query() { return new Query(cursor(), this); }

long long SQLiteDatabase::foreignChanges()
{
    const bool known = m_statements->execute(QStringLiteral("PRAGMA data_version"), {}) && m_statements->next();
    const long long version = known ? m_statements->bigInteger(0) : -1;
    m_statements->finish();
    return version;
}

bool SQLiteDatabase::hasTable(const QString &name) const
{
    SQLiteCursor tables(m_handle.get());
    return tables.execute(QStringLiteral("SELECT 1 FROM sqlite_master WHERE type = 'table' AND name = ?"), {name}) &&
           tables.next();
}

QStringList SQLiteDatabase::columnsOf(const QString &table) const
{
    SQLiteCursor columns(m_handle.get());
    QStringList names;
    const bool isThere = columns.execute(QStringLiteral("SELECT name FROM pragma_table_info(?)"), {table});
    while (isThere && columns.next())
        names.append(columns.text(0));
    return names;
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
    target.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    target.close();
    SQLiteCursor copy(m_handle.get());
    if (copy.execute(QStringLiteral("VACUUM INTO ?"), {target.fileName()})) {
        target.setPermissions(QFile::permissions(m_fileName)); // perhaps those of one that must not be written
        return true;
    }
    target.remove();
    return fail(tr("Tiedostoa %1 ei voi kirjoittaa: %2").arg(filename, copy.lastError()));
}

/** @return the schema version, 0 without a settings row, nothing when it cannot be read */
std::optional<int> SQLiteDatabase::storedVersion()
{
    SQLiteCursor settings(m_handle.get());
    if (settings.execute(QStringLiteral("SELECT version FROM settings"), {}))
        return settings.next() ? settings.integer(0) : 0;
    fail(settings.lastError());
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
    for (int from = version.value_or(schemaVersion); from < schemaVersion; ++from) {
        backup(filename);
        if (!upgradeStep(from)) // the version still tells the truth
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

std::unique_ptr<JournalStore> SQLiteDatabase::journal() const { return std::make_unique<JournalFile>(m_fileName); }

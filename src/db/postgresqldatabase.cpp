#include "postgresqldatabase.h"

#include "journaltable.h"
#include "postgresqlcursor.h"
#include "postgresqlquery.h"

#include <QLoggingCategory>
#include <QRegularExpression>
#include <QSettings>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>

Q_LOGGING_CATEGORY(databaseLog, "billora.database")

namespace {

constexpr int defaultPort = 5432;

/** In the library's list; one server at a time. */
const QString connectionName = QStringLiteral("postgresql");

/** How long a statement waits for another client's lock before it fails. */
constexpr int lockTimeoutMs = 5000;

/** A server that does not answer, or is gone without a word, is given up: seconds, and milliseconds for unsent data. */
constexpr char connectOptions[] =
    "connect_timeout=10;keepalives_idle=30;keepalives_interval=10;keepalives_count=3;tcp_user_timeout=60000";

/** Any constant serves, as long as every writer of this program takes the same. */
constexpr int writerLock = 0x42494c4c;

/** A value of a connection option: blanks do not end it. */
QString quoted(const QString &value)
{
    QString text = value;
    text.replace(QLatin1Char('\\'), QLatin1String("\\\\")).replace(QLatin1Char('\''), QLatin1String("\\'"));
    return QLatin1Char('\'') + text + QLatin1Char('\'');
}

} // namespace

PostgreSQLDatabase::PostgreSQLDatabase(QObject *parent) : Database(parent) {}

QSqlDatabase PostgreSQLDatabase::connection() const { return QSqlDatabase::database(connectionName, false); }

void PostgreSQLDatabase::close() { QSqlDatabase::removeDatabase(connectionName); }

bool PostgreSQLDatabase::failConnection() { return fail(connection().lastError().text()); }

bool PostgreSQLDatabase::transaction()
{
    fail(QString());
    return connection().transaction() || failConnection();
}

bool PostgreSQLDatabase::commit()
{
    fail(QString());
    return connection().commit() || failConnection();
}

bool PostgreSQLDatabase::rollback() { return connection().rollback(); }

bool PostgreSQLDatabase::hasTable(const QString &name) const { return connection().tables().contains(name); }

QStringList PostgreSQLDatabase::columnsOf(const QString &table) const
{
    const QSqlRecord record = connection().record(table);
    QStringList names;
    for (int i = 0; i < record.count(); ++i)
        names.append(record.fieldName(i));
    return names;
}

bool PostgreSQLDatabase::open(QSettings *settings)
{
    const QString host = settings->value(QStringLiteral("host"), QStringLiteral("localhost")).toString();
    const QString name = settings->value(QStringLiteral("databaseName"), QStringLiteral("billora")).toString();
    if (host.isEmpty() || name.isEmpty())
        return fail(tr("Tietokantapalvelimen tai tietokannan nimi puuttuu"));
    QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QPSQL"), connectionName);
    database.setHostName(host);
    const QString ports = settings->value(QStringLiteral("port"), defaultPort).toString();
    const bool hasPorts = ports.contains(QLatin1Char(','));
    database.setPort(hasPorts ? -1 : ports.toInt());
    database.setDatabaseName(name);
    database.setUserName(settings->value(QStringLiteral("username"), QStringLiteral("billora")).toString());
    database.setPassword(settings->value(QStringLiteral("password")).toString());

    QString options = QLatin1String(connectOptions);
    if (host.contains(QLatin1Char(','))) // of several servers the one that takes writes
        options += QLatin1String(";target_session_attrs=read-write");
    if (hasPorts)
        options += QLatin1String(";port=") + quoted(ports);
    for (const char *name : {"sslmode", "sslrootcert"}) {
        const QString value = settings->value(QLatin1String(name)).toString();
        if (!value.isEmpty())
            options += QLatin1Char(';') + QLatin1String(name) + QLatin1Char('=') + quoted(value);
    }
    m_isPooled = settings->value(QStringLiteral("pooled")).toBool();
    database.setConnectOptions(options);

    bool ok = database.open();
    m_exists = ok || !database.lastError().databaseText().trimmed().endsWith(QLatin1String("does not exist"));
    if (!m_exists && isCreateIfNotExist())
        ok = createDatabase(database, name);
    if (!ok)
        return lastError().isEmpty() ? fail(database.lastError().text()) : false;
    // A client that stopped in the middle must not keep the others waiting for ever.
    if (!m_isPooled && !limitWaiting("SESSION"))
        return false;

    const int version = upgrade();
    if (version == noTables && m_olderSchema != OlderSchema::kept)
        return createTables(settings->value(QStringLiteral("name")).toString());
    return version >= noSettingsRow;
}

bool PostgreSQLDatabase::createDatabase(QSqlDatabase &database, const QString &name)
{
    // The name stands unquoted in the statement: another one would be folded or split.
    static const QRegularExpression plainName(QStringLiteral("^[a-z_][a-z0-9_]*$"));
    if (!plainName.match(name).hasMatch())
        return fail(tr("Tietokannan nimessä %1 voi olla vain pieniä kirjaimia a-z, numeroita ja alaviivoja").arg(name));
    QString error;
    database.setDatabaseName(QStringLiteral("postgres"));
    if (!database.open()) {
        error = database.lastError().text();
    } else {
        QSqlQuery query(database);
        if (!query.exec(QStringLiteral("CREATE DATABASE %1").arg(name)))
            error = query.lastError().text();
        query.finish();
        database.close();
    }
    database.setDatabaseName(name);
    m_exists = true;
    if (database.open())
        return true;
    if (error.isEmpty())
        error = database.lastError().text();
    qCWarning(databaseLog).noquote() << error;
    return fail(error);
}

int PostgreSQLDatabase::upgrade()
{
    QSqlQuery query(connection());
    if (!query.exec(QStringLiteral("SELECT version FROM settings"))) {
        fail(query.lastError().text());
        return query.lastError().databaseText().contains(QLatin1String("does not exist")) ? noTables : upgradeFailed;
    }
    if (!query.next())
        return noSettingsRow;
    const int version = query.value(0).toInt();
    m_foundVersion = version;
    if (version < 1 || version >= schemaVersion || m_olderSchema == OlderSchema::kept)
        return version;
    if (m_olderSchema == OlderSchema::refused) {
        fail(tr("Tietokannan rakenne on vanha"));
        return upgradeFailed;
    }
    return upgradeFrom(version);
}

/** One program at a time: two that run the same steps would write each other's version numbers. */
bool PostgreSQLDatabase::beginUpgradeStep(int fromVersion, bool &isDone)
{
    if (!beginWriting())
        return false;
    QSqlQuery query(connection());
    if (!query.exec(QStringLiteral("SELECT version FROM settings")) || !query.next()) {
        fail(query.lastError().text());
        rollback();
        return false;
    }
    isDone = query.value(0).toInt() > fromVersion;
    query.finish();
    return !isDone || rollback();
}

int PostgreSQLDatabase::upgradeFrom(int version)
{
    bool ok = true;
    for (int from = version; ok && from < schemaVersion; ++from)
        ok = upgradeStep(from);
    if (!ok)
        qCWarning(databaseLog).noquote() << lastError();
    return ok ? schemaVersion : upgradeFailed;
}

bool PostgreSQLDatabase::limitWaiting(const char *scope)
{
    QSqlQuery query(connection());
    return query.exec(QStringLiteral("SET %1 lock_timeout = '%2ms'").arg(QLatin1String(scope)).arg(lockTimeoutMs)) ||
           fail(query.lastError().text());
}

bool PostgreSQLDatabase::beginWriting()
{
    if (!transaction())
        return false;
    if (m_isPooled && !limitWaiting("LOCAL")) {
        rollback();
        return false;
    }
    QSqlQuery query(connection());
    if (query.exec(QStringLiteral("SELECT pg_advisory_xact_lock(%1)").arg(writerLock)))
        return true;
    fail(query.lastError().text());
    rollback();
    return false;
}

bool PostgreSQLDatabase::beginReading()
{
    QSqlQuery query(connection());
    return query.exec(QStringLiteral("BEGIN ISOLATION LEVEL REPEATABLE READ READ ONLY")) ||
           fail(query.lastError().text());
}

std::unique_ptr<Cursor> PostgreSQLDatabase::cursor() const
{
    return std::make_unique<PostgreSQLCursor>(QSqlQuery(connection()), m_isPooled);
}

Query *PostgreSQLDatabase::query() { return new PostgreSQLQuery(cursor(), this); }

bool PostgreSQLDatabase::isLockError(const QString &reason) const
{
    return reason.contains(QLatin1String("lock timeout"));
}

std::unique_ptr<JournalStore> PostgreSQLDatabase::journal() const
{
    return std::make_unique<JournalTable>(connection());
}

#include "postgresqldatabase.h"

#include "postgresqlquery.h"

#include <QDebug>
#include <QSettings>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>

namespace {

constexpr int defaultPort = 5432;

/** Any constant serves, as long as every writer of this program takes the same. */
constexpr int writerLock = 0x42494c4c;

} // namespace

PostgreSQLDatabase::PostgreSQLDatabase(QObject *parent) : Database(QStringLiteral("postgresql"), parent) {}

bool PostgreSQLDatabase::driverAvailable() const { return QSqlDatabase::isDriverAvailable(QStringLiteral("QPSQL")); }

bool PostgreSQLDatabase::open(QSettings *settings)
{
    const QString host = settings->value(QStringLiteral("host"), QStringLiteral("localhost")).toString();
    const QString name = settings->value(QStringLiteral("databaseName"), QStringLiteral("billora")).toString();
    if (host.isEmpty() || name.isEmpty())
        return fail(tr("Tietokantapalvelimen tai tietokannan nimi puuttuu"));
    QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QPSQL"), m_connectionName);
    database.setHostName(host);
    database.setPort(settings->value(QStringLiteral("port"), defaultPort).toInt());
    database.setDatabaseName(name);
    database.setUserName(settings->value(QStringLiteral("username"), QStringLiteral("billora")).toString());
    database.setPassword(settings->value(QStringLiteral("password")).toString());

    bool ok = database.open();
    m_exists = ok || !database.lastError().databaseText().trimmed().endsWith(QLatin1String("does not exist"));
    if (!m_exists && isCreateIfNotExist())
        ok = createDatabase(database, name);
    if (!ok)
        return fail(database.lastError().text());

    const int version = upgrade();
    if (version == noTables)
        return createTables(settings->value(QStringLiteral("name")).toString());
    return version >= noSettingsRow;
}

bool PostgreSQLDatabase::createDatabase(QSqlDatabase &database, const QString &name)
{
    database.setDatabaseName(QStringLiteral("postgres"));
    if (!database.open()) {
        qWarning() << database.lastError();
    } else {
        QSqlQuery query(database);
        if (!query.exec(QStringLiteral("CREATE DATABASE %1").arg(name)))
            qWarning() << query.lastError();
        query.finish();
        database.close();
    }
    database.setDatabaseName(name);
    m_exists = true;
    return database.open();
}

int PostgreSQLDatabase::upgrade()
{
    QSqlQuery query(connection(false));
    if (!query.exec(QStringLiteral("SELECT version FROM settings"))) {
        fail(query.lastError().text());
        return query.lastError().databaseText().contains(QLatin1String("does not exist")) ? noTables : upgradeFailed;
    }
    if (!query.next())
        return noSettingsRow;
    const int version = query.value(0).toInt();
    if (version < 1 || version >= schemaVersion)
        return version;
    bool ok = true;
    for (int from = version; from < schemaVersion; ++from)
        ok = upgradeStep(query, from);
    if (!ok)
        qWarning() << query.lastError();
    return ok ? schemaVersion : upgradeFailed;
}

bool PostgreSQLDatabase::beginWriting()
{
    if (!transaction())
        return fail(connection(false).lastError().text());
    QSqlQuery query(connection(false));
    if (query.exec(QStringLiteral("SELECT pg_advisory_xact_lock(%1)").arg(writerLock)))
        return true;
    fail(query.lastError().text());
    rollback();
    return false;
}

Query *PostgreSQLDatabase::query()
{
    QSqlQuery statement(connection(true));
    statement.setForwardOnly(true);
    return new PostgreSQLQuery(statement, this);
}

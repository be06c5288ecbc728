#include "testdatabase.h"

#include "postgresqldatabase.h"
#include "query.h"
#include "sqlitedatabase.h"

#include <QCoreApplication>
#include <QSqlError>
#include <QSqlField>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QtTest>

namespace {

QString environment(const char *name)
{
    const QByteArray value = qgetenv(name);
    if (value.isEmpty())
        qFatal("%s is not set: run it as tests/with-pg ENV-FILE PROGRAM after tests/pg-server start ENV-FILE", name);
    return QString::fromLocal8Bit(value);
}

} // namespace

TestDatabase::TestDatabase(const QString &backend)
    : m_isSQLite(backend == QLatin1String("sqlite")),
      m_settings(m_folder.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat)
{
    static int count = 0;
    m_name = QStringLiteral("test_%1_%2").arg(QCoreApplication::applicationPid()).arg(++count);
    m_settings.setValue(QStringLiteral("name"), QString::fromUtf8(u8"Myyjä Oy"));
    if (m_isSQLite) {
        m_name = m_folder.filePath(m_name + QLatin1String(".sqlite"));
        m_settings.setValue(QStringLiteral("filename"), m_name);
        m_database = std::make_unique<SQLiteDatabase>();
        return;
    }
    m_settings.setValue(QStringLiteral("host"), environment("BILLORA_TEST_PGHOST"));
    m_settings.setValue(QStringLiteral("port"), environment("BILLORA_TEST_PGPORT").toInt());
    m_settings.setValue(QStringLiteral("username"), environment("BILLORA_TEST_PGUSER"));
    m_settings.setValue(QStringLiteral("databaseName"), m_name);
    m_database = std::make_unique<PostgreSQLDatabase>();
}

TestDatabase::~TestDatabase()
{
    close();
    if (!m_isSQLite) {
        QSqlDatabase server = connection(QStringLiteral("postgres"));
        QSqlQuery query(server);
        query.exec(QStringLiteral("SET client_min_messages = warning")); // some tests never create theirs
        query.exec(QStringLiteral("DROP DATABASE IF EXISTS %1 WITH (FORCE)").arg(m_name));
    }
    QSqlDatabase::removeDatabase(m_name + QLatin1String("/postgres"));
    QSqlDatabase::removeDatabase(m_name + QLatin1Char('/') + m_name);
}

bool TestDatabase::open(bool create)
{
    m_database->setCreateIfNotExist(create);
    return m_database->open(&m_settings);
}

void TestDatabase::close() { m_database->close(); }

std::unique_ptr<Query> TestDatabase::query() const { return std::unique_ptr<Query>(m_database->query()); }

QSqlDatabase TestDatabase::connection(const QString &databaseName) const
{
    const QString name = m_name + QLatin1Char('/') + databaseName;
    if (QSqlDatabase::contains(name))
        return QSqlDatabase::database(name);
    QSqlDatabase database =
        QSqlDatabase::addDatabase(m_isSQLite ? QStringLiteral("QSQLITE") : QStringLiteral("QPSQL"), name);
    database.setDatabaseName(databaseName);
    if (m_isSQLite) {
        database.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=0"));
    } else {
        database.setHostName(environment("BILLORA_TEST_PGHOST"));
        database.setPort(environment("BILLORA_TEST_PGPORT").toInt());
        database.setUserName(environment("BILLORA_TEST_PGUSER"));
    }
    if (!database.open())
        qFatal("%s", qPrintable(database.lastError().text()));
    return database;
}

QSqlDatabase TestDatabase::other() const { return connection(m_name); }

void TestDatabase::createEmpty()
{
    if (!m_isSQLite &&
        !QSqlQuery(connection(QStringLiteral("postgres"))).exec(QStringLiteral("CREATE DATABASE %1").arg(m_name)))
        qFatal("cannot create %s", qPrintable(m_name));
}

void TestDatabase::run(const QString &sql) const
{
    QSqlQuery query(other());
    if (!query.exec(sql))
        QTest::qFail(qPrintable(sql + QLatin1Char(' ') + query.lastError().text()), __FILE__, __LINE__);
}

QStringList TestDatabase::rows(const QString &sql) const
{
    QSqlQuery query(other());
    if (!query.exec(sql))
        QTest::qFail(qPrintable(sql + QLatin1Char(' ') + query.lastError().text()), __FILE__, __LINE__);
    QStringList rows;
    while (query.next()) {
        QStringList values;
        for (int i = 0; i < query.record().count(); ++i) {
            const QVariant value = query.value(i);
            const bool isFlag = value.type() == QVariant::Bool;
            values.append(value.isNull() ? QStringLiteral("NULL")
                          : isFlag       ? QString::number(value.toInt())
                                         : value.toString());
        }
        rows.append(values.join(QLatin1Char('|')));
    }
    return rows;
}

void TestDatabase::clear()
{
    for (const char *table :
         {"settings", "customer", "product", "bank_account", "invoice", "invoice_item", "payment", "print_script"})
        run((m_isSQLite ? QStringLiteral("DELETE FROM %1") : QStringLiteral("TRUNCATE %1 RESTART IDENTITY"))
                .arg(QLatin1String(table)));
}

TestDatabase &TestDatabases::opened(const QString &backend)
{
    const auto [it, isNew] = m_databases.try_emplace(backend, backend);
    if (isNew && !it->second.open())
        qFatal("%s", qPrintable(it->second.database()->lastError()));
    return it->second;
}

void addBackends()
{
    QTest::addColumn<QString>("backend");
    QTest::newRow("sqlite") << "sqlite";
    QTest::newRow("postgresql") << "postgresql";
}

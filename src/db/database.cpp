#include "database.h"

#include "databasecheck.h"
#include "keytable.h"
#include "query.h"
#include "schemaupgrade.h"

#include <QFile>
#include <QRegularExpression>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QTextStream>

#include <memory>

// A resource in a static library is linked only when it is named; the macro does not work inside a namespace or class.
static void initSqlResource() { Q_INIT_RESOURCE(sql); }

Database::Database(const QString &connectionName, QObject *parent) : QObject(parent), m_connectionName(connectionName)
{
}

Database::~Database() = default;

void Database::close() { QSqlDatabase::removeDatabase(m_connectionName); }

QSqlDatabase Database::connection(bool open) const { return QSqlDatabase::database(m_connectionName, open); }

bool Database::transaction()
{
    m_lastError.clear();
    return connection(false).transaction();
}

bool Database::commit()
{
    m_lastError.clear();
    return connection(false).commit();
}

bool Database::rollback() { return connection(false).rollback(); }

QString Database::lastError() const
{
    return m_lastError.isEmpty() ? connection(false).lastError().text().trimmed() : m_lastError;
}

bool Database::fail(const QString &message)
{
    m_lastError = message.trimmed();
    return false;
}

bool Database::readCreationScript(QStringList &statements)
{
    initSqlResource();
    QFile file(creationScript());
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return fail(file.errorString());
    QTextStream stream(&file);
    QString line; // each holds one statement
    while (stream.readLineInto(&line)) {
        if (!line.trimmed().isEmpty())
            statements.append(line);
    }
    return true;
}

bool Database::createTables(const QString &sellerName)
{
    QStringList statements;
    if (!readCreationScript(statements))
        return false;
    // In one transaction: a creation that fails leaves nothing to trip over.
    if (!transaction())
        return fail(connection(false).lastError().text());
    QSqlQuery statement(connection(false));
    for (const QString &sql : qAsConst(statements)) {
        if (!statement.exec(sql)) {
            fail(statement.lastError().text());
            rollback();
            return false;
        }
    }
    const std::unique_ptr<Query> records(query());
    if (!records->addInitialData(sellerName)) {
        fail(records->lastError());
        rollback();
        return false;
    }
    return commit() || fail(connection(false).lastError().text());
}

bool Database::beginUpgradeStep(QSqlQuery &, int, bool &)
{
    return transaction() || fail(connection(false).lastError().text());
}

bool Database::upgradeStep(QSqlQuery &query, int fromVersion)
{
    // All of a step or nothing: the version number tells what is there.
    bool isDone = false;
    if (!beginUpgradeStep(query, fromVersion, isDone))
        return false;
    if (isDone)
        return true;
    const QStringList statements = SchemaUpgrade::statements(fromVersion, isSQLite());
    for (const QString &sql : statements) {
        // A step that other programs left half done is completed; a failure of the last one is told as they do.
        const bool isThere = fromVersion < schemaVersion - 1 && isAddedColumn(sql);
        if (!isThere && !query.exec(sql)) {
            fail(query.lastError().text());
            query.finish();
            rollback();
            return false;
        }
    }
    query.finish();
    return connection(false).commit() || fail(connection(false).lastError().text());
}

/** Whether the statement adds a column that is there already. */
bool Database::isAddedColumn(const QString &sql) const
{
    static const QRegularExpression addition(QStringLiteral("^ALTER TABLE (\\w+) ADD (\\w+) "));
    const QRegularExpressionMatch match = addition.match(sql);
    return match.hasMatch() && connection(false).record(match.captured(1)).contains(match.captured(2));
}

KeyTable Database::keys() const { return KeyTable(connection(false)); }

DatabaseCheck Database::check() const { return DatabaseCheck(connection(false), cursor(), isSQLite()); }

bool Database::optimize(QStringList &added)
{
    QStringList statements;
    if (!readCreationScript(statements))
        return false;
    QSqlQuery query(connection(false));
    if (!query.exec(isSQLite()
                        ? QStringLiteral("SELECT name FROM sqlite_master WHERE type = 'index'")
                        : QStringLiteral("SELECT indexname FROM pg_indexes WHERE schemaname = current_schema()")))
        return fail(query.lastError().text());
    QStringList existing;
    while (query.next())
        existing.append(query.value(0).toString());
    for (const QString &sql : qAsConst(statements)) {
        const QString name = sql.section(QLatin1Char(' '), 2, 2);
        if (!sql.startsWith(QLatin1String("CREATE INDEX ")) || existing.contains(name))
            continue;
        if (!query.exec(sql))
            return fail(query.lastError().text());
        added.append(name);
    }
    return query.exec(QStringLiteral("ANALYZE")) || fail(query.lastError().text());
}

bool Database::backupTo(const QString &)
{
    return fail(tr("Varmuuskopio tehdään vain SQLite-tietokannasta; käytä ohjelmaa pg_dump"));
}

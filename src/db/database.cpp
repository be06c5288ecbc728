#include "database.h"

#include "cursor.h"
#include "databasecheck.h"
#include "keytable.h"
#include "query.h"
#include "schemaupgrade.h"

#include <QFile>
#include <QRegularExpression>
#include <QTextStream>

#include <memory>

// A resource in a static library is linked only when it is named; the macro does not work inside a namespace or class.
static void initSqlResource() { Q_INIT_RESOURCE(sql); }

Database::~Database() = default;

bool Database::fail(const QString &message)
{
    m_lastError = message.trimmed();
    return false;
}

bool Database::run(const QString &sql)
{
    const std::unique_ptr<Cursor> statement = cursor();
    return statement->execute(sql, {}) || fail(statement->lastError());
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
        return false;
    for (const QString &sql : qAsConst(statements)) {
        if (!run(sql)) {
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
    return commit();
}

bool Database::beginUpgradeStep(int, bool &) { return transaction(); }

bool Database::upgradeStep(int fromVersion)
{
    // All of a step or nothing: the version number tells what is there.
    bool isDone = false;
    if (!beginUpgradeStep(fromVersion, isDone))
        return false;
    if (isDone)
        return true;
    const QStringList statements = SchemaUpgrade::statements(fromVersion, isSQLite());
    for (const QString &sql : statements) {
        // A step that other programs left half done is completed; a failure of the last one is told as they do.
        const bool isThere = fromVersion < schemaVersion - 1 && isAddedColumn(sql);
        if (!isThere && !run(sql)) {
            rollback();
            return false;
        }
    }
    return commit();
}

/** Whether the statement adds a column that is there already. */
bool Database::isAddedColumn(const QString &sql) const
{
    static const QRegularExpression addition(QStringLiteral("^ALTER TABLE (\\w+) ADD (\\w+) "));
    const QRegularExpressionMatch match = addition.match(sql);
    return match.hasMatch() && columnsOf(match.captured(1)).contains(match.captured(2), Qt::CaseInsensitive);
}

KeyTable Database::keys() const { return KeyTable(*this); }

DatabaseCheck Database::check() const { return DatabaseCheck(*this); }

bool Database::optimize(QStringList &added)
{
    QStringList statements;
    if (!readCreationScript(statements))
        return false;
    const std::unique_ptr<Cursor> indexes = cursor();
    QStringList existing;
    const bool isRead = indexes->execute(
        isSQLite() ? QStringLiteral("SELECT name FROM sqlite_master WHERE type = 'index'")
                   : QStringLiteral("SELECT indexname FROM pg_indexes WHERE schemaname = current_schema()"),
        {});
    while (isRead && indexes->next())
        existing.append(indexes->text(0));
    if (!isRead || indexes->hasError())
        return fail(indexes->lastError());
    for (const QString &sql : qAsConst(statements)) {
        const QString name = sql.section(QLatin1Char(' '), 2, 2);
        if (!sql.startsWith(QLatin1String("CREATE INDEX ")) || existing.contains(name))
            continue;
        if (!run(sql))
            return false;
        added.append(name);
    }
    return run(QStringLiteral("ANALYZE"));
}

bool Database::backupTo(const QString &)
{
    return fail(tr("Varmuuskopio tehdään vain SQLite-tietokannasta; käytä ohjelmaa pg_dump"));
}

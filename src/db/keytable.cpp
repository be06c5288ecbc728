#include "keytable.h"

#include "sqltext.h"

#include <QDateTime>
#include <QSqlDriver>
#include <QSqlError>
#include <QSqlQuery>
#include <QStringList>
#include <QVariant>

bool KeyTable::exists() const { return m_connection.tables().contains(QStringLiteral("billora_key")); }

bool KeyTable::find(const QString &key, Entry &entry, bool &isFound)
{
    isFound = false;
    if (!exists())
        return true;
    QSqlQuery query(m_connection);
    const QString sql = QStringLiteral("SELECT digest, record_id FROM billora_key WHERE name = ?");
    if (!query.exec(SqlText::filled(*m_connection.driver(), sql, {key}))) {
        m_lastError = query.lastError().text();
        return false;
    }
    isFound = query.next();
    if (isFound)
        entry = {query.value(0).toString(), query.value(1).toInt()};
    return true;
}

bool KeyTable::add(const QString &key, const Entry &entry)
{
    QSqlQuery query(m_connection);
    bool ok =
        exists() || query.exec(QStringLiteral("CREATE TABLE billora_key (name varchar(200) PRIMARY KEY, digest "
                                              "varchar(64) NOT NULL, record_id integer NOT NULL, made varchar(40) "
                                              "NOT NULL)"));
    if (ok) {
        const QString sql =
            QStringLiteral("INSERT INTO billora_key (name, digest, record_id, made) VALUES (?, ?, ?, ?)");
        const QString now = QDateTime::currentDateTimeUtc().toString(Qt::ISODate);
        ok = query.exec(SqlText::filled(*m_connection.driver(), sql, {key, entry.digest, entry.recordId, now}));
    }
    if (!ok)
        m_lastError = query.lastError().text();
    return ok;
}

#include "keytable.h"

#include "cursor.h"
#include "database.h"

#include <QDateTime>

KeyTable::KeyTable(const Database &database) : m_database(database), m_cursor(database.cursor()) {}

KeyTable::~KeyTable() = default;

bool KeyTable::exists() const { return m_database.hasTable(QStringLiteral("billora_key")); }

bool KeyTable::fail()
{
    m_lastError = m_cursor->lastError();
    return false;
}

bool KeyTable::find(const QString &key, Entry &entry, bool &isFound)
{
    isFound = false;
    if (!exists())
        return true;
    if (!m_cursor->execute(QStringLiteral("SELECT digest, record_id FROM billora_key WHERE name = ?"), {key}))
        return fail();
    isFound = m_cursor->next();
    if (isFound)
        entry = {m_cursor->text(0), m_cursor->integer(1)};
    const bool isRead = isFound || !m_cursor->hasError() || fail();
    m_cursor->finish();
    return isRead;
}

bool KeyTable::add(const QString &key, const Entry &entry)
{
    if (!exists() &&
        !m_cursor->execute(QStringLiteral("CREATE TABLE billora_key (name varchar(200) PRIMARY KEY, digest "
                                          "varchar(64) NOT NULL, record_id integer NOT NULL, made varchar(40) "
                                          "NOT NULL)"),
                           {}))
        return fail();
    const QString now = QDateTime::currentDateTimeUtc().toString(Qt::ISODate);
    return m_cursor->execute(
               QStringLiteral("INSERT INTO billora_key (name, digest, record_id, made) VALUES (?, ?, ?, ?)"),
               {key, entry.digest, entry.recordId, now}) ||
           fail();
}

#ifndef KEYTABLE_H
#define KEYTABLE_H

#include <QSqlDatabase>
#include <QString>

/**
 * The keys that requests were made under, so that a repeat is harmless: the table `billora_key`, made at the first key.
 * Other programs of the system do not look at it; the schema's version stays. Failures leave their text in lastError().
 */
class KeyTable {
public:
    /** A request that was done. */
    struct Entry {
        QString digest;   ///< of the request: SHA-256 in hexadecimal
        int recordId = 0; ///< of what it saved; 0 for none
    };

    explicit KeyTable(const QSqlDatabase &connection) : m_connection(connection) {} ///< an open connection, shared

    /** @param isFound  set to whether the key was used before */
    [[nodiscard]] bool find(const QString &key, Entry &entry, bool &isFound);
    /** The key must be new, of at most 200 characters; makes the table when it is missing. For use in a transaction. */
    [[nodiscard]] bool add(const QString &key, const Entry &entry);

    QString lastError() const { return m_lastError; } ///< empty before a failure

private:
    bool exists() const; ///< the table

    QSqlDatabase m_connection; ///< open
    QString m_lastError;       ///< of the last failure
};

#endif

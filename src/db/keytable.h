#ifndef KEYTABLE_H
#define KEYTABLE_H

#include <QString>

#include <memory>

class Cursor;
class Database;

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

    explicit KeyTable(const Database &database); ///< open, outlives this
    ~KeyTable();

    /** @param isFound  set to whether the key was used before */
    [[nodiscard]] bool find(const QString &key, Entry &entry, bool &isFound);
    /** The key must be new, of at most 200 characters; makes the table when it is missing. For use in a transaction. */
    [[nodiscard]] bool add(const QString &key, const Entry &entry);

    QString lastError() const { return m_lastError; } ///< empty before a failure

private:
    bool exists() const; ///< the table
    bool fail();         ///< keeps the text of the last statement. @return false

    const Database &m_database;       ///< not owned
    std::unique_ptr<Cursor> m_cursor; ///< for all statements
    QString m_lastError;              ///< of the last failure
};

#endif

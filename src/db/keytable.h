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
    struct Entry {
        QString digest; ///< of the request
        int recordId = 0;
    };

    explicit KeyTable(const QSqlDatabase &connection) : m_connection(connection) {}

    /** @param isFound  set to whether the key was used before */
    [[nodiscard]] bool find(const QString &key, Entry &entry, bool &isFound);
    [[nodiscard]] bool add(const QString &key, const Entry &entry);

    QString lastError() const { return m_lastError; }

private:
    bool exists() const;

    QSqlDatabase m_connection;
    QString m_lastError;
};

#endif

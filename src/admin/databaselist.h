#ifndef DATABASELIST_H
#define DATABASELIST_H

#include <QList>
#include <QString>
#include <QVariantMap>

class QSettings;

/** The settings file's list of databases, which the graphical edition shares: unknown keys of an entry are kept. */
class DatabaseList {
public:
    /** Reads the list. @param settings  not owned, outlives the list */
    explicit DatabaseList(QSettings *settings);

    /** An entry's keys: number, type, filename or host, port, databaseName, username and password, and others. */
    const QList<QVariantMap> &entries() const { return m_entries; }
    int lastUsed() const { return m_lastUsed; } ///< -1 for none
    bool contains(int number) const { return indexOf(number) >= 0; }
    int nextFreeNumber() const;

    void append(const QVariantMap &entry) { m_entries.append(entry); }
    void remove(int number);
    void setLastUsed(int number) { m_lastUsed = number; }

    /** Writes the list back, at once. A new file is readable by its owner alone. @return false when it cannot be */
    [[nodiscard]] bool save();

    static int number(const QVariantMap &entry);
    static bool isPostgreSQL(const QVariantMap &entry);

private:
    int indexOf(int number) const;

    QSettings *m_settings;
    QList<QVariantMap> m_entries;
    int m_lastUsed = -1;
};

#endif

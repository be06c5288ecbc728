#ifndef DATABASELIST_H
#define DATABASELIST_H

#include <QList>
#include <QLockFile>
#include <QSettings>
#include <QString>
#include <QVariantMap>

#include <memory>

/** The settings file's list of databases, which the graphical edition shares: unknown keys of an entry are kept. */
class DatabaseList {
public:
    enum Access { reading, writing };

    /**
     * Reads the list.
     * @param access  writing keeps other programs of this system from writing the list until this object is gone
     */
    DatabaseList(const QString &settingsFile, Access access);

    /** Whether the settings file can be written; its missing folders are made. */
    [[nodiscard]] bool isWritable();

    /** An entry's keys: number, type, filename or host, port, databaseName, username and password, and others. */
    const QList<QVariantMap> &entries() const { return m_entries; }
    int lastUsed() const { return m_lastUsed; } ///< -1 for none
    bool contains(int number) const { return indexOf(number) >= 0; }
    int nextFreeNumber() const; ///< from 1; gaps are filled

    /** In memory until save(); the number of a new entry must be free. */
    void append(const QVariantMap &entry) { m_entries.append(entry); }
    void remove(int number);                              ///< also no longer the last used one
    void setLastUsed(int number) { m_lastUsed = number; } ///< need not be in the list; -1 for none

    /** Writes the list back, at once. A new file is readable by its owner alone. @return false when it cannot be */
    [[nodiscard]] bool save();

    static int number(const QVariantMap &entry);        ///< 0 for none
    static bool isPostgreSQL(const QVariantMap &entry); ///< the type in any letter case; every other one is SQLite

private:
    int indexOf(int number) const; ///< -1 for none

    void read(); ///< the whole list, once

    std::unique_ptr<QLockFile> m_lock;     ///< null while reading only
    std::unique_ptr<QSettings> m_settings; ///< of the file; also writes it
    QList<QVariantMap> m_entries;          ///< in the order of the file
    int m_lastUsed = -1;                   ///< -1 for none
};

#endif

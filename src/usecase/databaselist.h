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

    void read();

    std::unique_ptr<QLockFile> m_lock; ///< null while reading only
    std::unique_ptr<QSettings> m_settings;
    QList<QVariantMap> m_entries;
    int m_lastUsed = -1;
};

#endif

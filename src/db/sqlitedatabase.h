#ifndef SQLITEDATABASE_H
#define SQLITEDATABASE_H

#include "database.h"

#include <memory>
#include <optional>

class SQLiteCursor;
struct sqlite3;

/** The embedded backend: one SQLite file, copied to a time-stamped backup beside it before every upgrade step. */
class SQLiteDatabase : public Database {
    Q_OBJECT
public:
    explicit SQLiteDatabase(QObject *parent = nullptr); ///< opens nothing
    ~SQLiteDatabase() override;

    /** Reads the keys "filename" and, for a new database, "name" (the seller's name). */
    bool open(QSettings *settings) override;
    void close() override; ///< statements of the caller must be gone before
    bool transaction() override;
    bool commit() override;
    bool rollback() override;
    bool beginWriting() override;                          ///< waits up to five seconds for another program's lock
    bool beginReading() override { return transaction(); } ///< reads see the moment of the first one
    long long foreignChanges() override;                   ///< PRAGMA data_version
    bool backupTo(const QString &filename) override;       ///< with the permissions of the database's own file
    bool isLockError(const QString &reason) const override;
    Query *query() override;
    std::unique_ptr<Cursor> cursor() const override;
    bool hasTable(const QString &name) const override;
    QStringList columnsOf(const QString &table) const override;
    bool isSQLite() const override { return true; }
    std::unique_ptr<JournalStore> journal() const override; ///< see JournalFile

    /**
     * @return the name itself when no such file exists, else the first free name with "-1", "-2", … before the suffix
     * (all that follows the first dot of the file name)
     */
    static QString appendSuffixToFilename(const QString &name);

protected:
    /** See Database. */
    QString creationScript() const override { return QStringLiteral(":/sql/sqlite.sql"); }

private:
    /** Steps one version at a time, each behind a backup. Another program's upgrade is waited for up to a minute. */
    bool upgrade(const QString &filename);
    /** 0 without a settings row; nothing, with lastError(), when it cannot be read. */
    std::optional<int> storedVersion();
    void backup(const QString &filename) const; ///< a failure does not keep the database from opening
    /** Begins or ends a transaction. @param what  is behind the reason of a failure */
    bool runTransaction(const QString &sql, const char *what);

    struct Closer {
        void operator()(sqlite3 *handle) const;
    };
    std::unique_ptr<sqlite3, Closer> m_handle;  ///< null while closed
    QString m_fileName;                         ///< of the open database
    std::unique_ptr<SQLiteCursor> m_statements; ///< of transactions and of foreignChanges(); null while closed
};

#endif

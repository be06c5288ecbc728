#ifndef POSTGRESQLDATABASE_H
#define POSTGRESQLDATABASE_H

#include "database.h"

class QSqlDatabase;

/** The server backend. Takes no backups: an upgrade happens in place. */
class PostgreSQLDatabase : public Database {
    Q_OBJECT
public:
    explicit PostgreSQLDatabase(QObject *parent = nullptr); ///< connects nothing

    /**
     * Reads the keys "host" (several, with commas between: the one that takes writes), "port" (one for all, or as
     * many), "databaseName", "username", "password", "sslmode", "sslrootcert", "pooled" (a pooler may change the
     * connection from transaction to transaction: nothing is left on it) and, for a new database, "name" (the seller's
     * name). An existing database without tables is filled.
     */
    bool open(QSettings *settings) override;
    bool isRemote() const override { return true; }
    void close() override;
    bool transaction() override;
    bool commit() override;
    bool rollback() override;
    bool beginWriting() override; ///< waits up to five seconds for the lock that all writers of this program take
    bool beginReading() override; ///< repeatable read, read only
    Query *query() override;      ///< see PostgreSQLQuery
    std::unique_ptr<Cursor> cursor() const override;
    bool hasTable(const QString &name) const override;
    QStringList columnsOf(const QString &table) const override;
    bool isSQLite() const override { return false; }
    bool isLockError(const QString &reason) const override;
    std::unique_ptr<JournalStore> journal() const override; ///< see JournalTable

protected:
    /** See Database. */
    QString creationScript() const override { return QStringLiteral(":/sql/postgresql.sql"); }

private:
    /** Outcomes of upgrade() that are not a schema version. */
    enum { noTables = -2, upgradeFailed = -1, noSettingsRow = 0 };

    /** Takes lower-case names of letters, digits and underscores alone: they stand unquoted in the statement. */
    bool createDatabase(QSqlDatabase &database, const QString &name);
    int upgrade();                ///< @return the schema version that is reached, or one of the outcomes above
    int upgradeFrom(int version); ///< @return as upgrade()
    /** With the lock of all writers, which ends with the step. */
    bool beginUpgradeStep(int fromVersion, bool &isDone) override;
    bool limitWaiting(const char *scope); ///< of a statement for another client's lock. @param scope  SESSION or LOCAL

    QSqlDatabase connection() const; ///< the library's own of its list
    bool failConnection();           ///< @return false, with its text kept for lastError()

    bool m_isPooled = false; ///< see open()
};

#endif

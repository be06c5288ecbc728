#ifndef DATABASE_H
#define DATABASE_H

#include <QObject>
#include <QString>
#include <QStringList>

#include <memory>

class Cursor;
class DatabaseCheck;
class JournalStore;
class KeyTable;
class Query;
class QSettings;

/**
 * An open database of the invoicing system: one connection, brought up to the current schema version. Operations
 * report failure by false (or an empty result), with the text in lastError().
 */
class Database : public QObject {
    Q_OBJECT
public:
    /** The version that this program writes and upgrades to. */
    static constexpr int schemaVersion = 10;

    ~Database() override;

    /**
     * Opens the database that the settings object is positioned on, creates it where that is allowed, and upgrades an
     * older schema.
     * @return false when it cannot be opened; a missing SQLite file gives true with exists() false
     */
    [[nodiscard]] virtual bool open(QSettings *settings) = 0;
    virtual void close() = 0; ///< drops the connection; statements made of it must be gone before

    /** A missing database is made by open(); otherwise it is not, and exists() tells. */
    void setCreateIfNotExist(bool create) { m_createIfNotExist = create; }
    bool isCreateIfNotExist() const { return m_createIfNotExist; }
    /** What open() does with an older schema: upgrade it, fail, or leave it as it is, for a look at its version. */
    enum class OlderSchema { upgraded, refused, kept };
    void setOlderSchema(OlderSchema older) { m_olderSchema = older; }
    /** The version that open() found, before any upgrade; 0 when there was none to read. */
    int foundVersion() const { return m_foundVersion; }
    /** A glance opens an SQLite file for reading only and fails at once where another program holds it. */
    void setGlance(bool isGlance) { m_isGlance = isGlance; }

    /** Whether the connection can go while the program runs. */
    virtual bool isRemote() const { return false; }

    /** @return whether the database existed before open() or was created by it */
    bool exists() const { return m_exists; }

    /** Not nested; the first two leave the reason of a failure in lastError(). */
    [[nodiscard]] virtual bool transaction() = 0;
    [[nodiscard]] virtual bool commit() = 0;
    virtual bool rollback() = 0;

    /**
     * Begins a transaction that reads and then writes, and waits for other writers of this program to finish theirs:
     * what it reads stays true until the commit, so that no number is given twice.
     */
    [[nodiscard]] virtual bool beginWriting() = 0;
    /** Begins a transaction whose reads all see the same moment. */
    [[nodiscard]] virtual bool beginReading() = 0;

    /**
     * @return a number that changes whenever another connection commits a change, and only then; -1 when the backend
     * cannot tell
     */
    virtual long long foreignChanges() { return -1; }

    /** The keys of requests, on this connection. */
    KeyTable keys() const;
    /** The journal of sent documents: beside an SQLite file, in a table of PostgreSQL. Uses this connection. */
    virtual std::unique_ptr<JournalStore> journal() const = 0;
    /** A look at file, schema and books, on this connection. */
    DatabaseCheck check() const;
    /**
     * Adds the indexes that a database made elsewhere lacks and refreshes the planner's statistics; columns and data
     * stay as they are.
     * @param added  the names of the indexes made
     */
    [[nodiscard]] bool optimize(QStringList &added);
    /** Copies the database, consistent while others write, to a file that must not exist. SQLite only. */
    [[nodiscard]] virtual bool backupTo(const QString &filename);

    /** Whether the text of a failure tells of another program's lock. */
    virtual bool isLockError(const QString &reason) const = 0;
    /** The text of the last failure. */
    QString lastError() const { return m_lastError; }

    /** @return a new statement on this connection, owned by the caller */
    virtual Query *query() = 0;
    /** A new one on this connection, which must be open. */
    virtual std::unique_ptr<Cursor> cursor() const = 0;
    virtual bool hasTable(const QString &name) const = 0;
    /** The names of its columns, none for a table that is not there. */
    virtual QStringList columnsOf(const QString &table) const = 0;
    /** Whether one answer may be read while another one of the connection stands open. */
    bool readsTogether() const { return isSQLite(); }
    /** The variant of the statements that the backends do not share. */
    virtual bool isSQLite() const = 0;

protected:
    explicit Database(QObject *parent) : QObject(parent) {} ///< opens nothing

    /** Runs a statement without an answer. @return false with its text kept for lastError() */
    bool run(const QString &sql);
    /** Runs the creation script, then writes the first records. */
    bool createTables(const QString &sellerName);
    /**
     * Runs the statements of the step from a version to the next, up to the first that fails.
     * @return the outcome of the last statement run
     */
    bool upgradeStep(int fromVersion);
    /** Begins the transaction of a step. @param isDone  another program has done it: nothing is begun */
    virtual bool beginUpgradeStep(int fromVersion, bool &isDone);
    bool isAddedColumn(const QString &sql) const;
    /** The statements of the creation script. @return false when the resource cannot be read */
    bool readCreationScript(QStringList &statements);
    /** Sets the text of lastError() and returns false. */
    bool fail(const QString &message);

    virtual QString creationScript() const = 0; ///< a resource

    bool m_createIfNotExist = false;                   ///< see setCreateIfNotExist()
    bool m_exists = false;                             ///< see exists()
    bool m_isGlance = false;                           ///< see setGlance()
    int m_foundVersion = 0;                            ///< see foundVersion()
    OlderSchema m_olderSchema = OlderSchema::upgraded; ///< see setOlderSchema()

private:
    QString m_lastError; ///< see lastError()
};

#endif

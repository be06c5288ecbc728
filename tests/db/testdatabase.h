#ifndef TESTDATABASE_H
#define TESTDATABASE_H

#include <QSettings>
#include <QSqlDatabase>
#include <QTemporaryDir>

#include <map>
#include <memory>

class Database;
class Query;

/**
 * A database of a test's own: an SQLite file in a temporary folder, or a database on the server that tests/pg-server
 * has started. Gone with the object. Without a server the test fails, it does not skip.
 */
class TestDatabase {
public:
    /** @param backend  "sqlite" or "postgresql"; nothing is created yet */
    explicit TestDatabase(const QString &backend);
    ~TestDatabase();

    /** Opens it through the class under test. @return what Database::open() returns */
    bool open(bool create = true);
    void close();

    Database *database() const { return m_database.get(); }
    std::unique_ptr<Query> query() const;
    /** The keys that Database::open() reads, free to be changed before. */
    QSettings &settings() { return m_settings; }
    QString folder() const { return m_folder.path(); }

    /** Creates the database without any table. */
    void createEmpty();
    /** A connection beside the one under test, as another program has it. */
    QSqlDatabase other() const;
    /** Runs a statement on that connection; fails the test when it does. */
    void run(const QString &sql) const;
    /** All rows of a SELECT on that connection, columns joined by "|": 1 and 0 for flags, NULL for NULL. */
    QStringList rows(const QString &sql) const;
    /** Empties all tables; ids begin at 1 again. */
    void clear();

    bool isSQLite() const { return m_isSQLite; }

private:
    QSqlDatabase connection(const QString &databaseName) const;

    const bool m_isSQLite;
    QTemporaryDir m_folder;
    QSettings m_settings;
    QString m_name; ///< of the file or of the server's database; of the connection beside
    std::unique_ptr<Database> m_database;
};

/** The databases of a test class, one for each backend, created when first asked for. */
class TestDatabases {
public:
    TestDatabase &opened(const QString &backend);

private:
    std::map<QString, TestDatabase> m_databases;
};

/** Global data rows: every test runs once for each backend. */
void addBackends();

#endif

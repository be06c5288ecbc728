#include "bankaccount.h"
#include "customer.h"
#include "database.h"
#include "invoice.h"
#include "invoiceitem.h"
#include "product.h"
#include "query.h"
#include "schemacolumns.h"
#include "sqlitedatabase.h"
#include "testdatabase.h"

#include <QSqlQuery>
#include <QtTest>

class SchemaTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase_data() { addBackends(); }
    void newDatabase();
    void upgrade_data();
    void upgrade();
    void otherVersions_data();
    void otherVersions();
    void failedSteps_data();
    void failedSteps();
    void freeBackupName();

private:
    /** A database as a program of that schema version left it, with a record in the tables that upgrades touch. */
    static void build(TestDatabase &database, int version);
    static QStringList columns(const TestDatabase &database, const char *table);
    static QStringList backupVersions(const TestDatabase &database);
};

/** @param from  the version that the schema was upgraded from */
static QString definition(const SchemaColumn &column, bool sqlite, int from)
{
    if (column.before9 && from < 9 && sqlite) // SQLite takes 64-bit values in the columns as they are
        return QLatin1String(column.before9);
    return QLatin1String(sqlite || !column.postgresql ? column.sqlite : column.postgresql);
}

void SchemaTest::build(TestDatabase &database, int version)
{
    database.createEmpty();
    QVERIFY(database.other().transaction()); // one wait for the disk instead of fifteen
    for (const char *table : schemaTables) {
        const QString name = QLatin1String(table);
        QStringList parts;
        if (name != QLatin1String("settings"))
            parts.append(database.isSQLite() ? QStringLiteral("id integer PRIMARY KEY")
                                             : QStringLiteral("id serial PRIMARY KEY")); // its sequence: TABLE_id_seq
        for (const SchemaColumn &column : schemaColumns) {
            if (name != QLatin1String(column.table) || column.since > version)
                continue;
            const bool old = version < 9 && column.before9;
            parts.append(QLatin1String(column.name) + QLatin1Char(' ') +
                         definition(column, old || database.isSQLite(), version));
        }
        database.run(QStringLiteral("CREATE TABLE %1 (%2)").arg(name, parts.join(QLatin1String(", "))));
    }
    const QString scale = version < 9 ? QString() : QStringLiteral("00");
    database.run(QStringLiteral("INSERT INTO settings (version, seller_name, properties) VALUES (%1, 'S', 'a=b\n')")
                     .arg(version));
    database.run(QStringLiteral("INSERT INTO customer (number, name, deleted) VALUES (5, 'Virtanen', false)"));
    database.run(QStringLiteral("INSERT INTO product (number, amount) VALUES ('A1', 1250%1)").arg(scale));
    database.run(QStringLiteral("INSERT INTO bank_account (name, deleted) VALUES ('Pankki', false)"));
    database.run(QStringLiteral("INSERT INTO invoice (number, total_amount, balance) VALUES (7, 2500, 2499)"));
    database.run(
        QStringLiteral("INSERT INTO invoice_item (invoice_id, quantity, amount) VALUES (1, 200%1, 1250%1)").arg(scale));
    database.run(QStringLiteral("INSERT INTO payment (invoice_id, amount) VALUES (1, 1)"));
    QVERIFY(database.other().commit());
}

QStringList SchemaTest::columns(const TestDatabase &database, const char *table)
{
    const auto sql =
        database.isSQLite()
            ? QStringLiteral(
                  "SELECT name || ' ' || lower(type) || CASE \"notnull\" WHEN 1 THEN ' NOT NULL' ELSE '' END || "
                  "coalesce(' DEFAULT ' || dflt_value, '') FROM pragma_table_info('%1') ORDER BY name")
            : QStringLiteral(
                  "SELECT column_name || ' ' || coalesce('varchar(' || character_maximum_length || ')', data_type) || "
                  "CASE is_nullable WHEN 'NO' THEN ' NOT NULL' ELSE '' END || coalesce(' DEFAULT ' || "
                  "regexp_replace(column_default, '::[a-z ]+$', ''), '') FROM information_schema.columns "
                  "WHERE table_name = '%1' ORDER BY column_name");
    QStringList list = database.rows(sql.arg(QLatin1String(table)));
    list.sort();
    return list;
}

static QStringList expectedColumns(const char *table, bool sqlite, int from = 10)
{
    QStringList list;
    const QString name = QLatin1String(table);
    for (const SchemaColumn &column : schemaColumns) {
        if (name == QLatin1String(column.table))
            list.append(QLatin1String(column.name) + QLatin1Char(' ') + definition(column, sqlite, from));
    }
    if (name != QLatin1String("settings"))
        list.append(sqlite ? QStringLiteral("id integer")
                           : QStringLiteral("id integer NOT NULL DEFAULT nextval('%1_id_seq'::regclass)").arg(name));
    list.sort();
    return list;
}

void SchemaTest::newDatabase()
{
    QFETCH_GLOBAL(QString, backend);
    TestDatabase database(backend);
    QVERIFY2(database.open(), qPrintable(database.database()->lastError()));
    QVERIFY(database.database()->exists());
    for (const char *table : schemaTables)
        QCOMPARE(columns(database, table), expectedColumns(table, database.isSQLite()));
    QCOMPARE(database.rows(QStringLiteral("SELECT version, seller_name FROM settings")),
             QStringList(QString::fromUtf8(u8"10|Myyjä Oy")));
    QCOMPARE(database.rows(QStringLiteral("SELECT number, name FROM product")),
             QStringList(QString::fromUtf8(u8"999|Viivästyskorko")));
    database.close();
    QVERIFY(database.open()); // and not filled a second time
    QCOMPARE(database.rows(QStringLiteral("SELECT count(*) FROM product")), QStringList("1"));
}

QStringList SchemaTest::backupVersions(const TestDatabase &database)
{
    QStringList versions;
    const QDir folder(database.folder());
    for (const QString &name : folder.entryList({QStringLiteral("backup-*")})) {
        const QRegularExpression pattern(QStringLiteral("^backup-\\d{8}-\\d{6}(-\\d+)?\\.sqlite$"));
        if (!pattern.match(name).hasMatch())
            return {name};
        {
            QSqlDatabase backup = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
            backup.setDatabaseName(folder.filePath(name));
            QSqlQuery query(QString(), backup);
            if (backup.open() && query.exec(QStringLiteral("SELECT version FROM settings")) && query.next())
                versions.append(query.value(0).toString());
        }
        QSqlDatabase::removeDatabase(name);
    }
    versions.sort();
    return versions;
}

void SchemaTest::upgrade_data()
{
    QTest::addColumn<int>("version");
    for (int version = 1; version <= 10; ++version)
        QTest::addRow("from %d", version) << version;
}

void SchemaTest::upgrade()
{
    QFETCH_GLOBAL(QString, backend);
    QFETCH(int, version);
    TestDatabase database(backend);
    build(database, version);
    QVERIFY2(database.open(false), qPrintable(database.database()->lastError()));
    QVERIFY(database.database()->exists());

    QStringList expectedBackups;
    for (int v = version; v < 10 && database.isSQLite(); ++v)
        expectedBackups.append(QString::number(v));
    QCOMPARE(backupVersions(database), expectedBackups);

    QCOMPARE(database.rows(QStringLiteral("SELECT version FROM settings")), QStringList("10"));
    for (const char *table : schemaTables)
        QCOMPARE(columns(database, table), expectedColumns(table, database.isSQLite(), version));
    QCOMPARE(
        database.rows(QStringLiteral("SELECT total_amount, balance, properties, delivery_date, tags FROM invoice")),
        QStringList("2500|2499||NULL|0"));
    QCOMPARE(database.rows(QStringLiteral("SELECT amount FROM payment")), QStringList("1"));

    const auto query = database.query();
    Product product;
    QVERIFY(query->fetchProducts() && query->next());
    query->product(&product);
    QCOMPARE(product.amount, 125000LL); // 12.50, now with four decimals
    QVERIFY(!product.vatExcluded && product.category.isEmpty());
    InvoiceItem item;
    QVERIFY(query->fetchInvoiceItems(1) && query->next());
    query->invoiceItem(&item);
    QCOMPARE(item.quantity, 20000LL);
    QCOMPARE(item.amount, 125000LL);
    QVERIFY(!item.vatExcluded && item.discount == 0);
    Customer customer;
    QVERIFY(query->fetchCustomers() && query->next());
    query->customer(&customer);
    QCOMPARE(customer.name + customer.contact + customer.vatNumber + customer.paymentTerms, QStringLiteral("Virtanen"));
    BankAccount account;
    QVERIFY(query->fetchBankAccounts() && query->next());
    query->bankAccount(&account);
    QVERIFY(account.visible);
    customer.id = -1;
    QVERIFY2(query->saveCustomer(&customer), qPrintable(query->lastError()));
    QCOMPARE(customer.id, 2);
}

void SchemaTest::otherVersions_data()
{
    QTest::addColumn<QString>("change");
    QTest::newRow("no settings row") << "DELETE FROM settings";
    QTest::newRow("newer") << "UPDATE settings SET version = 11";
    QTest::newRow("zero") << "UPDATE settings SET version = 0";
    QTest::newRow("negative") << "UPDATE settings SET version = -1";
}

void SchemaTest::otherVersions()
{
    QFETCH_GLOBAL(QString, backend);
    QFETCH(QString, change);
    TestDatabase database(backend);
    build(database, 9);
    database.run(change);
    const QStringList before = database.rows(QStringLiteral("SELECT version FROM settings"));
    const bool opens = database.open(false);
    // A negative version is a failure of the upgrade on PostgreSQL only.
    QCOMPARE(opens, database.isSQLite() || before != QStringList("-1"));
    QCOMPARE(database.rows(QStringLiteral("SELECT version FROM settings")), before);
    QVERIFY(!columns(database, "bank_account").join(QString()).contains(QLatin1String("visible")));
    QCOMPARE(backupVersions(database), QStringList());
}

void SchemaTest::failedSteps_data()
{
    QTest::addColumn<QString>("obstacle"); // on a database of version 3
    QTest::addColumn<bool>("opens");
    QTest::addColumn<QString>("version");
    QTest::newRow("an early step") << "ALTER TABLE invoice_item ADD vat_excluded integer" << true << "10";
    QTest::newRow("the last step") << "ALTER TABLE bank_account ADD visible integer" << false << "9";
}

void SchemaTest::failedSteps()
{
    QFETCH_GLOBAL(QString, backend);
    QFETCH(QString, obstacle);
    QFETCH(bool, opens);
    TestDatabase database(backend);
    build(database, 3);
    database.run(obstacle);
    QCOMPARE(database.open(false), opens);
    QVERIFY(opens || !database.database()->lastError().isEmpty());
    QTEST(database.rows(QStringLiteral("SELECT version FROM settings")).value(0), "version");
    if (opens)
        QVERIFY(columns(database, "product").join(QString()).contains(QLatin1String("vat_excluded")));
    if (database.isSQLite())
        QCOMPARE(backupVersions(database).size(), 7);
}

void SchemaTest::freeBackupName()
{
    QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("backup.v1.tar.gz"));
    QCOMPARE(SQLiteDatabase::appendSuffixToFilename(name), name);
    QStringList made;
    for (int i = 0; i < 3; ++i) {
        const QString free = SQLiteDatabase::appendSuffixToFilename(name);
        QFile file(free);
        QVERIFY(file.open(QIODevice::WriteOnly));
        made.append(QFileInfo(free).fileName());
    }
    QCOMPARE(made, QStringList({"backup.v1.tar.gz", "backup-1.v1.tar.gz", "backup-2.v1.tar.gz"}));
}

QTEST_GUILESS_MAIN(SchemaTest)
#include "tst_schema.moc"

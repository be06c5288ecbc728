#include "bankaccount.h"
#include "customer.h"
#include "database.h"
#include "invoice.h"
#include "invoicecriteria.h"
#include "invoiceitem.h"
#include "payment.h"
#include "printscript.h"
#include "product.h"
#include "query.h"
#include "testdatabase.h"

#include <QSqlQuery>
#include <QtTest>

#include <functional>

/** Lists, deletions, numbers and transactions; records are in tst_records, searches in tst_search. */
class QueryTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase_data() { addBackends(); }
    void init();
    void listOrder();
    void deletions();
    void numbers();
    void initialData();
    void idsBesideAnotherProgram();
    void transactions();
    void failures();
    void repeatedStatements();

private:
    template <class Record> QList<int> ids(bool fetched, void (Query::*read)(Record *) const)
    {
        QList<int> ids;
        while (fetched && m_query->next()) {
            Record record;
            ((*m_query).*read)(&record);
            ids.append(record.id);
        }
        return ids;
    }

    TestDatabases m_databases;
    TestDatabase *m_database = nullptr;
    std::unique_ptr<Query> m_query;
};

void QueryTest::init()
{
    QFETCH_GLOBAL(QString, backend);
    m_database = &m_databases.opened(backend);
    m_database->clear();
    m_query = m_database->query();
}

void QueryTest::listOrder()
{
    m_database->run("INSERT INTO customer (id, number, deleted) VALUES (1, 9, false), (2, 10, true), (3, 2, false)");
    m_database->run("INSERT INTO product (id, number) VALUES (1, '9'), (2, '10'), (3, 'a'), (4, 'B')");
    m_database->run("INSERT INTO bank_account (id, row_number, deleted) VALUES (1, 2, true), (2, -1, false)");
    m_database->run("INSERT INTO invoice_item (id, invoice_id, row_number) VALUES (1, 7, 5), (2, 7, 1), (3, 8, 0)");
    m_database->run("INSERT INTO payment (id, invoice_id, date, bank_account_id) VALUES (1, 7, '2015-02-01', 1), "
                    "(2, 7, '2015-01-01', 2), (3, 7, '2015-01-01', 1), (4, 8, '2014-01-01', 1)");
    m_database->run("INSERT INTO print_script (id, type, name) VALUES (1, 'b', 'a'), (2, 'a', 'z'), (3, 'a', 'b')");
    QCOMPARE(ids(m_query->fetchCustomers(), &Query::customer), QList<int>({3, 1, 2})); // the removed one too
    QCOMPARE(ids(m_query->fetchProducts(), &Query::product), QList<int>({2, 1, 4, 3}));
    QCOMPARE(ids(m_query->fetchBankAccounts(), &Query::bankAccount), QList<int>({2, 1}));
    QCOMPARE(ids(m_query->fetchInvoiceItems(7), &Query::invoiceItem), QList<int>({2, 1}));
    QCOMPARE(ids(m_query->fetchPayments(7), &Query::payment), QList<int>({3, 2, 1}));
    QCOMPARE(ids(m_query->fetchPrintScriptSummaries(), &Query::printScriptSummary), QList<int>({3, 2, 1}));
    QCOMPARE(ids(m_query->fetchPrintScriptDetails(), &Query::printScriptDetails), QList<int>({3, 2, 1}));
    QCOMPARE(ids(m_query->fetchInvoiceItem(9), &Query::invoiceItem), QList<int>());
}

void QueryTest::deletions()
{
    m_database->run("INSERT INTO customer (id, deleted) VALUES (1, false), (2, false), (3, false)");
    m_database->run("INSERT INTO bank_account (id, deleted) VALUES (1, false), (2, false), (3, false)");
    m_database->run("INSERT INTO product (id) VALUES (1), (2), (3)");
    m_database->run("INSERT INTO print_script (id) VALUES (1), (2), (3)");
    m_database->run("INSERT INTO invoice (id) VALUES (1), (2), (3), (4), (5)");
    for (const char *table : {"invoice_item", "payment"})
        m_database->run(QStringLiteral("INSERT INTO %1 (id, invoice_id) VALUES (11, 1), (12, 1), (21, 2), (22, 2), "
                                       "(31, 3), (41, 4), (51, 5)")
                            .arg(QLatin1String(table)));
    const struct {
        const char *name;
        std::function<bool()> remove;
        const char *select, *left;
    } cases[] = {
        {"customer", [this] { return m_query->deleteCustomer(2); },
         "SELECT id FROM customer WHERE deleted = false ORDER BY id", "1 3"},
        {"account", [this] { return m_query->deleteBankAccount(2); },
         "SELECT id FROM bank_account WHERE deleted = false ORDER BY id", "1 3"},
        {"kept rows", [] { return true; }, "SELECT count(*) FROM customer UNION ALL SELECT count(*) FROM bank_account",
         "3 3"},
        {"product", [this] { return m_query->deleteProduct(2); }, "SELECT id FROM product ORDER BY id", "1 3"},
        {"script", [this] { return m_query->deletePrintScript(2); }, "SELECT id FROM print_script ORDER BY id", "1 3"},
        {"invoice", [this] { return m_query->deleteInvoice(1); }, "SELECT id FROM invoice ORDER BY id", "2 3 4 5"},
        {"invoices", [this] { return m_query->deleteInvoicesBetween(3, 4); }, "SELECT id FROM invoice ORDER BY id",
         "2 5"},
        {"nothing cascades", [] { return true; },
         "SELECT count(*) FROM invoice_item UNION ALL SELECT count(*) FROM payment", "7 7"},
        {"row", [this] { return m_query->deleteInvoiceItem(11); }, "SELECT id FROM invoice_item ORDER BY id",
         "12 21 22 31 41 51"},
        {"rows", [this] { return m_query->deleteInvoiceItems(2); }, "SELECT id FROM invoice_item ORDER BY id",
         "12 31 41 51"},
        {"rows between", [this] { return m_query->deleteInvoiceItemsBetween(3, 4); },
         "SELECT id FROM invoice_item ORDER BY id", "12 51"},
        {"payment", [this] { return m_query->deletePayment(11); }, "SELECT id FROM payment ORDER BY id",
         "12 21 22 31 41 51"},
        {"payments", [this] { return m_query->deletePayments(2); }, "SELECT id FROM payment ORDER BY id",
         "12 31 41 51"},
        {"payments between", [this] { return m_query->deletePaymentsBetween(3, 4); },
         "SELECT id FROM payment ORDER BY id", "12 51"},
        {"missing", [this] { return m_query->deletePayment(99); }, "SELECT id FROM payment ORDER BY id", "12 51"},
    };
    for (const auto &c : cases) {
        QVERIFY2(c.remove(), c.name);
        QCOMPARE(c.name + QLatin1String(": ") + m_database->rows(c.select).join(QLatin1Char(' ')),
                 c.name + QLatin1String(": ") + c.left);
    }
}

void QueryTest::numbers()
{
    QCOMPARE(m_query->maxInvoiceNumber(), 0);
    QCOMPARE(m_query->maxCustomerNumber(), 0);
    QCOMPARE(m_query->nextRowNumber(7), 0);
    m_database->run("INSERT INTO invoice (number) VALUES (100), (99)");
    m_database->run("INSERT INTO customer (number, deleted) VALUES (5, false), (8, true)");
    m_database->run("INSERT INTO invoice_item (invoice_id, row_number) VALUES (7, 4), (7, 2), (8, 9)");
    QCOMPARE(m_query->maxInvoiceNumber(), 100);
    QCOMPARE(m_query->maxCustomerNumber(), 8);
    QCOMPARE(m_query->nextRowNumber(7), 5);
}

void QueryTest::initialData()
{
    QVERIFY(m_query->addInitialData("Myyjä"));
    QCOMPARE(
        m_database->rows("SELECT version, seller_name, seller_country, seller_logo IS NULL, properties FROM settings"),
        QStringList("10|Myyjä||0|invoiceForm/reminderText=Pyydämme ystävällisesti maksamaan saatavamme. Mikäli "
                    "kuitenkin olette jo suorittaneet tämän laskun, tämä maksumuistutus on aiheeton.\n"
                    "settings/interestOnArrears=800\nsettings/paymentTerms=14 päivää netto\n"
                    "settings/periodForComplaints=8 päivää\nsettings/productForInterestOnArrears=999\n"));
    QCOMPARE(m_database->rows("SELECT number, name, unit_code, amount, vat_rate, vat_excluded, category FROM product"),
             QStringList("999|Viivästyskorko||0|0|0|"));
}

void QueryTest::idsBesideAnotherProgram()
{
    for (const char *name : {"a", "b"}) {
        m_database->run("INSERT INTO customer (number, deleted) VALUES (1, false)");
        Customer customer;
        customer.name = QLatin1String(name);
        QVERIFY(m_query->saveCustomer(&customer));
        QCOMPARE(m_database->rows(QStringLiteral("SELECT id FROM customer WHERE name = '%1'").arg(customer.name)),
                 QStringList(QString::number(customer.id)));
    }
}

void QueryTest::transactions()
{
    Database &database = *m_database->database();
    const QString count = QStringLiteral("SELECT count(*) FROM product");
    for (bool keep : {false, true}) {
        QVERIFY(database.beginWriting());
        Product product;
        QVERIFY(m_query->saveProduct(&product));
        // Another writer of this program is kept out until the end.
        if (m_database->isSQLite())
            QVERIFY(!QSqlQuery(m_database->other()).exec("BEGIN IMMEDIATE"));
        else
            QCOMPARE(m_database->rows("SELECT count(*) FROM pg_locks WHERE locktype = 'advisory'"), QStringList("1"));
        QVERIFY(keep ? database.commit() : database.rollback());
        QCOMPARE(m_database->rows(count), QStringList(keep ? "1" : "0"));
    }
    const long long before = database.foreignChanges();
    QCOMPARE(before < 0, !m_database->isSQLite());
    Product product;
    QVERIFY(m_query->saveProduct(&product));
    QCOMPARE(database.foreignChanges(), before); // its own change is none
    m_database->run("INSERT INTO product (number) VALUES ('x')");
    QCOMPARE(database.foreignChanges() != before, m_database->isSQLite());
}

void QueryTest::failures()
{
    QFETCH_GLOBAL(QString, backend);
    m_database->run("INSERT INTO invoice (number) VALUES (100)");
    m_database->run("ALTER TABLE customer RENAME TO gone");
    Customer customer;
    const bool saved = m_query->saveCustomer(&customer);
    const QString saveError = m_query->lastError();
    const bool fetched = m_query->fetchCustomers();
    const int number = m_query->maxCustomerNumber();
    m_database->run("ALTER TABLE gone RENAME TO customer");
    QVERIFY(!saved && !fetched && !saveError.isEmpty());
    QCOMPARE(customer.id, -1);
    QCOMPARE(number, 0); // the statement cannot even be prepared
    if (backend == QLatin1String("postgresql")) {
        customer.contact = QString(101, 'x'); // one more than the column takes
        QVERIFY(!m_query->saveCustomer(&customer));
        QVERIFY2(m_query->lastError().contains(QLatin1String("100")), qPrintable(m_query->lastError()));
    }
    customer.contact = QString(100, QChar(0xE4));
    QVERIFY(m_query->saveCustomer(&customer)); // the connection goes on
}

/** A text that was executed before behaves as a new one does, whatever happened since. */
void QueryTest::repeatedStatements()
{
    m_database->run("INSERT INTO customer (id, number, deleted) VALUES (1, 1, false), (2, 2, false), (3, 3, false)");
    const auto customers = [this] { return ids(m_query->fetchCustomers(), &Query::customer); };
    for (int i = 0; i < 2; ++i) { // left in the middle: the rows begin anew, and the table is free for others
        QVERIFY(m_query->fetchCustomers() && m_query->next());
        QCOMPARE(m_query->maxCustomerNumber(), 3);
        m_database->run("UPDATE customer SET number = 3 WHERE id = 3");
    }
    QCOMPARE(customers(), QList<int>({1, 2, 3}));

    m_database->run("CREATE TABLE other (id integer)"); // another schema
    QCOMPARE(customers(), QList<int>({1, 2, 3}));
    m_database->run("DROP TABLE other");
    m_database->run("ALTER TABLE customer RENAME TO gone");
    const QList<int> missing = customers();
    const QString error = m_query->lastError();
    m_database->run("ALTER TABLE gone RENAME TO customer");
    QCOMPARE(missing, QList<int>());
    QVERIFY(!error.isEmpty());
    QCOMPARE(customers(), QList<int>({1, 2, 3}));
    QCOMPARE(m_query->lastError(), QString());

    m_database->run("INSERT INTO invoice (id, number) VALUES (1, 1), (2, 2), (3, 3)");
    InvoiceCriteria criteria;
    for (int limit = 1; limit <= 100; ++limit) { // more texts than are kept
        criteria.limit = limit;
        QCOMPARE(ids(m_query->fetchInvoiceDetails(&criteria), &Query::invoiceDetails).size(), qMin(limit, 3));
    }
    criteria.limit = 1;
    for (const int number : {2, 3, 2}) { // the same text with other values
        criteria.number = number;
        QCOMPARE(ids(m_query->fetchInvoiceDetails(&criteria), &Query::invoiceDetails), QList<int>({number}));
    }
}

QTEST_GUILESS_MAIN(QueryTest)
#include "tst_query.moc"

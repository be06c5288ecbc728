#include "bankaccount.h"
#include "customer.h"
#include "database.h"
#include "invoice.h"
#include "invoiceitem.h"
#include "payment.h"
#include "printscript.h"
#include "product.h"
#include "query.h"
#include "settings.h"
#include "testdatabase.h"

#include <QtTest>

#include <functional>
#include <map>

/** Loading, saving and deleting; the searches are in tst_search. */
class QueryTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase_data() { addBackends(); }
    void init();
    void bankAccount();
    void customer();
    void product();
    void invoice();
    void invoiceItem();
    void payment();
    void printScript();
    void settings();
    void emptyRecords();
    void wideProductPrice();
    void listOrder();
    void deletions();
    void numbers();
    void initialData();
    void idsBesideAnotherProgram();
    void transactions();
    void failures();

private:
    /** A record and what its columns hold, in order. */
    template <class Record> struct Case {
        Record record;
        QStringList columns;
    };
    /** Saves a new record, updates it to another content, and loads both. */
    template <class Record, class Load>
    void check(const char *table, const char *columns, bool (Query::*save)(Record *), Load load,
               const QList<Case<Record>> &cases);

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

    std::map<QString, std::unique_ptr<TestDatabase>> m_databases;
    TestDatabase *m_database = nullptr;
    std::unique_ptr<Query> m_query;
};

static QString text(int value) { return QString::number(value); }
static QString text(long long value) { return QString::number(value); }
static QString text(const QDate &value) { return value.toString(Qt::ISODate); }
static QString text(const QString &value) { return value; }
static QString text(const PropertyMap &value) { return value.propertiesToString(); }

template <class... Values> static QStringList texts(const Values &...values) { return {text(values)...}; }

static QStringList fields(const BankAccount &a)
{
    return texts(a.name, a.shortName, a.iban, a.bic, a.rowNumber, a.visible, a.deleted);
}
static QStringList fields(const Customer &c)
{
    return texts(c.number, c.name, c.streetName, c.postCode, c.townName, c.country, c.contact, c.vatNumber,
                 c.referenceNumber, c.emailAddress, c.phoneNumber, c.paymentTerms, static_cast<const PropertyMap &>(c),
                 c.deleted);
}
static QStringList fields(const Product &p)
{
    return texts(p.number, p.name, p.unitCode, p.amount, p.vatRate, p.vatExcluded, p.category);
}
static QStringList fields(const Invoice &i)
{
    return texts(i.customerId, i.type, i.number, i.date, i.paymentTerms, i.delivery, i.deliveryDate, i.buyerRef,
                 i.sellerRef, i.interestOnArrears, i.dueDate, i.referenceNumber, i.totalAmount, i.balance,
                 static_cast<const PropertyMap &>(i));
}
static QStringList fields(const InvoiceItem &i)
{
    return texts(i.invoiceId, i.productNumber, i.productName, i.quantity, i.unitCode, i.amount, i.vatRate,
                 i.vatExcluded, i.discount, i.text, i.rowNumber);
}
static QStringList fields(const Payment &p) { return texts(p.invoiceId, p.date, p.bankAccountId, p.amount); }
static QStringList fields(const PrintScript &s) { return texts(s.type, s.name, s.sourceCode); }

void QueryTest::init()
{
    QFETCH_GLOBAL(QString, backend);
    auto &database = m_databases[backend];
    if (!database) {
        database = std::make_unique<TestDatabase>(backend);
        QVERIFY2(database->open(), qPrintable(database->database()->lastError()));
    }
    m_database = database.get();
    m_database->clear();
    m_query = m_database->query();
}

template <class Record, class Load>
void QueryTest::check(const char *table, const char *columns, bool (Query::*save)(Record *), Load load,
                      const QList<Case<Record>> &cases)
{
    const QString select = QStringLiteral("SELECT %1 FROM %2").arg(QLatin1String(columns), QLatin1String(table));
    int id = -1;
    for (const Case<Record> &expected : cases) {
        Record record = expected.record;
        QCOMPARE(fields(record), expected.columns);
        record.id = id;
        QVERIFY2(((*m_query).*save)(&record), qPrintable(m_query->lastError()));
        QVERIFY(id < 0 ? record.id > 0 : record.id == id);
        id = record.id;
        QCOMPARE(m_database->rows(select), QStringList(expected.columns.join(QLatin1Char('|'))));
        Record loaded;
        QVERIFY2(load(loaded, id), qPrintable(m_query->lastError()));
        QCOMPARE(loaded.id, id);
        QCOMPARE(fields(loaded), expected.columns);
        m_query->finish();
    }
}

void QueryTest::bankAccount()
{
    check<BankAccount>("bank_account", "name, short_name, iban, bic, row_number, visible, deleted",
                       &Query::saveBankAccount,
                       [this](BankAccount &a, int) {
                           const bool found = m_query->fetchBankAccounts() && m_query->next();
                           m_query->bankAccount(&a);
                           return found;
                       },
                       {{{-1, "Pankki", "P", "FI2112345600000785", "NDEAFIHH", 3, false, false},
                         {"Pankki", "P", "FI2112345600000785", "NDEAFIHH", "3", "0", "0"}},
                        {{-1, "a", "b", "c", "d", -1, true, true}, {"a", "b", "c", "d", "-1", "1", "1"}}});
}

void QueryTest::customer()
{
    check<Customer>("customer",
                    "number, name, street_name, post_code, town_name, country, contact, vat_number, reference_number, "
                    "email_address, phone_number, payment_terms, properties, deleted",
                    &Query::saveCustomer,
                    [this](Customer &c, int) {
                        const bool found = m_query->fetchCustomers() && m_query->next();
                        m_query->customer(&c);
                        return found;
                    },
                    {{{{{{"c1", "1\\2\n3"}, {"e1", "x"}}},
                       -1,
                       5,
                       "O'Neill \"?\" \\ % \xF0\x9F\x98\x80 Äö",
                       "Katu 1",
                       "00100",
                       "Helsinki",
                       "FI",
                       "Maija",
                       "0737546-2",
                       "12344",
                       "a@b.fi",
                       "+358 40",
                       "7 pv",
                       false},
                      {"5", "O'Neill \"?\" \\ % \xF0\x9F\x98\x80 Äö", "Katu 1", "00100", "Helsinki", "FI", "Maija",
                       "0737546-2", "12344", "a@b.fi", "+358 40", "7 pv", "c1=1\\\\2\\n3\ne1=x\n", "0"}},
                     {{{}, -1, -1, "line\nline\ttab", "", "", "", "", "", "", "", "", "", "", true},
                      {"-1", "line\nline\ttab", "", "", "", "", "", "", "", "", "", "", "", "1"}}});
}

void QueryTest::product()
{
    check<Product>("product", "number, name, unit_code, amount, vat_rate, vat_excluded, category", &Query::saveProduct,
                   [this](Product &p, int) {
                       const bool found = m_query->fetchProducts() && m_query->next();
                       m_query->product(&p);
                       return found;
                   },
                   {{{-1, "A1", "Kahvi", "kg", 2147483647, 1400, true, "Juomat"},
                     {"A1", "Kahvi", "kg", "2147483647", "1400", "1", "Juomat"}},
                    {{-1, "00", "Tee", "", -1, -5, false, ""}, {"00", "Tee", "", "-1", "-5", "0", ""}}});
}

void QueryTest::invoice()
{
    check<Invoice>(
        "invoice",
        "customer_id, type, number, date, payment_terms, delivery, delivery_date, buyer_ref, seller_ref, "
        "interest_on_arrears, due_date, reference_number, total_amount, balance, properties",
        &Query::saveInvoice,
        [this](Invoice &i, int id) {
            const bool found = m_query->fetchInvoiceDetails(id) && m_query->next();
            m_query->invoiceDetails(&i);
            return found;
        },
        {{{{{{"t1", "huom"}}},
           -1,
           4,
           2,
           100,
           {2015, 3, 5},
           "14 pv",
           "nouto",
           {2015, 3, 6},
           "vv",
           "vm",
           850,
           {2015, 3, 19},
           "12344",
           2147483647,
           -1},
          {"4", "2", "100", "2015-03-05", "14 pv", "nouto", "2015-03-06", "vv", "vm", "850", "2015-03-19", "12344",
           "2147483647", "-1", "t1=huom\n"}},
         {{{}, -1, 1, 0, 2147483647, {1999, 12, 31}, "", "", {9999, 1, 1}, "", "", 0, {2000, 2, 29}, "RF0812344", 0, 0},
          {"1", "0", "2147483647", "1999-12-31", "", "", "9999-01-01", "", "", "0", "2000-02-29", "RF0812344", "0", "0",
           ""}}});
}

void QueryTest::invoiceItem()
{
    check<InvoiceItem>(
        "invoice_item",
        "invoice_id, product_number, product_name, quantity, unit_code, amount, vat_rate, vat_excluded, discount, "
        "text, row_number",
        &Query::saveInvoiceItem,
        [this](InvoiceItem &i, int id) {
            const bool found = m_query->fetchInvoiceItem(id) && m_query->next();
            m_query->invoiceItem(&i);
            return found;
        },
        {{{-1, 4, "A1", "Kahvi", 5000000000, "kg", -5000000000, 2400, true, 1000, "teksti", 3},
          {"4", "A1", "Kahvi", "5000000000", "kg", "-5000000000", "2400", "1", "1000", "teksti", "3"}},
         {{-1, 5, "", "", -1, "", 1, 0, false, 0, "", 0}, {"5", "", "", "-1", "", "1", "0", "0", "0", "", "0"}}});
}

void QueryTest::payment()
{
    check<Payment>("payment", "invoice_id, date, bank_account_id, amount", &Query::savePayment,
                   [this](Payment &p, int id) {
                       const bool found = m_query->fetchPayment(id) && m_query->next();
                       m_query->payment(&p);
                       return found;
                   },
                   {{{-1, 4, {2015, 3, 5}, 0, -2147483647}, {"4", "2015-03-05", "0", "-2147483647"}},
                    {{-1, 5, {2016, 2, 29}, 9, 1}, {"5", "2016-02-29", "9", "1"}}});
}

void QueryTest::printScript()
{
    check<PrintScript>("print_script", "type, name, source_code", &Query::savePrintScript,
                       [this](PrintScript &s, int id) {
                           PrintScript summary;
                           bool found = m_query->fetchPrintScriptSummaries() && m_query->next();
                           m_query->printScriptSummary(&summary);
                           found = found && m_query->fetchPrintScriptDetails(id) && m_query->next();
                           m_query->printScriptDetails(&s);
                           return found && summary.id == id && summary.type == s.type && summary.name == s.name &&
                                  summary.sourceCode.isEmpty();
                       },
                       {{{-1, "invoice", "Oma", "function print() {\n  'ä?';\n}\n"},
                         {"invoice", "Oma", "function print() {\n  'ä?';\n}\n"}},
                        {{-1, "finvoice", "Toinen", ""}, {"finvoice", "Toinen", ""}}});
}

void QueryTest::settings()
{
    const QString select = QStringLiteral("SELECT version, seller_name, seller_street_name, seller_post_code, "
                                          "seller_town_name, seller_country, seller_business_id, properties, "
                                          "seller_logo IS NULL FROM settings");
    Settings settings{{{{"a", "1"}}}, "Myyjä", "Katu", "00100", "Helsinki", "FI", "0737546-2", QByteArray()};
    QVERIFY(m_query->saveSettings(&settings)); // no row yet
    QCOMPARE(m_database->rows(select), QStringList("10|Myyjä|Katu|00100|Helsinki|FI|0737546-2|a=1\n|0"));
    m_database->run(QStringLiteral("UPDATE settings SET version = 12"));
    settings.sellerName = QStringLiteral("M2");
    settings.sellerLogo = QByteArray("\x89PNG\r\n\0\xff'\\", 11);
    settings.removeProperty(QStringLiteral("a"));
    QVERIFY(m_query->saveSettings(&settings));
    QCOMPARE(m_database->rows(select), QStringList("12|M2|Katu|00100|Helsinki|FI|0737546-2||0"));
    Settings loaded;
    loaded.setProperty(QStringLiteral("old"), 1);
    QVERIFY(m_query->fetchSettings() && m_query->next());
    m_query->settings(&loaded);
    QCOMPARE(loaded.sellerLogo, settings.sellerLogo);
    QCOMPARE(texts(loaded.sellerName, loaded.sellerStreetName, loaded.sellerPostCode, loaded.sellerTownName,
                   loaded.sellerCountry, loaded.sellerBusinessId, static_cast<const PropertyMap &>(loaded)),
             QStringList({"M2", "Katu", "00100", "Helsinki", "FI", "0737546-2", ""}));
}

void QueryTest::emptyRecords()
{
    Customer customer;
    Product product;
    BankAccount account;
    Invoice invoice;
    InvoiceItem item;
    Payment payment;
    PrintScript script;
    QVERIFY2(m_query->saveCustomer(&customer) && m_query->saveProduct(&product) && m_query->saveBankAccount(&account) &&
                 m_query->saveInvoice(&invoice) && m_query->saveInvoiceItem(&item) && m_query->savePayment(&payment) &&
                 m_query->savePrintScript(&script),
             qPrintable(m_query->lastError()));
    // Dates and the payment's account are NULL, texts are not.
    QCOMPARE(m_database->rows("SELECT customer_id, number, date, payment_terms, delivery_date, due_date, "
                              "reference_number, properties, tags FROM invoice"),
             QStringList("-1|0|NULL||NULL|NULL|||0"));
    QCOMPARE(m_database->rows("SELECT invoice_id, date, bank_account_id, amount FROM payment"),
             QStringList("-1|NULL|NULL|0"));
    QCOMPARE(m_database->rows("SELECT name, contact, properties, deleted FROM customer"), QStringList("|||0"));
    QVERIFY(m_query->fetchInvoiceDetails(invoice.id) && m_query->next());
    Invoice loaded;
    loaded.deliveryDate = QDate(2015, 1, 1);
    m_query->invoiceDetails(&loaded);
    QVERIFY(!loaded.deliveryDate.isValid() && !loaded.date.isValid());
    QVERIFY(m_query->fetchPayment(payment.id) && m_query->next());
    Payment kept;
    kept.bankAccountId = -7;
    m_query->payment(&kept);
    QCOMPARE(kept.bankAccountId, -7);
}

void QueryTest::wideProductPrice()
{
    Product product;
    product.amount = 5000000000;
    QVERIFY(m_query->saveProduct(&product));
    QCOMPARE(m_database->rows("SELECT amount FROM product"), QStringList("5000000000"));
    QVERIFY(m_query->fetchProducts() && m_query->next());
    m_query->product(&product);
    QCOMPARE(product.amount, 705032704LL); // read as 32 bits, which other programs rely on
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

QTEST_GUILESS_MAIN(QueryTest)
#include "tst_query.moc"

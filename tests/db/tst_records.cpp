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

/** Each record as its columns hold it, and as it comes back. */
class RecordsTest : public QObject {
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

    TestDatabases m_databases;
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

void RecordsTest::init()
{
    QFETCH_GLOBAL(QString, backend);
    m_database = &m_databases.opened(backend);
    m_database->clear();
    m_query = m_database->query();
}

template <class Record, class Load>
void RecordsTest::check(const char *table, const char *columns, bool (Query::*save)(Record *), Load load,
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

void RecordsTest::bankAccount()
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

void RecordsTest::customer()
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

void RecordsTest::product()
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

void RecordsTest::invoice()
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

void RecordsTest::invoiceItem()
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
        {{{{}, -1, 4, "A1", "Kahvi", 5000000000, "kg", -5000000000, 2400, true, 1000, "teksti", 3},
          {"4", "A1", "Kahvi", "5000000000", "kg", "-5000000000", "2400", "1", "1000", "teksti", "3"}},
         {{{}, -1, 5, "", "", -1, "", 1, 0, false, 0, "", 0}, {"5", "", "", "-1", "", "1", "0", "0", "0", "", "0"}}});
}

void RecordsTest::payment()
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

void RecordsTest::printScript()
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

void RecordsTest::settings()
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

void RecordsTest::emptyRecords()
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

void RecordsTest::wideProductPrice()
{
    Product product;
    product.amount = 5000000000;
    QVERIFY(m_query->saveProduct(&product));
    QCOMPARE(m_database->rows("SELECT amount FROM product"), QStringList("5000000000"));
    QVERIFY(m_query->fetchProducts() && m_query->next());
    m_query->product(&product);
    QCOMPARE(product.amount, 705032704LL); // read as 32 bits, which other programs rely on
}

QTEST_GUILESS_MAIN(RecordsTest)
#include "tst_records.moc"

#include "database.h"
#include "invoice.h"
#include "invoicecriteria.h"
#include "invoiceitem.h"
#include "payment.h"
#include "paymentcriteria.h"
#include "query.h"
#include "testdatabase.h"

#include <QtTest>

#include <map>

Q_DECLARE_METATYPE(InvoiceCriteria)
Q_DECLARE_METATYPE(PaymentCriteria)

/** What the criteria find, on a fixed set of invoices; their SQL texts are in tst_whereclause. */
class SearchTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase_data() { addBackends(); }
    void init();
    void invoices_data();
    void invoices();
    void limits_data();
    void limits();
    void balanceAtDate_data();
    void balanceAtDate();
    void textLetterCase();
    void payments_data();
    void payments();

private:
    template <class Record, class Text>
    QStringList read(bool fetched, void (Query::*reader)(Record *) const, Text text);

    TestDatabases m_databases;
    TestDatabase *m_database = nullptr;
    std::unique_ptr<Query> m_query;
};

// id, customer, type, number, date, due date, delivery date, reference, total, balance
static const char invoiceRows[] = "(1, 1, 0, 10, '2015-01-10', '2015-01-24', NULL, '12344', 10000, 0), "
                                  "(2, 1, 2, 12, '2015-02-10', '2015-02-24', '2015-03-31', '12357', -5000, -5000), "
                                  "(3, 2, 0, 11, '2015-06-30', '2015-07-14', '2015-06-01', '12360', 20000, 0), "
                                  "(4, 2, 1, 13, '2015-07-01', '2015-07-15', NULL, '', 3000, 1000), "
                                  "(5, 3, 3, 20, '2016-01-01', '2016-01-15', '2015-12-31', '5', 0, 0)";
// id, invoice, row number, text
static const char itemRows[] = "(1, 1, 1, 'Kahvi 100%'), (2, 1, 0, 'maito_2'), (3, 2, 0, 'KAHVI'), (4, 3, 5, ''), "
                               "(5, 3, 2, 'a\\b'), (6, 5, 0, 'maitoX2'), (7, 4, 0, 'ÄITI')";
// id, invoice, date, account, amount
static const char paymentRows[] =
    "(1, 1, '2015-01-20', 1, 4000), (2, 1, '2015-07-01', 1, 6000), (3, 3, '2015-07-10', NULL, 20000), "
    "(4, 4, '2015-07-02', 2, 2500), (5, 4, '2015-08-01', 1, -500), (6, 4, '2015-07-02', 1, 0)";

void SearchTest::init()
{
    QFETCH_GLOBAL(QString, backend);
    m_database = &m_databases.opened(backend);
    m_query = m_database->query();
    if (m_query->maxInvoiceNumber() > 0)
        return; // filled for an earlier test
    m_database->run(QLatin1String("INSERT INTO invoice (id, customer_id, type, number, date, due_date, delivery_date, "
                                  "reference_number, total_amount, balance) VALUES ") +
                    invoiceRows);
    m_database->run(QLatin1String("INSERT INTO invoice_item (id, invoice_id, row_number, text) VALUES ") + itemRows);
    m_database->run(QLatin1String("INSERT INTO payment (id, invoice_id, date, bank_account_id, amount) VALUES ") +
                    paymentRows);
}

template <class Record, class Text>
QStringList SearchTest::read(bool fetched, void (Query::*reader)(Record *) const, Text text)
{
    if (!fetched)
        return {m_query->lastError()};
    QStringList texts;
    while (m_query->nextInvoice()) { // plain next() without a balance date
        Record record;
        ((*m_query).*reader)(&record);
        texts.append(text(record));
    }
    return texts;
}

static QString numberOf(const Invoice &invoice) { return QString::number(invoice.number); }

static void invoiceRow(const char *name, void (*set)(InvoiceCriteria &), const char *numbers)
{
    InvoiceCriteria criteria;
    set(criteria);
    QTest::newRow(name) << criteria << QString::fromLatin1(numbers);
}

void SearchTest::invoices_data()
{
    QTest::addColumn<InvoiceCriteria>("criteria");
    QTest::addColumn<QString>("numbers");
    using C = InvoiceCriteria;
    const auto row = invoiceRow;
    row(
        "all, by number", [](C &) {}, "10 11 12 13 20");
    row(
        "from",
        [](C &c) {
            c.dateFrom = {2015, 6, 30};
        },
        "11 13 20");
    row(
        "to",
        [](C &c) {
            c.dateTo = {2015, 6, 30};
        },
        "10 11 12");
    row(
        "day",
        [](C &c) {
            c.date = {2015, 6, 30};
        },
        "11");
    row(
        "no such day",
        [](C &c) {
            c.date = {2015, 6, 29};
        },
        "");
    row(
        "due",
        [](C &c) {
            c.dueDateFrom = {2015, 2, 24}, c.dueDateTo = {2015, 7, 14};
        },
        "11 12");
    row(
        "delivery, else date",
        [](C &c) {
            c.deliveryDateFrom = {2015, 3, 31};
        },
        "11 12 13 20");
    row(
        "delivery until",
        [](C &c) {
            c.deliveryDateTo = {2015, 6, 1};
        },
        "10 11 12");
    row(
        "delivery between",
        [](C &c) {
            c.deliveryDateFrom = {2015, 6, 2}, c.deliveryDateTo = {2015, 12, 31};
        },
        "13 20");
    row(
        "numbers", [](C &c) { c.numberFrom = 11, c.numberTo = 13; }, "11 12 13");
    row(
        "numbers the wrong way round", [](C &c) { c.numberFrom = 13, c.numberTo = 11; }, "");
    row(
        "number", [](C &c) { c.number = 20; }, "20");
    row(
        "id is not the number", [](C &c) { c.id = 2; }, "12");
    row(
        "customer", [](C &c) { c.customerId = 2; }, "11 13");
    row(
        "reference", [](C &c) { c.referenceNumber = QStringLiteral("12360"); }, "11");
    row(
        "types", [](C &c) { c.types = 1 + 8; }, "10 11 20");
    row(
        "paid", [](C &c) { c.paymentState = 0; }, "10 11 20");
    row(
        "open", [](C &c) { c.paymentState = 1; }, "12 13");
    row(
        "text of either case", [](C &c) { c.text = QStringLiteral("kahvi%"); }, "10 12");
    row(
        "text with an escaped wildcard", [](C &c) { c.text = QStringLiteral("%100\\%"); }, "10");
    row(
        "text with a wildcard", [](C &c) { c.text = QStringLiteral("maito_2"); }, "10 20");
    row(
        "text without", [](C &c) { c.text = QStringLiteral("maito\\_2"); }, "10");
    row(
        "text with a backslash", [](C &c) { c.text = QStringLiteral("a\\\\b"); }, "11");
    row(
        "two conditions", [](C &c) { c.customerId = 2, c.paymentState = 1; }, "13");
}

void SearchTest::invoices()
{
    QFETCH(InvoiceCriteria, criteria);
    QFETCH(QString, numbers);
    const QStringList found = read(m_query->fetchInvoiceSummaries(&criteria), &Query::invoiceSummary, numberOf);
    QCOMPARE(found.join(QLatin1Char(' ')), numbers);
    QCOMPARE(read(m_query->fetchInvoiceDetails(&criteria), &Query::invoiceDetails, numberOf), found);
    QCOMPARE(m_query->fetchInvoiceCount(&criteria), found.size());

    // Rows and payments of the same invoices, by invoice number.
    const auto text = [](const auto &record) { return QString::number(record.id); };
    QStringList items, payments;
    const std::map<QString, std::pair<const char *, const char *>> ids = {
        {"10", {"2 1", "1 2"}}, {"11", {"5 4", "3"}}, {"12", {"3", ""}}, {"13", {"7", "6 4 5"}}, {"20", {"6", ""}}};
    for (const QString &number : found) {
        items += QString::fromLatin1(ids.at(number).first).split(QLatin1Char(' '), Qt::SkipEmptyParts);
        payments += QString::fromLatin1(ids.at(number).second).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    }
    QCOMPARE(read(m_query->fetchInvoiceItems(&criteria), &Query::invoiceItem, text), items);
    const PaymentCriteria any;
    QCOMPARE(read(m_query->fetchPayments(&any, &criteria), &Query::payment, text), payments);
}

void SearchTest::limits_data()
{
    QTest::addColumn<int>("limit");
    QTest::addColumn<bool>("descending");
    QTest::addColumn<QString>("numbers");
    QTest::addColumn<QString>("items");    // ids
    QTest::addColumn<QString>("payments"); // ids
    QTest::newRow("none") << -1 << false << "10 11 12 13 20"
                          << "2 1 5 4 3 7 6"
                          << "1 2 3 6 4 5";
    QTest::newRow("none, descending") << -1 << true << "20 13 12 11 10"
                                      << "2 1 5 4 3 7 6"
                                      << "1 2 3 6 4 5";
    QTest::newRow("two") << 2 << false << "10 11"
                         << "2 1 5 4"
                         << "1 2 3";
    QTest::newRow("last two") << 2 << true << "20 13"
                              << "7 6"
                              << "6 4 5";
    QTest::newRow("zero is none for invoices only") << 0 << false << "10 11 12 13 20"
                                                    << ""
                                                    << "";
    QTest::newRow("more than there are") << 9 << true << "20 13 12 11 10"
                                         << "2 1 5 4 3 7 6"
                                         << "1 2 3 6 4 5";
}

void SearchTest::limits()
{
    QFETCH(int, limit);
    QFETCH(bool, descending);
    InvoiceCriteria criteria;
    criteria.limit = limit;
    criteria.descending = descending;
    const PaymentCriteria any;
    const auto text = [](const auto &record) { return QString::number(record.id); };
    const QLatin1Char blank(' ');
    QTEST(read(m_query->fetchInvoiceSummaries(&criteria), &Query::invoiceSummary, numberOf).join(blank), "numbers");
    QTEST(read(m_query->fetchInvoiceItems(&criteria), &Query::invoiceItem, text).join(blank), "items");
    QTEST(read(m_query->fetchPayments(&any, &criteria), &Query::payment, text).join(blank), "payments");
    QCOMPARE(m_query->fetchInvoiceCount(&criteria), 5);
}

void SearchTest::balanceAtDate_data()
{
    QTest::addColumn<QDate>("date");
    QTest::addColumn<int>("state");
    QTest::addColumn<QString>("balances"); // number:balance at the date
    const QDate june30(2015, 6, 30), july1(2015, 7, 1), july10(2015, 7, 10), december31(2015, 12, 31);
    QTest::newRow("before any payment") << QDate(2015, 1, 10) << 1 << "10:10000";
    QTest::newRow("open on June 30") << june30 << 1 << "10:6000 11:20000 12:-5000";
    QTest::newRow("paid on June 30") << june30 << 0 << "";
    QTest::newRow("paid on July 1") << july1 << 0 << "10:0";
    QTest::newRow("open on July 10") << july10 << 1 << "12:-5000 13:500";
    QTest::newRow("all on July 10") << july10 << -1 << "10:0 11:0 12:-5000 13:500";
    QTest::newRow("open at the year's end") << december31 << 1 << "12:-5000 13:1000";
    QTest::newRow("an invoice without a total is paid") << QDate(2016, 1, 1) << 0 << "10:0 11:0 20:0";
}

void SearchTest::balanceAtDate()
{
    QFETCH(QDate, date);
    QFETCH(int, state);
    QFETCH(QString, balances);
    InvoiceCriteria criteria;
    criteria.balanceDate = date;
    criteria.paymentState = state;
    m_query->setInvoiceBalanceMode(1);
    const auto withBalance = [](const Invoice &i) { return numberOf(i) + QStringLiteral(":%1").arg(i.balance); };
    const QStringList found = read(m_query->fetchInvoiceSummaries(&criteria), &Query::invoiceSummary, withBalance);
    QCOMPARE(found.join(QLatin1Char(' ')), balances);
    // Details are filtered alike, and a summary tells the stored balance unless asked otherwise.
    const std::map<QString, int> stored = {{"10", 0}, {"11", 0}, {"12", -5000}, {"13", 1000}, {"20", 0}};
    QStringList numbers, storedBalances;
    for (const QString &text : found) {
        numbers.append(text.section(QLatin1Char(':'), 0, 0));
        storedBalances.append(QString::number(stored.at(numbers.last())));
    }
    m_query = m_database->query();
    QCOMPARE(read(m_query->fetchInvoiceDetails(&criteria), &Query::invoiceDetails, numberOf), numbers);
    m_query = m_database->query();
    const auto balance = [](const Invoice &i) { return QString::number(i.balance); };
    QCOMPARE(read(m_query->fetchInvoiceSummaries(&criteria), &Query::invoiceSummary, balance), storedBalances);
}

void SearchTest::textLetterCase()
{
    InvoiceCriteria criteria;
    criteria.text = QStringLiteral("äiti");
    const QStringList found = read(m_query->fetchInvoiceSummaries(&criteria), &Query::invoiceSummary, numberOf);
    QCOMPARE(found, m_database->isSQLite() ? QStringList() : QStringList("13"));
}

void SearchTest::payments_data()
{
    QTest::addColumn<PaymentCriteria>("criteria");
    QTest::addColumn<InvoiceCriteria>("invoices");
    QTest::addColumn<QString>("alone");    // ids by date and account
    QTest::addColumn<QString>("together"); // ids by invoice number, restricted to the invoices
    QTest::addColumn<QString>("joined");   // "month-day:invoice number" in that order
    const auto row = [](const char *name, void (*set)(PaymentCriteria &, InvoiceCriteria &), const char *alone,
                        const char *together, const char *joined) {
        PaymentCriteria payments;
        InvoiceCriteria invoices;
        set(payments, invoices);
        QTest::newRow(name) << payments << invoices << QString::fromLatin1(alone) << QString::fromLatin1(together)
                            << QString::fromLatin1(joined);
    };
    using P = PaymentCriteria;
    using I = InvoiceCriteria;
    row(
        "all", [](P &, I &) {}, "1 2 6 4 3 5", "1 2 3 6 4 5", "01-20:10 07-01:10 07-02:13 07-02:13 07-10:11 08-01:13");
    row(
        "dates",
        [](P &p, I &) {
            p.dateFrom = {2015, 7, 1}, p.dateTo = {2015, 7, 9};
        },
        "2 6 4", "2 6 4", "07-01:10 07-02:13 07-02:13");
    row(
        "account", [](P &p, I &) { p.bankAccountId = 2; }, "4", "4", "07-02:13");
    row(
        "ids", [](P &p, I &) { p.idFrom = 2, p.idTo = 4; }, "2 4 3", "2 3 4", "07-01:10 07-02:13 07-10:11");
    row(
        "invoice", [](P &p, I &) { p.invoiceId = 1; }, "1 2", "1 2", "01-20:10 07-01:10");
    row(
        "customer", [](P &, I &i) { i.customerId = 2; }, "1 2 6 4 3 5", "3 6 4 5",
        "07-02:13 07-02:13 07-10:11 08-01:13");
    row(
        "both", [](P &p, I &i) { p.bankAccountId = 1, i.customerId = 2; }, "1 2 6 5", "6 5", "07-02:13 08-01:13");
    row(
        "limited", [](P &p, I &i) { p.bankAccountId = 1, i.limit = 2, i.descending = true; }, "1 2 6 5", "6 5",
        "07-02:13 08-01:13");
    row(
        "until the balance date",
        [](P &, I &i) {
            i.balanceDate = {2015, 7, 1};
        },
        "1 2 6 4 3 5", "1 2", "01-20:10 07-01:10");
}

void SearchTest::payments()
{
    QFETCH(PaymentCriteria, criteria);
    QFETCH(InvoiceCriteria, invoices);
    const QLatin1Char blank(' ');
    const auto id = [](const Payment &p) { return QString::number(p.id); };
    QTEST(read(m_query->fetchPayments(&criteria), &Query::payment, id).join(blank), "alone");
    QTEST(read(m_query->fetchPayments(&criteria, &invoices), &Query::payment, id).join(blank), "together");
    QVERIFY(m_query->fetchInvoicesAndPayments(&invoices, &criteria));
    QStringList joined;
    while (m_query->nextInvoice()) {
        Invoice invoice;
        Payment payment;
        m_query->invoiceAndPayment(&invoice, &payment);
        QCOMPARE(invoice.id, payment.invoiceId);
        joined.append(payment.date.toString(QStringLiteral("MM-dd:")) + numberOf(invoice));
    }
    QTEST(joined.join(blank), "joined");
}

QTEST_GUILESS_MAIN(SearchTest)
#include "tst_search.moc"

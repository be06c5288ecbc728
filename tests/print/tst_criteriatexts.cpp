#include "criteriatexts.h"
#include "customer.h"
#include "invoicecriteria.h"
#include "paymentcriteria.h"
#include "registry.h"

#include <QtTest>

class CriteriaTextsTest : public QObject {
    Q_OBJECT
private slots:
    void invoices_data();
    void invoices();
    void payments();
};

namespace {

const QDate first(2024, 1, 1);
const QDate last(2024, 12, 31);

struct Row {
    const char *tag;
    void (*set)(InvoiceCriteria &);
    const char *lines; ///< joined by "|"
};

const Row rows[] = {
    {"none", [](InvoiceCriteria &) {}, ""},
    {"descending and limited", [](InvoiceCriteria &c) { c.descending = true, c.limit = 5; }, ""},
    {"invoices", [](InvoiceCriteria &c) { c.types = 7; }, "Laskut"},
    {"delivery notes", [](InvoiceCriteria &c) { c.types = 8; }, u8"Lähetteet"},
    {"both", [](InvoiceCriteria &c) { c.types = 9; }, "Laskut"},
    {"open", [](InvoiceCriteria &c) { c.paymentState = InvoiceCriteria::open; }, "Avoimet laskut"},
    {"paid", [](InvoiceCriteria &c) { c.paymentState = InvoiceCriteria::paid; }, "Maksetut laskut"},
    {"open at", [](InvoiceCriteria &c) { c.paymentState = InvoiceCriteria::open, c.balanceDate = last; },
     "Avoimet laskut 31.12.2024"},
    {"paid before", [](InvoiceCriteria &c) { c.paymentState = InvoiceCriteria::paid, c.balanceDate = last; },
     "Ennen 31.12.2024 maksetut laskut"},
    {"number 0", [](InvoiceCriteria &c) { c.number = 0; }, "Laskut 0 - 0"},
    {"numbers", [](InvoiceCriteria &c) { c.numberFrom = 5, c.numberTo = 7; }, "Laskut 5 - 7"},
    {"numbers from", [](InvoiceCriteria &c) { c.numberFrom = 5; }, "Laskut 5 -"},
    {"numbers to", [](InvoiceCriteria &c) { c.numberTo = 7; }, "Laskut - 7"},
    {"date", [](InvoiceCriteria &c) { c.date = first; }, "ajalta 1.1.2024 - 1.1.2024"},
    {"dates", [](InvoiceCriteria &c) { c.dateFrom = first, c.dateTo = last; }, "ajalta 1.1.2024 - 31.12.2024"},
    {"due dates", [](InvoiceCriteria &c) { c.dueDateFrom = first, c.dueDateTo = last; },
     u8"Eräpäivä väliltä 1.1.2024 - 31.12.2024"},
    {"delivery dates", [](InvoiceCriteria &c) { c.deliveryDateFrom = first; }, u8"Toimituspäivä väliltä 1.1.2024 -"},
    {"word", [](InvoiceCriteria &c) { c.text = "%10\\% x\\_%2 \\\\%"; }, "Hakusanalla 10% x_%2 \\"},
    {"credit notes", [](InvoiceCriteria &c) { c.types = 4; }, "Hyvityslaskut"},
    {"unknown customer", [](InvoiceCriteria &c) { c.customerId = 7; }, "Asiakas 7"},
    {"customer", [](InvoiceCriteria &c) { c.customerId = 5; }, "Asiakas Virtanen"},
    {"several in order", [](InvoiceCriteria &c) { c.text = "x", c.dateFrom = first, c.types = 1; },
     "Laskut|ajalta 1.1.2024 -|Hakusanalla x"},
};

} // namespace

void CriteriaTextsTest::invoices_data()
{
    QTest::addColumn<int>("index");
    for (size_t i = 0; i < sizeof rows / sizeof *rows; ++i)
        QTest::newRow(rows[i].tag) << int(i);
}

void CriteriaTextsTest::invoices()
{
    QFETCH(int, index);
    Registry registry;
    Customer customer;
    customer.id = 5;
    customer.name = "Virtanen";
    registry.storeCustomer(customer);
    InvoiceCriteria criteria;
    rows[index].set(criteria);
    QCOMPARE(CriteriaTexts::forInvoices(criteria, registry).join('|'), QString::fromUtf8(rows[index].lines));
}

void CriteriaTextsTest::payments()
{
    const Registry registry;
    PaymentCriteria payments;
    InvoiceCriteria invoices;
    QVERIFY(CriteriaTexts::forPayments(payments, invoices, registry).isEmpty());
    payments.dateFrom = first;
    payments.dateTo = last;
    invoices.paymentState = InvoiceCriteria::open;
    QCOMPARE(CriteriaTexts::forPayments(payments, invoices, registry),
             (QStringList{"Maksusuoritukset ajalta 1.1.2024 - 31.12.2024", "Avoimet laskut"}));
}

QTEST_APPLESS_MAIN(CriteriaTextsTest)
#include "tst_criteriatexts.moc"

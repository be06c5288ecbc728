#include "invoiceitem.h"
#include "product.h"

#include <QtTest>

using Amounts = QList<long long>;

class InvoiceItemTest : public QObject {
    Q_OBJECT
private slots:
    void amounts_data();
    void amounts();
    void setters();
    void toInvoiceItem();
};

void InvoiceItemTest::amounts_data()
{
    QTest::addColumn<long long>("quantity");
    QTest::addColumn<long long>("amount");
    QTest::addColumn<int>("rate");
    QTest::addColumn<int>("discount");
    QTest::addColumn<bool>("vatExcluded");
    QTest::addColumn<Amounts>("prices"); // without and with VAT, then the same after the discount
    QTest::addColumn<Amounts>("totals"); // without and with VAT, discount
    const struct {
        const char *name;
        long long quantity, amount;
        int rate, discount;
        bool vatExcluded;
        Amounts prices, totals;
    } rows[] = {
        {"nothing", 0, 0, 0, 0, false, {0, 0, 0, 0}, {0, 0, 0}},
        {"two decimals, without VAT", 20000, 125000, 2400, 0, true, {125000, 155000, 125000, 155000}, {2500, 3100, 0}},
        {"whole cents, with VAT", 30000, 9900, 2400, 0, false, {8000, 9900, 8000, 9900}, {240, 297, 0}},
        {"all off", 20000, 125000, 2400, 10000, true, {125000, 155000, 0, 0}, {0, 0, 3100}},
        {"three decimals", 15000, 12350, 1400, 1250, false, {10830, 12350, 9480, 10806}, {142, 162, 23}},
        {"four decimals lose one", 10000, 12345, 2400, 0, false, {996, 12345, 996, 12345}, {100, 123, 0}},
        {"four decimals, without VAT", 10000, 12345, 2400, 0, true, {12345, 1531, 12345, 1531}, {123, 153, 0}},
        {"taken back", -10000, 199900, 2550, 500, false, {159300, 199900, 151300, 189905}, {-1513, -1899, -100}},
        {"no price", 10000, 0, 2400, 0, true, {0, 0, 0, 0}, {0, 0, 0}},
        {"a third", 3333, 1000000, 1000, 333, true, {1000000, 1100000, 966700, 1063400}, {3222, 3544, 122}},
        {"half a cent", 5000, 100, 0, 0, false, {100, 100, 100, 100}, {1, 1, 0}},
        {"half a cent less", -5000, 100, 0, 0, false, {100, 100, 100, 100}, {-1, -1, 0}},
        // The product of the three factors is 10^24 here, a million times what 64 bits hold.
        {"the largest row",
         9999999999,
         9999999999,
         2400,
         0,
         false,
         {806451612, 9999999999, 806451612, 9999999999},
         {80645161183871, 99999999980000, 0}},
    };
    for (const auto &row : rows)
        QTest::newRow(row.name) << row.quantity << row.amount << row.rate << row.discount << row.vatExcluded
                                << row.prices << row.totals;
}

void InvoiceItemTest::amounts()
{
    QFETCH(long long, quantity);
    QFETCH(long long, amount);
    QFETCH(int, rate);
    QFETCH(int, discount);
    QFETCH(bool, vatExcluded);
    QFETCH(Amounts, prices);
    InvoiceItem item;
    item.quantity = quantity;
    item.amount = amount;
    item.vatRate = rate;
    item.discount = discount;
    item.vatExcluded = vatExcluded;
    QCOMPARE(Amounts({item.amountVatExcluded(), item.amountVatIncluded(), item.unitAmountVatExcluded(),
                      item.unitAmountVatIncluded()}),
             prices);
    QTEST(Amounts({item.totalAmountVatExcluded(), item.totalAmountVatIncluded(), item.discountAmount()}), "totals");
    Product product;
    product.amount = amount;
    product.vatRate = rate;
    product.vatExcluded = vatExcluded;
    QCOMPARE(Amounts({product.amountVatExcluded(), product.amountVatIncluded()}), prices.mid(0, 2));
}

template <class Record> static void checkSetters()
{
    Record record;
    record.vatRate = 2400;
    record.setAmountVatExcluded(100000);
    QVERIFY(record.vatExcluded);
    QCOMPARE(record.amount, 100000LL);
    record.setAmountVatIncluded(99900);
    QVERIFY(!record.vatExcluded);
    QCOMPARE(record.amount, 99900LL);
}

void InvoiceItemTest::setters()
{
    checkSetters<InvoiceItem>();
    checkSetters<Product>();
}

void InvoiceItemTest::toInvoiceItem()
{
    Product product;
    product.id = 9;
    product.number = QStringLiteral("A1");
    product.name = QStringLiteral("Kahvi");
    product.unitCode = QStringLiteral("kg");
    product.amount = 5000000000;
    product.vatRate = 1400;
    product.vatExcluded = true;
    product.category = QStringLiteral("juomat");
    InvoiceItem item;
    item.id = 3;
    item.invoiceId = 4;
    item.quantity = 15000;
    item.discount = 250;
    item.text = QStringLiteral("teksti");
    item.rowNumber = 7;
    InvoiceItem expected = item;
    product.toInvoiceItem(&item);
    QCOMPARE(item.productNumber + item.productName + item.unitCode, QStringLiteral("A1Kahvikg"));
    QCOMPARE(item.amount, 5000000000LL);
    QCOMPARE(item.vatRate, 1400);
    QVERIFY(item.vatExcluded);
    QCOMPARE(Amounts({item.id, item.invoiceId, item.quantity, item.discount, item.rowNumber}),
             Amounts({expected.id, expected.invoiceId, expected.quantity, expected.discount, expected.rowNumber}));
    QCOMPARE(item.text, expected.text);
}

QTEST_APPLESS_MAIN(InvoiceItemTest)
#include "tst_invoiceitem.moc"

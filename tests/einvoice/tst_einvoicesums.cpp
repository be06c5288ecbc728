#include "bankaccount.h"
#include "customer.h"
#include "einvoicebuilder.h"
#include "einvoicerules.h"
#include "invoice.h"
#include "invoiceitem.h"
#include "settings.h"

#include <QtTest>

#include <random>

/** The rules of sums, computed anew from what a document says, over random invoices. */
class EInvoiceSumsTest : public QObject {
    Q_OBJECT
private slots:
    void randomInvoices();
    void rowsBeyond64Bits();
};

namespace {

using Wide = __int128;

Wide size(Wide value) { return value < 0 ? -value : value; }

/** Whether |a / scale - b| is at most half of one, or exactly the half that goes away from zero. */
bool isRounded(Wide a, Wide scale, Wide b)
{
    return 2 * size(a - b * scale) <= scale && !(2 * size(a - b * scale) == scale && size(b * scale) < size(a));
}

Wide power(int exponent)
{
    Wide value = 1;
    while (exponent-- > 0)
        value *= 10;
    return value;
}

} // namespace

void EInvoiceSumsTest::randomInvoices()
{
    std::mt19937 random(20260302);
    const auto upTo = [&random](int most) { return static_cast<int>(random() % static_cast<unsigned>(most + 1)); };
    constexpr int rates[] = {2550, 2550, 2400, 1400, 1350, 1000, 0};
    constexpr int quantityUnits[] = {10000, 10000, 5000, 1000, 1};
    constexpr int priceUnits[] = {100, 100, 10, 1}; // prices of two to four decimals
    int roundings = 0;
    for (int n = 0; n < 10000; ++n) {
        Invoice invoice;
        invoice.number = n + 1;
        invoice.type = upTo(4) == 0 ? Invoice::creditNote : Invoice::invoiceType;
        invoice.setProperty(QStringLiteral("bt151"), QStringLiteral("Z"));
        QVector<InvoiceItem> items;
        long long total = 0;
        const int sign = invoice.type == Invoice::creditNote && upTo(1) == 0 ? -1 : 1;
        for (int i = upTo(29); i >= 0; --i) {
            InvoiceItem item;
            item.productName = QStringLiteral("x");
            item.rowNumber = items.size();
            item.quantity =
                sign * static_cast<long long>(upTo(50) + 1) * quantityUnits[upTo(4)] * (upTo(9) == 0 ? -1 : 1);
            item.amount = static_cast<long long>(upTo(30000)) * priceUnits[upTo(3)] * (upTo(19) == 0 ? -1 : 1);
            item.vatRate = rates[upTo(6)];
            item.vatExcluded = upTo(1) == 0;
            item.discount = upTo(3) == 0 ? (upTo(4) == 0 ? -1 : 1) * upTo(5000) : 0;
            total += item.totalAmountVatIncluded();
            items.append(item);
        }
        invoice.totalAmount = static_cast<int>(total);
        invoice.balance = static_cast<int>(total - upTo(1) * upTo(5000));
        Settings settings;
        settings.setProperty(QStringLiteral("invoiceForm/roundingMode"), 1 + upTo(1));
        const EInvoice::Document d = EInvoice::build({invoice, items, Customer(), settings, {}, QString()});

        Wide net = 0, tax = 0;
        for (const EInvoice::Tax &one : d.taxes) {
            Wide base = 0;
            for (const EInvoice::Line &line : d.lines) {
                if (line.vatRate == one.rate && line.category == one.category)
                    base += line.net;
            }
            QVERIFY(base == one.base);                                     // BR-S-08
            QVERIFY(isRounded(Wide(one.base) * one.rate, 10000, one.tax)); // BR-CO-17
            net += one.base;
            tax += one.tax;
        }
        QVERIFY(net == d.net && tax == d.tax && d.total == d.net + d.tax); // BR-CO-10, 13, 14, 15
        QCOMPARE(d.payable, d.total - d.paid + d.rounding);                // BR-CO-16
        QCOMPARE(size(d.payable), size(invoice.balance));
        QVERIFY2(size(d.rounding) <= 30, qPrintable(QString::number(d.rounding)));
        roundings += d.rounding != 0;
        for (const EInvoice::Line &line : d.lines) {
            QVERIFY(line.price >= 0); // BR-27
            const Wide scale = power(line.priceDecimals + 2);
            const Wide difference = Wide(line.quantity) * line.price - (Wide(line.net) + line.allowance) * scale;
            QVERIFY2(size(difference) <= 2 * scale, qPrintable(QString::number(n))); // R120
            if (line.percent != 0)
                QVERIFY(size(size(Wide(line.allowance)) * 10000 - size(Wide(line.base) * line.percent)) <=
                        20000); // R040
        }
    }
    qDebug() << "invoices with a rounding amount:" << roundings;
    QVERIFY(roundings > 1000 && roundings < 6000); // neither avoided nor everywhere
}

void EInvoiceSumsTest::rowsBeyond64Bits()
{
    Invoice invoice;
    invoice.number = 1;
    invoice.date = QDate(2026, 3, 2);
    InvoiceItem item;
    item.productName = QStringLiteral("x");
    item.quantity = 5000000LL * 10000;
    item.amount = 200000LL * 10000;
    const EInvoice::Document d = EInvoice::build({invoice, {item}, Customer(), Settings(), {}, QString()});
    QCOMPARE(d.overflowRow, 1);
    const QVector<EInvoice::Finding> findings = EInvoice::check(d, EInvoice::peppol);
    QVERIFY(std::any_of(findings.begin(), findings.end(),
                        [](const EInvoice::Finding &f) { return qstrcmp(f.rule, "SUM-02") == 0; }));
}

QTEST_GUILESS_MAIN(EInvoiceSumsTest)
#include "tst_einvoicesums.moc"

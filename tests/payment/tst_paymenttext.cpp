#include "accountnumber.h"
#include "constants.h"
#include "decimalformat.h"
#include "paymenttext.h"

#include <QTest>

/** How the files write amounts, dates, references and accounts: what is read, and what looks like it but is refused. */
class PaymentTextTest : public QObject {
    Q_OBJECT
private slots:
    void amount_data();
    void amount();
    void xmlAmount_data();
    void xmlAmount();
    void limits();
    void isoDate_data();
    void isoDate();
    void nationalReference_data();
    void nationalReference();
    void account_data();
    void account();

private:
    const DecimalFormat m_format{Constants::totalAmountFractionDigits, Constants::totalAmountMinFractionDigits};
};

namespace {

constexpr qint64 refused = -1; // no row means a cent to pay

} // namespace

void PaymentTextTest::amount_data()
{
    QTest::addColumn<qint64>("cents");
    const auto row = [](const char *text, qint64 cents) { QTest::newRow(text) << cents; };
    row("150,00", 15000);
    row("-180", -18000);
    row("1 234,56", 123456);
    row("1\u00A0234,56", 123456);
    row("1\u202F234\u202F567,8", 123456780);
    row("1.234,56", 123456);
    row("1,234.56", 123456);
    row("+12.5", 1250);
    row("- 12,50", -1250);
    row("\u221212,50", -1250);
    row("12,50 EUR", 1250);
    row("12,50\u20AC", 1250);
    row("  7,00  ", 700);
    row("7,0000", 700);
    row("7,", 700);
    row("-0,05", -5);
    row("0007", 700);
    row("2147483647,99", 214748364799);
    row("1.234", refused);
    row("1,234", refused);
    row("1.23,45", refused);
    row("1 23,45", refused);
    row("12 34", refused);
    row("1 2345,00", refused);
    row("1.234.567", refused);
    row("7,001", refused);
    row("--7", refused);
    row("7-", refused);
    row("7,0,0", refused);
    row("7e2", refused);
    row("0x10", refused);
    row("", refused);
    row("-", refused);
    row("EUR", refused);
    row("12 USD", refused);
    row("2147483648,00", refused);
    row("99999999999999999999", refused);
    row("\u0661\u0662", refused);
}

void PaymentTextTest::amount()
{
    qint64 cents = refused;
    const QString text = QString::fromUtf8(QTest::currentDataTag());
    const bool ok = PaymentText::parseAmount(m_format, text, cents);
    QTEST(cents, "cents");
    QCOMPARE(ok, cents != refused);
}

void PaymentTextTest::xmlAmount_data()
{
    QTest::addColumn<qint64>("cents");
    const auto row = [](const char *text, qint64 cents) { QTest::newRow(text) << cents; };
    row("150", 15000);
    row("12.5", 1250);
    row("+12.50", 1250);
    row(".5", 50);
    row("5.", 500);
    row("1384.56000", 138456);
    row("1.005", refused);
    row("1,50", refused);
    row("-1.50", refused);
    row("1 50", refused);
    row("1.2.3", refused);
    row(".", refused);
    row("", refused);
    row("+", refused);
    row("++1", refused);
    row("1e3", refused);
    row("INF", refused);
    row("2147483648", refused);
}

void PaymentTextTest::xmlAmount()
{
    qint64 cents = refused;
    const bool ok = PaymentText::parseXmlAmount(m_format, QString::fromUtf8(QTest::currentDataTag()), cents);
    QTEST(cents, "cents");
    QCOMPARE(ok, cents != refused);
}

void PaymentTextTest::limits()
{
    QVERIFY(PaymentText::fitsPayment(2147483647) && PaymentText::fitsPayment(-2147483647));
    QVERIFY(!PaymentText::fitsPayment(2147483648) &&
            !PaymentText::fitsPayment(-2147483648)); // no sign change overflows
}

void PaymentTextTest::isoDate_data()
{
    QTest::addColumn<QString>("date");
    QTest::newRow("2015-03-09") << "2015-03-09";
    QTest::newRow("2015/03/09") << "2015-03-09";
    QTest::newRow("2015-03-09T23:30:00-11:00") << "2015-03-09";
    QTest::newRow("2015-03-09+02:00") << "2015-03-09";
    QTest::newRow("2024-02-29") << "2024-02-29";
    for (const char *text : {"2015-03/09", "2015-3-9", "2015-02-29", "2015-03-091", "+015-03-09", "-015-03-09",
                             "2015-+3-09", "2015-03-0", "09-03-2015", " 2015-03-09", "20150309", "0000-01-01", ""})
        QTest::newRow(text) << QString();
}

void PaymentTextTest::isoDate()
{
    QTEST(PaymentText::parseIsoDate(QString::fromLatin1(QTest::currentDataTag())).toString(Qt::ISODate), "date");
}

void PaymentTextTest::nationalReference_data()
{
    QTest::addColumn<QString>("reference");
    QTest::addColumn<bool>("checked"); // the check digit is right
    QTest::newRow("00000000000000012344") << "12344" << true;
    QTest::newRow("RF08 1234 4") << "12344" << true;
    QTest::newRow("rf0800012344") << "12344" << true;
    QTest::newRow("12345") << "12345" << false;
    QTest::newRow("RF0812345") << "12345" << false;
    QTest::newRow("1009") << "1009" << true;
    QTest::newRow("100") << "100" << false;
    QTest::newRow("RFA812344") << "RFA812344" << false;
    QTest::newRow("RF18ABC") << "ABC" << false;
    QTest::newRow("RF18") << "RF18" << false;
    QTest::newRow("lasku 12344") << "LASKU12344" << false;
    QTest::newRow("123456789012345678913") << "123456789012345678913" << false;
    QTest::newRow("0000") << "" << false;
    QTest::newRow("") << "" << false;
}

void PaymentTextTest::nationalReference()
{
    const QString reference = PaymentText::nationalReference(QString::fromLatin1(QTest::currentDataTag()));
    QTEST(reference, "reference");
    QTEST(PaymentText::isNationalReference(reference), "checked");
}

void PaymentTextTest::account_data()
{
    QTest::addColumn<QString>("iban");
    QTest::addColumn<QString>("bban");
    const auto row = [](const char *text, const char *iban, const char *bban) { QTest::newRow(text) << iban << bban; };
    row("FI2112345600000785", "FI2112345600000785", "12345600000785");
    row("fi21 1234 5600 0007 85", "FI2112345600000785", "12345600000785");
    row("FI21 1234 5600 0007 85 NDEAFIHH", "FI2112345600000785", "12345600000785");
    row("FI2112345600000785/NDEAFIHH", "FI2112345600000785", "12345600000785");
    row("12345600000785", "FI2112345600000785", "12345600000785");
    row("123456-785", "FI2112345600000785", "12345600000785");
    row("423456-781", "FI5542345670000081", "42345670000081");
    row("SE4550000000058398257466", "SE4550000000058398257466", "");
    for (const char *text : {"FI211234560000078", "FI21123456000007850", "1234560000078", "123456000007850", "123456-7",
                             "123456-123456789", "MALLINEN MAIJA", "FI2112345600O00785", "/FI2112345600000785", ""})
        row(text, "", "");
}

void PaymentTextTest::account()
{
    const AccountNumber number = AccountNumber::parse(QString::fromLatin1(QTest::currentDataTag()));
    QTEST(number.iban, "iban");
    QTEST(number.bban, "bban");
}

QTEST_APPLESS_MAIN(PaymentTextTest)
#include "tst_paymenttext.moc"

#include "bankaccount.h"
#include "invoice.h"

#include <QtTest>

class InvoiceTest : public QObject {
    Q_OBJECT
private slots:
    void appendCheckDigit_data();
    void appendCheckDigit();
    void formats_data();
    void formats();
    void validLength();
    void dueDate_data();
    void dueDate();
    void barcode_data();
    void barcode();
    void publishedBarcodes_data();
    void publishedBarcodes();
};

void InvoiceTest::appendCheckDigit_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("reference");
    const auto row = [](const char *text, const char *reference) {
        QTest::addRow("\"%s\"", text) << QString::fromUtf8(text) << reference;
    };
    row("1234", "12344");
    row("12-34 a", "12344");
    row("0001234", "12344");
    row("a0 0b1234", "12344");
    row("", "1009");
    row("000", "1009");
    row("x", "1009");
    row("7", "7003");
    row("07", "7003");
    row("123400", "1234008");
    row("1234567890123456789", "12345678901234567894");
    row("0000001234567890123456789012345", "78901234567890123456"); // the last 19 digits
    row("1000000000000000000012", "00000000000000000123");          // zeros of the last 19 digits stay
    row(u8"\u0661\u0662\u0663", u8"\u0661\u0662\u06632");
}

void InvoiceTest::appendCheckDigit()
{
    QFETCH(QString, text);
    QTEST(Invoice::appendCheckDigitToReferenceNumber(text), "reference");
    QCOMPARE(Invoice::calculateReferenceNumberCheckDigit(QString()), 0);
}

void InvoiceTest::formats_data()
{
    QTest::addColumn<QString>("grouped");
    QTest::addColumn<QString>("fixedWidth");
    QTest::addColumn<QString>("rf"); // grouped
    const auto row = [](const char *reference, const char *grouped, const char *fixedWidth, const char *rf) {
        QTest::newRow(reference) << grouped << fixedWidth << rf;
    };
    row("12344", "12344", "00000000000000012344", "RF08 1234 4");
    row("123456", "1 23456", "00000000000000123456", "RF97 1234 56");
    row("123456789012", "12 34567 89012", "00000000123456789012", "RF03 1234 5678 9012");
    row("9991", "9991", "00000000000000009991", "RF04 9991");
    // Published references of up to 14 digits agree with the standard; longer ones weigh only twenty digits here.
    row("868624", "8 68624", "00000000000000868624", "RF10 8686 24");
    row("1357914", "13 57914", "00000000000001357914", "RF95 1357 914");
    row("590738390", "5907 38390", "00000000000590738390", "RF66 5907 3839 0");
    row("698756720839", "69 87567 20839", "00000000698756720839", "RF61 6987 5672 0839");
    row("868516259619897", "86851 62596 19897", "00000868516259619897", "RF11 8685 1625 9619 897");
    row("92125374252539897737", "92125 37425 25398 97737", "92125374252539897737", "RF82 9212 5374 2525 3989 7737");
    row("123456789012345678901", "1 23456 78901 23456 78901", "123456789012345678901", "");
    row("", "", "00000000000000000000", "RF04");
    row("RF0812344", "RF08 1234 4", "00000000000RF0812344", "");
}

void InvoiceTest::formats()
{
    const QString reference = QString::fromLatin1(QTest::currentDataTag());
    QFETCH(QString, rf);
    QTEST(Invoice::formatReferenceNumber(reference), "grouped");
    QTEST(Invoice::formatSpyReferenceNumber(reference), "fixedWidth");
    if (!rf.isEmpty())
        QCOMPARE(Invoice::formatRfReferenceNumber(Invoice::referenceNumberToRf(reference)), rf);
}

void InvoiceTest::validLength()
{
    for (int length = 0; length < 25; ++length)
        QCOMPARE(Invoice::isValidReferenceNumber(QString(length, QLatin1Char('x'))), length >= 3 && length <= 19);
}

void InvoiceTest::dueDate_data()
{
    QTest::addColumn<QString>("terms");
    QTest::addColumn<QDate>("dueDate");
    QTest::newRow("first number") << u8"14 päivää netto, 7 päivää -2 %" << QDate(2016, 3, 10);
    QTest::newRow("number inside a word") << "netto30pv" << QDate(2016, 3, 26);
    QTest::newRow("minus sign does not count") << "-3" << QDate(2016, 2, 28);
    QTest::newRow("no days") << "0 pv" << QDate(2016, 2, 25);
    QTest::newRow("no number") << "heti" << QDate();
    QTest::newRow("nothing") << "" << QDate();
}

void InvoiceTest::dueDate()
{
    QFETCH(QString, terms);
    Invoice invoice;
    invoice.date = QDate(2016, 2, 25); // before a leap day
    invoice.paymentTerms = terms;
    QTEST(invoice.calculateDueDate(), "dueDate");
    invoice.date = QDate();
    QVERIFY(!invoice.calculateDueDate().isValid());
}

void InvoiceTest::barcode_data()
{
    QTest::addColumn<QString>("iban");
    QTest::addColumn<int>("cents");
    QTest::addColumn<int>("version");
    QTest::addColumn<QDate>("dueDate");
    QTest::addColumn<QString>("digits"); // of reference 12344
    const QString iban = QStringLiteral("FI2112345600000785");
    const QDate due(2015, 3, 5);
    QTest::newRow("version 4") << iban << 3100 << 4 << due << "421123456000007850000310000000000000000000012344150305";
    QTest::newRow("version 5, zeros before the check digits")
        << iban << 3100 << 5 << due << "521123456000007850000310000000000000000000812344150305";
    QTest::newRow("a credit is nothing to pay")
        << iban << -3100 << 4 << due << "421123456000007850000000000000000000000000012344150305";
    QTest::newRow("just below a million")
        << iban << 99999999 << 4 << due << "421123456000007859999999900000000000000000012344150305";
    QTest::newRow("over a million is not cut")
        << iban << 123456789 << 4 << due << "4211234560000078512345678900000000000000000012344150305";
    QTest::newRow("no due date") << iban << 3100 << 4 << QDate() << "421123456000007850000310000000000000000000012344";
    QTest::newRow("version 3") << iban << 3100 << 3 << due << "";
    QTest::newRow("version 6") << iban << 3100 << 6 << due << "";
    QTest::newRow("IBAN with blanks") << "FI21 1234 5600 0007 85" << 3100 << 4 << due << "";
    QTest::newRow("IBAN one short") << "FI211234560000078" << 3100 << 4 << due << "";
    QTest::newRow("no IBAN") << "" << 3100 << 4 << due << "";
}

void InvoiceTest::barcode()
{
    QFETCH(QString, iban);
    QFETCH(int, cents);
    QFETCH(int, version);
    QFETCH(QDate, dueDate);
    BankAccount account;
    account.iban = iban;
    Invoice invoice;
    invoice.totalAmount = cents;
    invoice.referenceNumber = QStringLiteral("12344");
    invoice.dueDate = dueDate;
    QTEST(invoice.barcode(&account, version), "digits");
    if (version == 4)
        QCOMPARE(invoice.barcode(&account), invoice.barcode(&account, 4));
}

/** The examples of Finance Finland's guide to the bank bar code that bear a due date. */
void InvoiceTest::publishedBarcodes_data()
{
    QTest::addColumn<QString>("iban");
    QTest::addColumn<int>("cents");
    QTest::addColumn<QString>("reference");
    QTest::addColumn<QDate>("dueDate");
    const auto row = [](const char *digits, const char *iban, int cents, const char *reference, const QDate &dueDate) {
        QTest::newRow(digits) << iban << cents << reference << dueDate;
    };
    row("479440520200360820048831500000000868516259619897100612", "FI7944052020036082", 488315, "868516259619897",
        {2010, 6, 12});
    row("458101710000001220004829900000000559582243294671120131", "FI5810171000000122", 48299, "559582243294671",
        {2012, 1, 31});
    row("402500046400013020006938000000069875672083435364110724", "FI0250004640001302", 69380, "69875672083435364",
        {2011, 7, 24});
    row("415660100015306410074445400000007758474790647489191219", "FI1566010001530641", 744454, "7758474790647489",
        {2019, 12, 19});
    row("473313130010000580000000000000000000000000868624130809", "FI7331313001000058", 0, "868624", {2013, 8, 9});
    row("483330100011007751500002000092125374252539897737160525", "FI8333010001100775", 15000020,
        "92125374252539897737", {2016, 5, 25});
    row("439363630020924920000010300000000000000590738390230311", "FI3936363002092492", 103, "590738390",
        {2023, 3, 11});
    row("492393900010033910000000200000000000000001357914991224", "FI9239390001003391", 2, "1357914", {2099, 12, 24});
}

void InvoiceTest::publishedBarcodes()
{
    QFETCH(QString, iban);
    QFETCH(int, cents);
    QFETCH(QString, reference);
    QFETCH(QDate, dueDate);
    BankAccount account;
    account.iban = iban;
    Invoice invoice;
    invoice.totalAmount = cents;
    invoice.referenceNumber = reference;
    invoice.dueDate = dueDate;
    QCOMPARE(invoice.barcode(&account), QString::fromLatin1(QTest::currentDataTag()));
}

QTEST_APPLESS_MAIN(InvoiceTest)
#include "tst_invoice.moc"

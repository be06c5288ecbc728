#include "bankaccount.h"

#include <QtTest>

class BankAccountTest : public QObject {
    Q_OBJECT
private slots:
    void formats_data();
    void formats();
};

void BankAccountTest::formats_data()
{
    QTest::addColumn<QString>("bban");
    QTest::addColumn<QString>("grouped");
    QTest::addColumn<QString>("printedBban");
    const auto row = [](const char *iban, const char *bban, const char *grouped, const char *printed) {
        QTest::newRow(iban) << bban << grouped << printed;
    };
    row("FI2112345600000785", "12345600000785", "FI21 1234 5600 0007 85", "123456-785");
    row("FI0042345670000081", "42345670000081", "FI00 4234 5670 0000 81", "423456-781");
    row("FI7944052020036082", "44052020036082", "FI79 4405 2020 0360 82", "440520-236082");
    row("FI0250004640001302", "50004640001302", "FI02 5000 4640 0013 02", "500046-41302");
    row("FI0012345678901234", "12345678901234", "FI00 1234 5678 9012 34", "123456-78901234");
    row("FI0012345600000000", "12345600000000", "FI00 1234 5600 0000 00", "123456-");
    row("FI0052345600000000", "52345600000000", "FI00 5234 5600 0000 00", "523456-0");
    row("FI21 1234 5600 0007 85", "FI21 1234 5600 0007 85", "FI21  123 4 56 00 0 007  85", "FI21 1234 5600 0007 85");
    row("FI211234560000078", "FI211234560000078", "FI21 1234 5600 0007 8", "FI211234560000078");
    row("RF0812344", "RF0812344", "RF08 1234 4", "RF0812344");
    row("12345678", "12345678", "1234 5678", "12345678");
    row("", "", "", "");
}

void BankAccountTest::formats()
{
    const QString iban = QString::fromLatin1(QTest::currentDataTag());
    const QString bban = BankAccount::ibanToBban(iban);
    QTEST(bban, "bban");
    QTEST(BankAccount::formatIban(iban), "grouped");
    QTEST(BankAccount::formatBban(bban), "printedBban");
}

QTEST_APPLESS_MAIN(BankAccountTest)
#include "tst_bankaccount.moc"

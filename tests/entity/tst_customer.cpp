#include "customer.h"

#include <QtTest>

class CustomerTest : public QObject {
    Q_OBJECT
private slots:
    void identifiers_data();
    void identifiers();
};

void CustomerTest::identifiers_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("businessId");
    QTest::addColumn<bool>("vatNumber");
    QTest::addColumn<bool>("either");
    QTest::addColumn<QString>("asVatNumber");
    QTest::addColumn<QString>("asBusinessId");
    const struct {
        const char *text;
        bool businessId, vatNumber, either;
        const char *asVatNumber, *asBusinessId;
    } rows[] = {
        {"0737546-2", true, false, true, "FI07375462", "0737546-2"},
        {"737546-2", true, false, true, "FI07375462", "737546-2"},
        {"0112038-9", true, false, true, "FI01120389", "0112038-9"},
        {"1000002-0", true, false, true, "FI10000020", "1000002-0"}, // remainder 0
        {"1000002-1", false, false, false, "", ""},
        {"0737546-3", false, false, false, "", ""},
        {"0737456-2", false, false, false, "", ""},
        {"1000008-0", false, false, false, "", ""}, // remainder 1 has no check digit
        {"1000008-1", false, false, false, "", ""},
        {"07375462", false, false, false, "", ""},
        {"0737546-2 ", false, false, false, "", ""},
        {" 737546-2", false, false, false, "", ""},
        {"37546-2", false, false, false, "", ""},
        {"00737546-2", false, false, false, "", ""},
        {"073754-62", false, false, false, "", ""},
        {"0737546_2", false, false, false, "", ""},
        {u8"0737546\u20132", false, false, false, "", ""}, // an en dash
        {"073754a-2", false, false, false, "", ""},
        {"0737546-a", false, false, false, "", ""},
        {u8"\u0660737546-2", true, false, true, u8"FI\u06607375462", u8"\u0660737546-2"},
        {"FI07375462", false, true, true, "FI07375462", "0737546-2"},
        {"FI07375463", false, true, true, "FI07375463", "0737546-3"}, // no check digit is tested
        {"FI0737546", false, true, true, "FI0737546", ""},
        {"fi07375462", false, true, true, "fi07375462", ""},
        {"SE12", false, true, true, "SE12", ""},
        {"SE1", false, false, false, "", ""},
        {"S123", false, false, false, "", ""},
        {"1E123", false, false, false, "", ""},
        {u8"ÅÄ12", false, true, true, u8"ÅÄ12", ""},
        {"SE  ", false, true, true, "SE  ", ""},
        {"", false, false, false, "", ""},
    };
    for (const auto &row : rows)
        QTest::addRow("\"%s\"", row.text)
            << QString::fromUtf8(row.text) << row.businessId << row.vatNumber << row.either
            << QString::fromUtf8(row.asVatNumber) << QString::fromUtf8(row.asBusinessId);
}

void CustomerTest::identifiers()
{
    QFETCH(QString, text);
    QTEST(Customer::isValidBusinessId(text), "businessId");
    QTEST(Customer::isValidVatNumber(text), "vatNumber");
    QTEST(Customer::isValidVatNumberOrBusinessId(text), "either");
    QTEST(Customer::convertBusinessIdToVatNumber(text), "asVatNumber");
    QTEST(Customer::convertVatNumberToBusinessId(text), "asBusinessId");
}

QTEST_APPLESS_MAIN(CustomerTest)
#include "tst_customer.moc"

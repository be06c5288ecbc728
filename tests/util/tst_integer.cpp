#include "integer.h"

#include <QtTest>

#include <limits>

class IntegerTest : public QObject {
    Q_OBJECT
private slots:
    void parse_data();
    void parse();
    void append();
};

void IntegerTest::parse_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("accepted");
    QTest::addColumn<int>("value");
    QTest::addColumn<bool>("digits");
    const struct {
        const char *text;
        bool accepted;
        int value;
        bool digits;
    } rows[] = {
        {"0", true, 0, true},
        {"00012", true, 12, true},
        {"+7", true, 7, false},
        {"-7", true, -7, false},
        {"-0", true, 0, false},
        {"2147483647", true, 2147483647, true},
        {"2147483648", false, 0, true},
        {"-2147483648", true, -2147483647 - 1, false},
        {"-2147483649", false, 0, false},
        {"4294967297", false, 0, true},           // 1 in 32 bits
        {"18446744073709551617", false, 0, true}, // 1 in 64 bits
        {"", false, 0, false},
        {"+", false, 0, false},
        {"-", false, 0, false},
        {"--1", false, 0, false},
        {"1-", false, 0, false},
        {" 1", false, 0, false},
        {"1 ", false, 0, false},
        {"1\n", false, 0, false},
        {"12.0", false, 0, false},
        {"0x1f", false, 0, false},
        {"1e2", false, 0, false},
        {u8"\u0663", false, 0, false},
        {u8"\u22121", false, 0, false},
    };
    for (const auto &row : rows)
        QTest::addRow("\"%s\"", row.text) << QString::fromUtf8(row.text) << row.accepted << row.value << row.digits;
}

void IntegerTest::parse()
{
    QFETCH(QString, text);
    bool ok = false;
    QTEST(Integer::parse(text, ok), "value");
    QTEST(ok, "accepted");
    QTEST(Integer::isDigits(text), "digits");
}

void IntegerTest::append()
{
    const long long least = std::numeric_limits<long long>::min();
    const long long greatest = std::numeric_limits<long long>::max();
    QString text = QStringLiteral("n=");
    for (const long long value : {0LL, -1LL, 10LL, least, greatest}) {
        Integer::appendTo(text, value);
        text += QLatin1Char(' ');
    }
    QCOMPARE(text, QStringLiteral("n=0 -1 10 -9223372036854775808 9223372036854775807 "));
}

QTEST_APPLESS_MAIN(IntegerTest)
#include "tst_integer.moc"

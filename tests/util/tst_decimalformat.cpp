#include "decimalformat.h"

#include <QtTest>

#include <limits>

class DecimalFormatTest : public QObject {
    Q_OBJECT
private slots:
    void format_data();
    void format();
    void parse_data();
    void parse();
    void localeGivesThePoint();
};

void DecimalFormatTest::format_data()
{
    QTest::addColumn<int>("digits");
    QTest::addColumn<int>("minDigits");
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("finnish");
    QTest::addColumn<QString>("machine");

    constexpr int least = std::numeric_limits<int>::min();
    QTest::newRow("no-break space between thousands") << 4 << 2 << 123450000 << u8"12\u00a0345,00" << "12345.00";
    QTest::newRow("all decimals") << 4 << 2 << 12345 << "1,2345"
                                  << "1.2345";
    QTest::newRow("zeros beyond the minimum are cut") << 4 << 2 << 12000 << "1,20"
                                                      << "1.20";
    QTest::newRow("an inner zero is not") << 4 << 2 << 12030 << "1,203"
                                          << "1.203";
    QTest::newRow("two different minus signs") << 4 << 2 << -5000 << u8"\u22120,50" << "-0.50";
    QTest::newRow("whole quantity without a point") << 4 << 0 << 20000 << "2"
                                                    << "2";
    QTest::newRow("smallest quantity") << 4 << 0 << 1 << "0,0001"
                                       << "0.0001";
    QTest::newRow("zero with a minimum") << 2 << 2 << 0 << "0,00"
                                         << "0.00";
    QTest::newRow("zero without one") << 2 << 0 << 0 << "0"
                                      << "0";
    QTest::newRow("below one unit") << 2 << 2 << 5 << "0,05"
                                    << "0.05";
    QTest::newRow("ten stays ten") << 0 << 0 << 10 << "10"
                                   << "10";
    QTest::newRow("the least integer") << 4 << 2 << least << u8"\u2212214\u00a0748,3648" << "-214748.3648";
}

void DecimalFormatTest::format()
{
    QFETCH(int, digits);
    QFETCH(int, minDigits);
    QFETCH(int, value);
    DecimalFormat format(digits, minDigits);
    format.setLocale(QLocale(QLocale::Finnish, QLocale::Finland));
    QTEST(format.format(value), "finnish");
    format.setDecimalPoint(QStringLiteral("."));
    QTEST(format.formatWithoutGrouping(value), "machine");
}

void DecimalFormatTest::parse_data()
{
    QTest::addColumn<int>("digits");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("accepted");
    QTest::addColumn<long long>("value");

    const struct {
        int digits;
        const char *text;
        bool accepted;
        long long value;
    } rows[] = {
        {4, "12,5", true, 125000},
        {4, "12.34567", true, 123456},
        {4, "0,99999", true, 9999},
        {4, "-0,5", true, -5000},
        {4, "-12.5", true, -125000},
        {4, ",25", true, 2500},
        {4, "+7", true, 70000},
        {4, "--1,5", true, 15000},
        {2, "5,", true, 500},
        {0, "5", true, 5},
        {4, "2147483647.9999", true, 21474836479999},
        {4, "2147483648", false, 0},
        {4, "99999999999999999999,5", false, 0},
        {0, "5,", false, 500},
        {4, "", false, 0},
        {4, "-", false, 0},
        {4, "-,5", false, 0},
        {4, "1 000", false, 0},
        {4, u8"1\u00a0000", false, 0},
        {4, " 5", false, 0},
        {4, "5 ", false, 0},
        {4, u8"\u22125", false, 0},
        {4, "1.2.3", false, 0},
        {4, "1.234,5", false, 0},
        {4, "1,-5", false, 0},
        {2, "1,23x", false, 0},
        {4, "1e3", false, 0},
        {4, u8"\u0663", false, 0},
    };
    for (const auto &row : rows)
        QTest::addRow("\"%s\" with %d", row.text, row.digits)
            << row.digits << QString::fromUtf8(row.text) << row.accepted << row.value;
}

void DecimalFormatTest::parse()
{
    QFETCH(int, digits);
    QFETCH(QString, text);
    QFETCH(bool, accepted);
    bool ok = !accepted;
    const long long value = DecimalFormat(digits, 0).parse(text, ok);
    QCOMPARE(ok, accepted);
    if (accepted)
        QTEST(value, "value");
}

void DecimalFormatTest::localeGivesThePoint()
{
    DecimalFormat format(2, 2);
    format.setDecimalPoint(QStringLiteral("'"));
    format.setLocale(QLocale(QLocale::Finnish));
    QCOMPARE(format.format(150), QStringLiteral("1,50"));
    format.setFractionDigits(1);
    QCOMPARE(format.formatWithoutGrouping(150), QStringLiteral("15,0")); // the divisor follows
}

QTEST_APPLESS_MAIN(DecimalFormatTest)
#include "tst_decimalformat.moc"

#include "vat.h"

#include <QtTest>

#include <limits>

using Row = QPair<int, int>; ///< cents with VAT, rate

class VatTest : public QObject {
    Q_OBJECT
private slots:
    void round_data();
    void round();
    void convert_data();
    void convert();
    void samePrecision_data();
    void samePrecision();
    void totals_data();
    void totals();
    void clearKeepsTheMode();
};

void VatTest::round_data()
{
    QTest::addColumn<long long>("value");
    QTest::addColumn<int>("digits");
    QTest::addColumn<long long>("rounded");
    constexpr long long most = std::numeric_limits<long long>::max();
    const struct {
        long long value;
        int digits;
        long long rounded;
    } rows[] = {
        {15, 1, 2},   {14, 1, 1},    {149, 2, 1},  {150, 2, 2}, {1499999, 6, 1}, {1500000, 6, 2}, {4, 1, 0},
        {5, 1, 1},    {123, 0, 12}, // as with one digit
        {125, 0, 13}, {123, -3, 12}, {123, 1, 12}, {0, 4, 0},   {most, 18, 9},   {9499999, 7, 1}, {49999999999, 9, 50},
    };
    for (const auto &row : rows)
        QTest::addRow("%lld / 10^%d", row.value, row.digits) << row.value << row.digits << row.rounded;
}

void VatTest::round()
{
    QFETCH(long long, value);
    QFETCH(int, digits);
    QFETCH(long long, rounded);
    QCOMPARE(Vat::round(value, digits), rounded);
    QCOMPARE(Vat::round(-value, digits), -rounded);
    const __int128 beyond64Bits = static_cast<__int128>(value) * 1000000000;
    if (digits > 0 && digits < 10)
        QCOMPARE(Vat::round(beyond64Bits, digits + 9), rounded);
}

void VatTest::convert_data()
{
    QTest::addColumn<long long>("excluded");
    QTest::addColumn<int>("rate");
    QTest::addColumn<long long>("added");
    QTest::addColumn<long long>("takenOut"); // of what `added` holds
    const struct {
        long long excluded;
        int rate;
        long long added, takenOut;
    } rows[] = {
        {100000, 2400, 124000, 100000},
        {100000, 2550, 125500, 100000},
        {100000, 1400, 114000, 100000},
        {100000, 0, 100000, 100000},
        {-10000, 2400, -12400, -10000},
        {2, 2500, 3, 2}, // 2.5 goes up
        {1, 5000, 2, 1},
        {-2, 2500, -3, -2},
        {9999999999, 2400, 12399999999, 9999999988}, // the factor has but nine decimals
        {8064516129032258064, 0, 8064516129032258064, 8064516129032258064},
    };
    for (const auto &row : rows)
        QTest::addRow("%lld at %d", row.excluded, row.rate) << row.excluded << row.rate << row.added << row.takenOut;
}

void VatTest::convert()
{
    QFETCH(long long, excluded);
    QFETCH(int, rate);
    const long long added = Vat::addVat(excluded, rate);
    QTEST(added, "added");
    QTEST(Vat::substractVat(added, rate), "takenOut");
}

void VatTest::samePrecision_data()
{
    QTest::addColumn<long long>("value");
    QTest::addColumn<long long>("reference");
    QTest::addColumn<long long>("rounded");
    QTest::newRow("two decimals") << 80645LL << 99900LL << 80600LL;
    QTest::newRow("two decimals, half up") << 80650LL << 99900LL << 80700LL;
    QTest::newRow("no more than two zeros count") << 80645LL << 1000000LL << 80600LL;
    QTest::newRow("three decimals") << 80645LL << 12350LL << 80650LL;
    QTest::newRow("four decimals are divided by ten") << 80645LL << 12345LL << 8065LL;
    QTest::newRow("no price is divided by ten") << 80645LL << 0LL << 8065LL;
    QTest::newRow("negative reference") << 80645LL << -99900LL << 80600LL;
    QTest::newRow("negative value") << -80650LL << 99900LL << -80700LL;
}

void VatTest::samePrecision()
{
    QFETCH(long long, value);
    QFETCH(long long, reference);
    QTEST(Vat::roundWithSamePrecision(value, reference), "rounded");
}

void VatTest::totals_data()
{
    QTest::addColumn<QList<Row>>("rows");
    QTest::addColumn<int>("mode");
    QTest::addColumn<QList<int>>("rates");
    QTest::addColumn<int>("excluded"); // of the first rate
    QTest::addColumn<int>("totalExcluded");
    QTest::addColumn<int>("totalVat");
    const QList<Row> cents = QVector<Row>(10, Row(1, 2400)).toList();
    const QList<Row> mixed{{100, 2400}, {-30, 1400}, {100, 2400}, {100, 2400}, {50, 0}};
    const QList<Row> cancelled{{100, 2400}, {-100, 2400}};
    QTest::newRow("ten cents, per rate") << cents << 1 << QList<int>{2400} << 8 << 8 << 2;
    QTest::newRow("ten cents, per row") << cents << 2 << QList<int>{2400} << 10 << 10 << 0;
    QTest::newRow("another mode is per rate") << cents << 3 << QList<int>{2400} << 8 << 8 << 2;
    QTest::newRow("mixed, per rate") << mixed << 1 << QList<int>{0, 1400, 2400} << 50 << 50 - 26 + 242 << -4 + 58;
    QTest::newRow("mixed, per row") << mixed << 2 << QList<int>{0, 1400, 2400} << 50 << 50 - 26 + 243 << -4 + 57;
    QTest::newRow("a rate that sums up to nothing") << cancelled << 1 << QList<int>{2400} << 0 << 0 << 0;
    QTest::newRow("nothing, per rate") << QList<Row>() << 1 << QList<int>() << 0 << 0 << 0;
    QTest::newRow("nothing, per row") << QList<Row>() << 2 << QList<int>() << 0 << 0 << 0;
}

void VatTest::totals()
{
    QFETCH(QList<Row>, rows);
    QFETCH(int, mode);
    QFETCH(QList<int>, rates);
    QFETCH(int, excluded);
    QFETCH(int, totalExcluded);
    QFETCH(int, totalVat);
    Vat vat;
    QCOMPARE(vat.roundingMode(), 1);
    vat.setRoundingMode(mode);
    int sum = 0;
    for (const Row &row : rows) {
        vat.add(row.first, row.second);
        sum += row.first;
    }
    QCOMPARE(vat.vatRates(), rates);
    QCOMPARE(vat.size(), rates.size());
    QCOMPARE(vat.totalAmount(), sum);
    QCOMPARE(vat.totalAmountVatExcluded(), totalExcluded);
    QCOMPARE(vat.totalVatAmount(), totalVat);
    const int rate = rates.value(0, 9999); // never added: everything is 0
    QCOMPARE(vat.totalAmountVatExcluded(rate), excluded);
    QCOMPARE(vat.totalVatAmount(rate), vat.totalAmount(rate) - excluded);
    QCOMPARE(vat.totalAmount(9999) + vat.totalVatAmount(9999) + vat.totalAmountVatExcluded(9999), 0);
}

void VatTest::clearKeepsTheMode()
{
    Vat vat;
    vat.setRoundingMode(Vat::roundPerRow);
    vat.add(1, 2400);
    vat.clear();
    QCOMPARE(vat.size() + vat.totalAmount() + vat.totalAmountVatExcluded() + vat.totalVatAmount(), 0);
    for (int i = 0; i < 3; ++i)
        vat.add(2, 2400);
    QCOMPARE(vat.totalAmountVatExcluded(), 6); // per rate it would be 5
}

QTEST_APPLESS_MAIN(VatTest)
#include "tst_vat.moc"

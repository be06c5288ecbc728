#include "isodate.h"

#include <QtTest>

/** The library's general conversions of the same form are the reference. */
class IsoDateTest : public QObject {
    Q_OBJECT
private slots:
    void parse_data();
    void parse();
    void append_data();
    void append();
};

void IsoDateTest::parse_data()
{
    QTest::addColumn<bool>("accepted");
    const struct {
        const char *text;
        bool accepted;
    } rows[] = {
        {"2024-02-29", true},  {"2023-02-29", false}, {"1900-02-29", false},    {"2000-02-29", true},
        {"0001-01-01", true},  {"9999-12-31", true},  {"0000-01-01", false},    {"2024-00-10", false},
        {"2024-13-10", false}, {"2024-10-00", false}, {"2024-04-31", false},    {"-024-01-01", false},
        {"+024-01-01", false}, {"2024-1-01", false},  {"2024-01-1", false},     {"2024-01-1 ", false},
        {" 2024-01-1", false}, {"2024-01-0:", false}, {"2024-01-0/", false},    {"2024/01/01", false},
        {"20240101", false},   {"", false},           {"2024-01-010", false},   {"2024-01-01T10:00", false},
        {"202a-01-01", false}, {"2024-0x-01", false}, {u8"2024-01-0１", false},
    };
    for (const auto &row : rows)
        QTest::addRow("%s", row.text) << row.accepted;
}

void IsoDateTest::parse()
{
    QFETCH(bool, accepted);
    const QString text = QString::fromUtf8(QTest::currentDataTag());
    QCOMPARE(IsoDate::parse(text), accepted ? QDate::fromString(text, Qt::ISODate) : QDate());
    QCOMPARE(IsoDate::parse(text).isValid(), accepted);
}

void IsoDateTest::append_data()
{
    QTest::addColumn<QDate>("date");
    const QDate dates[] = {QDate(), {1, 1, 1}, {987, 6, 5}, {2024, 2, 29}, {9999, 12, 31}, {10000, 1, 1}, {-1, 12, 31}};
    for (const QDate &date : dates)
        QTest::addRow("day %lld", date.toJulianDay()) << date;
}

void IsoDateTest::append()
{
    QFETCH(QDate, date);
    QString text = QStringLiteral("before ");
    IsoDate::appendTo(text, date);
    QCOMPARE(text, QStringLiteral("before ") + date.toString(Qt::ISODate));
}

QTEST_APPLESS_MAIN(IsoDateTest)
#include "tst_isodate.moc"

#include "dateformat.h"

#include <QtTest>

class DateFormatTest : public QObject {
    Q_OBJECT
private slots:
    void parse_data();
    void parse();
    void format();
};

void DateFormatTest::parse_data()
{
    QTest::addColumn<QDate>("date"); // invalid: refused
    const QDate today = QDate::currentDate();
    const QDate march5(today.year(), 3, 5);
    const QDate march2015(2015, 3, 5);
    const struct {
        const char *text;
        QDate date;
    } rows[] = {
        {"5.3.2015", march2015},
        {"05,03,2015", march2015},
        {"5,3.2015", march2015},
        {"05032015", march2015},
        {"5.3", march5},
        {"5.3.", march5},
        {"5.03,", march5},
        {"0503", march5},
        {"053", march5},
        {"123", QDate(today.year(), 3, 12)},
        {"5", QDate(today.year(), today.month(), 5)},
        {"12,", QDate(today.year(), today.month(), 12)},
        {"29.2", QDate(today.year(), 2, 29)}, // invalid but in a leap year
        {"29.2.2016", QDate(2016, 2, 29)},
        {"29.2.2015", QDate()},
        {"31.2.2015", QDate()},
        {"0.1.2015", QDate()},
        {"1.13.2015", QDate()},
        {"5.3.15", QDate()},
        {"5.3.20155", QDate()},
        {"005.3.2015", QDate()},
        {"5/3/2015", QDate()},
        {"2015-03-05", QDate()},
        {"5032015", QDate()},
        {"00", QDate()},
        {"5..", QDate()},
        {".3.2015", QDate()},
        {" 5.3.2015", QDate()},
        {"5.3.2015 ", QDate()},
        {"5.3.2015\n", QDate()},
        {"5. 3.2015", QDate()},
        {"", QDate()},
    };
    for (const auto &row : rows)
        QTest::newRow(row.text) << row.date;
}

void DateFormatTest::parse() { QTEST(DateFormat().parse(QString::fromLatin1(QTest::currentDataTag())), "date"); }

void DateFormatTest::format()
{
    QCOMPARE(DateFormat().format(QDate(2015, 3, 5)), QStringLiteral("5.3.2015"));
    QCOMPARE(DateFormat().format(QDate(2015, 12, 31)), QStringLiteral("31.12.2015"));
    QCOMPARE(DateFormat().format(QDate()), QString());
}

QTEST_APPLESS_MAIN(DateFormatTest)
#include "tst_dateformat.moc"

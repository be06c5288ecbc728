#include "entityutil.h"
#include "propertymap.h"

#include <QtTest>

using Map = QMap<QString, QVariant>;

class PropertyMapTest : public QObject {
    Q_OBJECT
private slots:
    void escape_data();
    void escape();
    void fromString_data();
    void fromString();
    void toString();
    void changes();
};

void PropertyMapTest::escape_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("escaped");
    QTest::addColumn<QString>("readBack");
    QTest::newRow("line feed") << "a\nb"
                               << "a\\nb"
                               << "a\nb";
    QTest::newRow("line feed first") << "\nb"
                                     << "\\nb"
                                     << "\nb";
    QTest::newRow("line feeds in a row") << "a\n\n\nb"
                                         << "a\\n\\n\\nb"
                                         << "a\n\n\nb";
    QTest::newRow("carriage returns are dropped") << "a\r\nb\r"
                                                  << "a\\nb"
                                                  << "a\nb";
    QTest::newRow("backslashes") << "a\\\\b\\"
                                 << "a\\\\\\\\b\\\\"
                                 << "a\\\\b\\";
    QTest::newRow("backslash before an n") << "C:\\new"
                                           << "C:\\\\new"
                                           << "C:\\new";
    QTest::newRow("backslash before a line feed is lost") << "a\\\nb"
                                                          << "a\\\\\\nb"
                                                          << "a\\\\nb";
    QTest::newRow("tab and equals sign") << "a\t=b"
                                         << "a\t=b"
                                         << "a\t=b";
}

void PropertyMapTest::escape()
{
    QFETCH(QString, text);
    QTEST(EntityUtil::escapeString(text), "escaped");
    QTEST(EntityUtil::unescapeString(EntityUtil::escapeString(text)), "readBack");
}

void PropertyMapTest::fromString_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<Map>("map");
    QTest::newRow("empty") << "" << Map();
    QTest::newRow("value with an equals sign") << "x=1=2\n" << Map{{"x", "1=2"}};
    QTest::newRow("the last of equal keys") << "x=1\ny=2\nx=3\n" << Map{{"x", "3"}, {"y", "2"}};
    QTest::newRow("no equals sign") << "\n\nabc\nx=1\n" << Map{{"x", "1"}};
    QTest::newRow("empty value and empty key") << "x=\n=1" << Map{{"x", ""}, {"", "1"}};
    QTest::newRow("escapes in values only") << "a\\nb=c\\nd\n" << Map{{"a\\nb", "c\nd"}};
    QTest::newRow("lone backslash stays") << "x=a\\b\\\n" << Map{{"x", "a\\b\\"}};
}

void PropertyMapTest::fromString()
{
    QFETCH(QString, text);
    PropertyMap record;
    record.setProperty(QStringLiteral("old"), 1);
    record.propertiesFromString(text);
    QTEST(record.properties, "map");
}

void PropertyMapTest::toString()
{
    PropertyMap record;
    QCOMPARE(record.propertiesToString(), QString());
    record.setProperty(QStringLiteral("b/x"), 800);
    record.setProperty(QStringLiteral("a"), QStringLiteral("1\n2"));
    record.setProperty(QStringLiteral("B"), true); // capitals before small letters
    QCOMPARE(record.propertiesToString(), QStringLiteral("B=true\na=1\\n2\nb/x=800\n"));
}

void PropertyMapTest::changes()
{
    PropertyMap record;
    for (const char *key : {"E1", "e1", "e2", "ee", "f", "d"})
        record.setPropertyIfNotEmpty(QLatin1String(key), QStringLiteral("value"));
    record.removeProperties(QStringLiteral("e"));
    QCOMPARE(QStringList(record.properties.keys()), QStringList({"E1", "d", "f"}));
    record.setPropertyIfNotEmpty(QStringLiteral("f"), QString());
    record.removeProperty(QStringLiteral("d"));
    record.removeProperty(QStringLiteral("x"));
    QCOMPARE(QStringList(record.properties.keys()), QStringList("E1"));
    record.setProperty(QStringLiteral("E1"), 5);
    QCOMPARE(record.property(QStringLiteral("E1"), 7), QVariant(5));
    QCOMPARE(record.property(QStringLiteral("d"), 7), QVariant(7));
    QCOMPARE(record.property(QStringLiteral("d")), QVariant());
}

QTEST_APPLESS_MAIN(PropertyMapTest)
#include "tst_propertymap.moc"

#include "csv.h"

#include <QTextStream>
#include <QtTest>

class CsvTest : public QObject {
    Q_OBJECT
private slots:
    void written_data();
    void written();
    void twoLines();
    void read_data();
    void read();
    void end();
};

void CsvTest::written_data()
{
    QTest::addColumn<QStringList>("fields");
    QTest::addColumn<QString>("delimiters");
    QTest::addColumn<QString>("line");
    const QString both = QStringLiteral(",;");
    QTest::newRow("every kind") << QStringList{"a", "b c", "d\"e", ""} << both << "a,\"b c\",\"d\"\"e\",\r\n";
    QTest::newRow("the other delimiter is quoted too") << QStringList{"a;b", "c,d"} << both << "\"a;b\",\"c,d\"\r\n";
    QTest::newRow("one delimiter") << QStringList{"a;b", "c,d"} << ";"
                                   << "\"a;b\";c,d\r\n";
    QTest::newRow("line ends, tabs and no-break spaces are not quoted")
        << QStringList{"a\nb\rc\td", QString("e") + QChar(0xa0)} << both << QString("a\nb\rc\td,e\u00a0\r\n");
    QTest::newRow("a quote alone") << QStringList{"\""} << both << "\"\"\"\"\r\n";
    QTest::newRow("only empty fields") << QStringList{"", "", ""} << both << ",,\r\n";
    QTest::newRow("no field") << QStringList() << both << "\r\n";
}

void CsvTest::written()
{
    QFETCH(QStringList, fields);
    QFETCH(QString, delimiters);
    QString text;
    QTextStream stream(&text);
    CSV csv(&stream);
    csv.setDelimiters(delimiters);
    for (const QString &field : fields)
        csv.writeField(field);
    csv.writeLine();
    QTEST(text, "line");
}

void CsvTest::twoLines()
{
    QString text;
    QTextStream stream(&text);
    CSV csv(&stream);
    csv.writeField("a");
    csv.writeLine();
    csv.writeField("b"); // a new line begins without a delimiter
    csv.writeLine();
    QCOMPARE(text, QString("a\r\nb\r\n"));
}

void CsvTest::read_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("fields");
    QTest::newRow("quoted delimiter and doubled quote") << "a;\"b;c\";\"d\"\"e\"" << QStringList{"a", "b;c", "d\"e"};
    QTest::newRow("both delimiters") << "a,b;c" << QStringList{"a", "b", "c"};
    QTest::newRow("empty field inside") << "a,,b" << QStringList{"a", "", "b"};
    QTest::newRow("empty field at the end is dropped") << "a,b," << QStringList{"a", "b"};
    QTest::newRow("but only one") << "a,," << QStringList{"a", ""};
    QTest::newRow("a delimiter alone") << "," << QStringList{""};
    QTest::newRow("blanks are content") << "  " << QStringList{"  "};
    QTest::newRow("joined") << "x\"y\"z" << QStringList{"xyz"};
    QTest::newRow("two quotes outside open and close") << "a\"\"b" << QStringList{"ab"};
    QTest::newRow("quote at the end of the line closes") << "\"a\"" << QStringList{"a"};
    QTest::newRow("doubled quote at the end") << "\"a\"\"" << QStringList{"a\""};
    QTest::newRow("unclosed quote ends with the line") << "\"a;b\nc" << QStringList{"a;b"};
    QTest::newRow("empty lines are skipped") << "\n\r\n\na;b\n" << QStringList{"a", "b"};
    QTest::newRow("quoted empty field alone") << "\"\"" << QStringList();
}

void CsvTest::read()
{
    QFETCH(QString, text);
    QTextStream stream(&text);
    QTEST(CSV(&stream).readLine(), "fields");
}

void CsvTest::end()
{
    QString text("a\n\n");
    QTextStream stream(&text);
    CSV csv(&stream);
    QCOMPARE(csv.readLine(), QStringList("a"));
    QCOMPARE(csv.readLine(), QStringList());
    QCOMPARE(csv.readLine(), QStringList());
}

QTEST_APPLESS_MAIN(CsvTest)
#include "tst_csv.moc"

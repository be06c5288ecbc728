#include "inputline.h"

#include <QtTest>

#include <unistd.h>

class InputLineTest : public QObject {
    Q_OBJECT
private slots:
    void splitWords_data();
    void splitWords();
    void read_data();
    void read();
    void readsALineOfAnOpenPipe();
};

void InputLineTest::splitWords_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QStringList>("words");
    const auto row = [](const char *line, const QStringList &words) {
        QTest::addRow("%s", line) << QString::fromUtf8(line) << words;
    };
    row("", {});
    row("a b", {"a", "b"});
    row("a  b", {"a", "", "b"});
    row(" a", {"", "a"});
    row("a ", {"a"});
    row("a\tb\rc", {"a", "b", "c"});
    row(u8"a\u00a0b\u2003c", {"a", "b", "c"});
    row(u8"a\u200bb", {QString::fromUtf8(u8"a\u200bb")}); // a zero-width space is none
    row("name=\"Oy Ab\"", {"name=Oy Ab"});
    row("\"a b\"c\" d\"", {"a bc d"});
    row("\"\"", {}); // an empty word at the end is not kept
    row("\"\" b", {"", "b"});
    row("\"open quote", {"open quote"});
    row("a\\\"b c", {"a\"b", "c"});
    row("a\\\"n", {"a\"n"}); // an escaped quote ends the escape
    row("\"A \\\"B\\\" C\"", {"A \"B\" C"});
    row("nrt", {"nrt"});
    row("a\\nn", {"a\n\n"});
    row("a\\nbn", {"a\nbn"});
    row("\\n\\t", {"\n\\t"}); // the escape is still in force, so the second backslash is an escaped one
    row("\\\\n", {"\\n"});
    row("a\\x", {"ax"});
    row("a\\ n", {"a", "\n"}); // unquoted white space leaves the escape as it is
    row("\"\\ n\"", {" n"});
    row("a\\", {"a"});
    row("key=a=b", {"key=a=b"});
}

void InputLineTest::splitWords()
{
    QFETCH(QString, line);
    QTEST(InputLine::splitWords(line), "words");
}

void InputLineTest::read_data()
{
    QTest::addColumn<QByteArray>("input");
    QTest::addColumn<QStringList>("lines");
    // One byte short of the reader's block, so that a letter of two bytes lies across its edge.
    const QByteArray almostBlock(65535, 'x');
    QTest::newRow("nothing") << QByteArray() << QStringList();
    QTest::newRow("an empty line") << QByteArray("\n") << QStringList{""};
    QTest::newRow("last line without LF") << QByteArray("a\nb") << QStringList{"a", "b"};
    QTest::newRow("CR LF") << QByteArray("a\r\n\r\nb\r\n") << QStringList{"a", "", "b"};
    QTest::newRow("CR inside a line") << QByteArray("a\rb\n") << QStringList{"a\rb"};
    QTest::newRow("a letter across blocks")
        << almostBlock + u8"ä\nö\n"
        << QStringList{almostBlock + QString::fromUtf8(u8"ä"), QString::fromUtf8(u8"ö")};
    QTest::newRow("many blocks") << QByteArray(200000, 'y') + "\nz" << QStringList{QString(200000, 'y'), "z"};
    QTest::newRow("LF first of a block") << almostBlock + "x\nb\n" << QStringList{almostBlock + "x", "b"};
}

void InputLineTest::read()
{
    QFETCH(QByteArray, input);
    QTemporaryFile file;
    QVERIFY(file.open() && file.write(input) == input.size() && file.seek(0));
    InputLine reader(file.handle());
    QStringList lines;
    QString line;
    while (reader.read(line))
        lines.append(line);
    QTEST(lines, "lines");
    line = QStringLiteral("kept");
    QVERIFY(!reader.read(line));
    QCOMPARE(line, QStringLiteral("kept"));
}

void InputLineTest::readsALineOfAnOpenPipe()
{
    int ends[2];
    QCOMPARE(pipe(ends), 0);
    InputLine reader(ends[0]);
    QString line;
    for (const char *text : {"one", "two"}) {
        QCOMPARE(write(ends[1], text, 3) + write(ends[1], "\n", 1), 4);
        QVERIFY(reader.read(line)); // hangs until ctest's time limit when the reader wants more
        QCOMPARE(line, QString::fromLatin1(text));
    }
    QCOMPARE(write(ends[1], "rest", 4), 4);
    close(ends[1]);
    QVERIFY(reader.read(line));
    QCOMPARE(line, QStringLiteral("rest"));
    QVERIFY(!reader.read(line));
    close(ends[0]);
}

QTEST_GUILESS_MAIN(InputLineTest)
#include "tst_inputline.moc"

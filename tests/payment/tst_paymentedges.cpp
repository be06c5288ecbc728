#include "paymentlog.h"

#include <QTest>

/** Files changed in one place: what else is read must stay, and nothing may count twice. */
class PaymentEdgesTest : public QObject {
    Q_OBJECT
private slots:
    void itemisation_data();
    void itemisation();
    void manyParts();
    void ktlSummary_data();
    void ktlSummary();
    void csv_data();
    void csv();
    void camt_data();
    void camt();
    void xmlLimits();
    void longLines();
    void mixedEncodings();

private:
    const QString m_folder = QFINDTESTDATA("../data/payments");
};

namespace {

/** A transaction record of an account statement. */
QByteArray t10(int number, char level, int cents, const char *reference = "", char code = '1', char receipt = ' ')
{
    const QByteArray amount = QByteArray::number(qAbs(cents)).rightJustified(18, '0');
    return "T10188" + QByteArray::number(number).rightJustified(6, '0') + QByteArray("A").leftJustified(18) +
           "150309000000000000" + code + "705" + QByteArray(35, ' ') + (cents < 0 ? '-' : '+') + amount + receipt +
           QByteArray(52, ' ') + QByteArray(reference).rightJustified(20, '0') + QByteArray(8, ' ') + level + '\n';
}

/** Cents, a colon and the reference of each payment; messages without their line numbers. */
QString summary(const QStringList &lines)
{
    QStringList result;
    for (const QString &line : lines) {
        const QStringList fields = line.split(QLatin1Char('|'));
        result +=
            line.startsWith(QLatin1Char('!')) ? fields.at(1).mid(8) : fields.at(3) + QLatin1Char(':') + fields.at(4);
    }
    return result.join(QLatin1String(", "));
}

const QByteArray statement = "T0032210012345600000785\n";

} // namespace

void PaymentEdgesTest::itemisation_data()
{
    QTest::addColumn<QByteArray>("records");
    QTest::addColumn<QString>("expected");
    const QByteArray whole = t10(1, ' ', 300, "", '1', 'E');
    const auto row = [](const char *name, const QByteArray &records, const char *expected) {
        QTest::newRow(name) << records << QString::fromLatin1(expected);
    };
    row("parts in place of the whole", whole + t10(1, '1', 100, "13") + t10(1, '1', 200, "26"), "100:13, 200:26");
    row("one part with a reference is enough", whole + t10(1, '1', 100) + t10(1, '1', 200, "26"), "100:, 200:26");
    row("no part with a reference", whole + t10(1, '1', 100) + t10(1, '1', 200), "300:");
    row("a reference of the whole alone", t10(1, ' ', 300, "39") + t10(1, '1', 100) + t10(1, '1', 200), "300:39");
    row("the number of another", whole + t10(2, '1', 100, "13"), "300:, 100:13");
    row("parts without the whole", t10(2, '1', 100) + t10(2, '1', 200, "26"), "100:, 200:26");
    row("parts of a damaged whole", t10(1, ' ', 300, "", 'X') + t10(1, '1', 300, "13"), "transaction code: X, 300:13");
    row("a damaged part", whole + t10(1, '1', 100, "13") + t10(1, '1', 200, "2X") + t10(2, ' ', 5),
        "100:13, reference number: 0000000000000000002X, 5:");
    row("a damaged part first", whole + t10(1, '1', 100, "1X") + t10(1, '1', 200, "26"),
        "reference number: 0000000000000000001X, 200:26");
    row("damage before the next", whole + "rubbish\n" + t10(2, ' ', 5), "300:, record code: rub, 5:");
    row("parts that do not add up", whole + t10(1, '1', 100, "13"), "100:13, amount of transaction: 300");
    row("a rejected whole", t10(1, ' ', 300, "39", '9') + t10(1, '1', 300, "13"), "");
    row("a payment out", t10(1, ' ', -300, "39", '2') + t10(1, '1', -300, "13", '2'), "-300:");
    row("parts of parts", whole + t10(1, '1', 300) + t10(1, '2', 100, "13") + t10(1, '2', 200, "26"), "100:13, 200:26");
    row("a part that is itself divided", whole + t10(1, '1', 300, "39") + t10(1, '2', 100) + t10(1, '2', 200),
        "300:39");
    row("told of elsewhere", t10(1, ' ', 300, "39", '1', 'E') + "T110160100000002\n", "300:");
    row("of one item", t10(1, ' ', 300, "39", '1', 'E') + "T110160100000001\n", "300:39");
    row("a damaged number of items", whole + "T11016010000000X\n" + t10(2, ' ', 5),
        "300:, number of items: 0000000X, 5:");
    row("beyond a payment, but divided", t10(1, ' ', 2147483647) + t10(2, ' ', 2147483647), "2147483647:, 2147483647:");
    row("a deposit taken back", t10(1, ' ', -300, "39", '3'), "-300:39");
    row("a withdrawal taken back", t10(1, ' ', 300, "39", '4'), "300:");
}

void PaymentEdgesTest::itemisation()
{
    QFETCH(QByteArray, records);
    QTEST(summary(PaymentLog::read(statement + records)), "expected");
}

/** More parts than are held back: all are reported, none with the whole. */
void PaymentEdgesTest::manyParts()
{
    constexpr int count = 12000;
    QByteArray records = statement + t10(1, ' ', count);
    for (int i = 0; i < count; ++i)
        records += t10(1, '1', 1);
    const QStringList lines = PaymentLog::read(records);
    QCOMPARE(lines.size(), count);
    QVERIFY(lines.first().startsWith(QLatin1String("3|")) && lines.last().startsWith(QLatin1String("12002|")));

    records = statement + t10(1, ' ', 300);
    for (int i = 0; i < count; ++i)
        records += "rubbish\n";
    const QStringList damaged = PaymentLog::read(records + t10(1, '1', 300, "13"));
    QCOMPARE(damaged.size(), count + 1);
    QVERIFY(damaged.first().startsWith(QLatin1String("2|")));
}

void PaymentEdgesTest::ktlSummary_data()
{
    QTest::addColumn<QByteArray>("summary");
    QTest::addColumn<QString>("expected");
    const char payments[] = "15000:12344, 123456:1000012, -15000:12344";
    const auto row = [&payments](const char *text, const char *more) {
        QTest::newRow(text) << QByteArray(text) << QString::fromLatin1(payments) + QLatin1String(more);
    };
    row("900000200000138456000001000000150000000000000000000", "");
    row("90000020000013845600000100000015000", "");
    row("900000300000138456000001000000150000000000000000000", ", number of transactions: 000003");
    row("900000200000138457000001000000150000000000000000000", ", amount of transactions: 00000138457");
    row("900000200000138456000002000000150000000000000000000", ", number of corrections: 000002");
    row("900000200000138456000001000000150010000000000000000", ", amount of corrections: 00000015001");
    row("900000200000138456000001000000150000000010000000000", ", number of failed direct debits: 000001");
    row("90000020000013845600000100000015O00", ", amount of corrections: 00000015O00");
    row("9000002", ", amount of transactions:            ");
    row("", ", record code: tiedoston loppu");
}

void PaymentEdgesTest::ktlSummary()
{
    QFETCH(QByteArray, summary);
    QByteArray bytes = paymentData(m_folder, QStringLiteral("ktl-two-accounts.ktl"));
    bytes = bytes.left(bytes.indexOf("\r\n9") + 2) + summary;
    QTEST(::summary(PaymentLog::read(bytes)), "expected");
}

void PaymentEdgesTest::csv_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const char *text, const char *expected) {
        QTest::newRow(name) << QString::fromUtf8(text) << QString::fromUtf8(expected);
    };
    row("columns moved and renamed", "Kirjauspvm;Viitenumero;Uusi;Summa;Nimi\n5.3.2015;12344;x;1,00;N", "100:12344");
    row("the payer's own reference", "Kirjauspäivä;Maksajan viite;Määrä;Viite\n5.3.2015;999;1,00;13", "100:13");
    row("a longer title", "Kirjauspäivä;Määrä (EUR);Viite\n5.3.2015;1,00;13", "100:13");
    row("a title that only begins so", "Kirjauspäivä;Määräaika;Viite\n5.3.2015;1,00;13",
        "column titles: sarake Määrä puuttuu");
    row("no titles", "Kirja;Maara\n5.3.2015;1,00", "column titles: sarake Kirjauspäivä puuttuu");
    row("titles alone", "Kirjauspäivä;Määrä;Viite", "");
    row("tabs", "Kirjauspäivä\tMäärä\tViite\n5.3.2015\t1,00\t13", "100:13");
    row("commas", "Kirjauspäivä,Määrä,Viite\n5.3.2015,\"1,00\",13", "100:13");
    row("Tilinumero and semicolons", "Tilinumero;Kirjauspäivä;Määrä;Viite\nFI2112345600000785;5.3.2015;1,00;13",
        "100:13");
    row("decomposed letters", "Kirjauspa\u0308iva\u0308;Ma\u0308a\u0308ra\u0308;Viite\n5.3.2015;1,00;13", "100:13");
    row("joined files", "Kirjauspäivä;Määrä;Viite\n5.3.2015;1,00;13\nMäärä;Viite;Kirjauspäivä\n2,00;26;5.3.2015",
        "100:13, 200:26");
    row("a second part without references",
        "Kirjauspäivä;Määrä;Viite\n5.3.2015;1,00;13\nKirjauspäivä;Määrä\n5.3.2015;2,00",
        "100:13, column titles: sarake Viite puuttuu");
    row("payment date", "Kirjauspäivä;Maksupäivä;Määrä;Viite\n5.3.2015;35.3.2015;1,00;13", "payment date: 35.3.2015");
    row("empty last column", "Kirjauspäivä;Määrä;Viite\n5.3.2015;1,00;\n6.3.2015;2,00;", "100:, 200:");
    row("cut off in the reference", "Kirjauspäivä;Määrä;Viite;Viesti\n5.3.2015;1,00;1234", "number of columns: 3");
    row("cut off behind it", "Kirjauspäivä;Määrä;Viite;Viesti\n5.3.2015;1,00;12344;", "100:12344");
    row("cut off in a tab file", "Kirjauspäivä\tMäärä\tViite\tViesti\n5.3.2015\t1,00\t1234", "reference number: 1234");
    row("tabs lost at the end", "Kirjauspäivä\tMäärä\tViite\tViesti\n5.3.2015\t1,00\n5.3.2015\t1,00\t12344",
        "100:, 100:12344");
    row("a quotation mark too many",
        "Kirjauspäivä;Määrä;Nimi;Viite\n5.3.2015;1,00;5\" OY;13\n5.3.2015;2,00;B;26\n5.3.2015;3,00;6\" OY;39",
        "100:13, 200:26, 300:39");
    row("one that nothing closes", "Kirjauspäivä;Määrä;Nimi;Viite\n5.3.2015;1,00;5\" OY;13\nx\n5.3.2015;X;\"B;26",
        "100:13, number of columns: 1, amount: X");
    row("lines within quotes", "Kirjauspäivä;Määrä;Viite;Viesti\n5.3.2015;1,00;13;\"a\n\n;b;\nc;\"\n5.3.2015;2,00;26;x",
        "100:13, 200:26");
    row("a percent sign", "Kirjauspäivä;Määrä;Viite\n%1 %2;1,00;13", "entry date: %1 %2");
}

void PaymentEdgesTest::csv()
{
    QFETCH(QString, text);
    QTEST(summary(PaymentLog::read(text.toUtf8())), "expected");
}

void PaymentEdgesTest::camt_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const char *before, const char *after, const char *expected) {
        QTest::newRow(name) << QByteArray(before) << QByteArray(after) << QString::fromLatin1(expected);
    };
    row("a reversal by number", "<Sts>", "<RvslInd>1</RvslInd><Sts>", "15000:, 123456:");
    row("no reversal", "<Sts>", "<RvslInd>false</RvslInd><Sts>", "15000:12344, 123456:1000012");
    row("a credit out", "CRDT</CdtDbtInd><Sts>", "DBIT</CdtDbtInd><Sts>", "-15000:, -123456:");
    row("code within an element", "<Sts>BOOK</Sts>", "<Sts>\n <Cd>PDNG</Cd>\n</Sts>", "");
    row("no status", "<Sts>BOOK</Sts>", "", "15000:12344, 123456:1000012");
    row("empty first reference", "<CdtrRefInf>", "<CdtrRefInf><Ref>00</Ref>", "15000:12344, 123456:1000012");
    row("another account's number", "<Ntry>", "<RltdAcct><Id><IBAN>X</IBAN></Id></RltdAcct><Ntry>",
        "15000:12344, 123456:1000012");
    row("an entry of its own kind", "<Ntry>", "<Bal><Amt>1</Amt></Bal><Ntry>", "15000:12344, 123456:1000012");
    row("a comment within", "12344", "12<!-- -->344", "15000:12344, 123456:1000012");
    row("character data", "12344", "<![CDATA[12344]]>", "15000:12344, 123456:1000012");
    row("an unknown entity", "Esimerkki", "&huu;", "15000:12344, XML");
}

void PaymentEdgesTest::camt()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    QFETCH(QString, expected);
    QByteArray bytes = paymentData(m_folder, QStringLiteral("camt054-v02.xml"));
    QVERIFY(bytes.contains(before));
    QString found = summary(PaymentLog::read(bytes.replace(before, after)));
    found.replace(QRegExp(QStringLiteral("XML: .*")), QStringLiteral("XML")); // the library's own words
    QCOMPARE(found, expected);
}

/** What would keep the parser busy without end is refused; what was read before stays. */
void PaymentEdgesTest::xmlLimits()
{
    const QByteArray bytes = paymentData(m_folder, QStringLiteral("camt054-v02.xml"));
    const auto readWith = [&bytes](const QByteArray &part) {
        return PaymentLog::read(QByteArray(bytes).replace("<Dbtr><Nm>Esi", "<Dbtr>" + part + "<Nm>Esi"));
    };
    QByteArray attributes;
    for (int i = 0; i < 8000; ++i)
        attributes += " a" + QByteArray::number(i) + "='>'";
    const QStringList longTag = readWith("<a" + attributes + "/>");
    QCOMPARE(longTag.size(), 2);
    QVERIFY2(longTag.at(1).endsWith(QString::fromUtf8("liian pitkä osa")), qPrintable(longTag.at(1)));
    const QStringList deep = readWith(QByteArray("<a>").repeated(1000));
    QCOMPARE(deep.size(), 2);
    QVERIFY2(deep.at(1).endsWith(QString::fromUtf8("liian monta sisäkkäistä elementtiä")), qPrintable(deep.at(1)));

    const QStringList all = PaymentLog::read(bytes);
    QCOMPARE(readWith(QByteArray("<a>").repeated(80) + QByteArray("</a>").repeated(80)), all);
    QCOMPARE(readWith(QByteArray("<a/>").repeated(100000)), all);
    QCOMPARE(readWith("<!--" + QByteArray(60000, 'x') + "-->"), all);
}

/** A line without end costs that line, and no more memory than a part of it. */
void PaymentEdgesTest::longLines()
{
    const QByteArray rubbish(300000, '3');
    QByteArray bytes = paymentData(m_folder, QStringLiteral("ktl-utf8.ktl"));
    bytes.replace("\r\n9", "\r\n" + rubbish + "\r\n9");
    QStringList lines = PaymentLog::read(bytes);
    QCOMPARE(lines.size(), 2);
    QCOMPARE(lines.at(1), QStringLiteral("!3|Invalid length of the record: 65535"));

    bytes = paymentData(m_folder, QStringLiteral("op-2017.csv"));
    bytes.replace("EUROA;", "EUROA;" + QByteArray())
        .replace("\n24.01.2017;24.01.2017;99", "\n" + rubbish + "\n24.01.2017;24.01.2017;99");
    lines = PaymentLog::read(bytes);
    QCOMPARE(summary(lines), QStringLiteral("250000:12344, length of the record: 65535, 9990:"));
}

/** UTF-8 and ISO-8859-1 in one file, as when two exports are joined. */
void PaymentEdgesTest::mixedEncodings()
{
    const QStringList lines = PaymentLog::read("Kirjausp\xC3\xA4iv\xC3\xA4;M\xC3\xA4\xC3\xA4r\xC3\xA4;Viite;Nimi\n"
                                               "5.3.2015;1,00;13;\xC3\x84yr\xC3\xA4s\n"
                                               "5.3.2015;2,00;26;\xC4yr\xE4s\n");
    QCOMPARE(lines.size(), 2);
    for (const QString &line : lines)
        QVERIFY2(line.endsWith(QString::fromUtf8("|Äyräs")), qPrintable(line));
}

QTEST_APPLESS_MAIN(PaymentEdgesTest)
#include "tst_paymentedges.moc"

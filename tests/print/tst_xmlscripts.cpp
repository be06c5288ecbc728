#include "printdatabase.h"
#include "xmlencoding.h"
#include "xmlscriptmanager.h"
#include "xmlscriptmodel.h"

#include <QSignalSpy>
#include <QTextCodec>
#include <QXmlStreamReader>

/** XML scripts: the character set, what a script writes, the transmission frame, and files that cannot be written. */
class XmlScriptsTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void everyCharacter();
    void surrogates();
    void documents_data();
    void documents();
    void charactersSurvive();
    void errors_data();
    void errors();
    void errorsEndWithTheirRun();
    void frame_data();
    void frame();
    void appended();
    void unwritableFiles_data();
    void unwritableFiles();
    void withoutScript();

private:
    QByteArray written();
    QByteArray document(const QString &body);

    PrintDatabase m_data;
    QString m_file;
};

namespace {

const QByteArray declaration = "<?xml version=\"1.0\" encoding=\"ISO-8859-15\"?>";

QString script(const QString &body) { return "function write() {\n" + body + "\n}"; }

} // namespace

void XmlScriptsTest::init()
{
    m_data.clear();
    m_file = m_data.filePath("a.xml");
    QFile::remove(m_file);
}

QByteArray XmlScriptsTest::written()
{
    QFile file(m_file);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
}

/** What a script writes behind the declaration. */
QByteArray XmlScriptsTest::document(const QString &body)
{
    XmlScriptManager manager;
    manager.loadFromSource(script(body), "own.qs");
    XmlScriptModel model(m_data.registry());
    manager.write(m_file, false, &model);
    if (manager.hasException())
        return manager.exception().toUtf8();
    const QByteArray bytes = written();
    return bytes.startsWith(declaration) ? bytes.mid(declaration.size()) : bytes;
}

void XmlScriptsTest::everyCharacter()
{
    QTextCodec *codec = QTextCodec::codecForName("ISO-8859-15");
    for (uint c = 0; c <= 0xffff; ++c) {
        const bool isForbidden =
            (c < 0x20 && c != '\t' && c != '\n' && c != '\r') || QChar::isSurrogate(c) || c > 0xfffd;
        const QChar character(c);
        const QByteArray expected = isForbidden                   ? QByteArray()
                                    : codec->canEncode(character) ? codec->fromUnicode(QString(character))
                                                                  : "&#" + QByteArray::number(c) + ';';
        if (XmlEncoding::encode(QString(character)) != expected)
            QFAIL(qPrintable(QString::number(c, 16)));
    }
}

void XmlScriptsTest::surrogates()
{
    const QChar high(0xd83d), low(0xde00);
    QCOMPARE(XmlEncoding::encode(QString("a") + high + low + 'b'), QByteArray("a&#128512;b"));
    QCOMPARE(XmlEncoding::encode(QString("a") + high), QByteArray("a"));
    QCOMPARE(XmlEncoding::encode(QString("a") + low + high + 'b'), QByteArray("ab"));
    QCOMPARE(XmlEncoding::encode(QString(high) + high + low), QByteArray("&#128512;"));
}

void XmlScriptsTest::documents_data()
{
    QTest::addColumn<QString>("body");
    QTest::addColumn<QByteArray>("document");
    const struct {
        const char *tag, *body, *document;
    } rows[] = {
        {"nothing", "", "\n"},
        {"nested", "startElement('A'); attribute('b', 'x\"<&\\n'); textElement('C', 'd'); endElement('A');",
         "\n<A b=\"x&quot;&lt;&amp;&#10;\">\n    <C>d</C>\n</A>\n"},
        {"instruction, comment, type",
         "processingInstruction('xml-stylesheet', 'href=\"a\"'); comment('c'); doctype('<!DOCTYPE A>'); "
         "startElement('A'); characters('<'); endElement('A');",
         "\n<?xml-stylesheet href=\"a\"?>\n<!--c-->\n<!DOCTYPE A>\n<A>&lt;</A>\n"},
        {"left open", "startElement('A'); startElement('B'); characters('x');", "\n<A>\n    <B>x</B>\n</A>\n"},
        {"end without a start", "endElement('A');", "\n"},
        {"mismatch that is caught",
         "startElement('A'); startElement('B'); try { endElement('A'); } catch (e) { characters(e.message); }",
         "\n<A>\n    <B>Mismatched tag: A != B</B>\n</A>\n"},
        {"undefined", "textElement('A', get('invoice/number'));", "\n<A></A>\n"},
        {"amounts",
         "startElement('A'); characters([formatCurrency(-123456789), formatCurrency(5), "
         "formatNumber(123450000, AMOUNT_SCALE, 2), formatNumber(-25500, QUANTITY_SCALE, 0), "
         "formatNumber(2400, PERCENTAGE_SCALE, 0), formatCurrency(undefined)].join(' '));",
         "\n<A>-1234567,89 0,05 12345,00 -2,55 24 0,00</A>\n"},
        {"dates", "textElement('A', formatDate(new Date(2024, 1, 29), 'yyyyMMdd'));", "\n<A>20240229</A>\n"},
        {"prelude", "textElement('A', typeof currentDate() + typeof nosuch + typeof drawText);",
         "\n<A>objectundefinedundefined</A>\n"},
    };
    for (const auto &row : rows)
        QTest::newRow(row.tag) << QString(row.body) << QByteArray(row.document);
}

void XmlScriptsTest::documents()
{
    QFETCH(QString, body);
    QTEST(document(body), "document");
}

/** What the character set lacks comes back from a reader, in texts and attributes; nothing behind it is lost. */
void XmlScriptsTest::charactersSurvive()
{
    const QString text = QString::fromUtf8(u8"€Šž ł – “x” 😀 äÖ\u00a4");
    m_data.settings().sellerName = text.left(3) + QChar(1) + text.mid(3) + QChar(0xd800) + QChar(0xffff);
    document("startElement('A'); attribute('b', get('seller/name')); textElement('C', get('seller/name')); "
             "textElement('D', 'end'); endElement('A');");
    QVERIFY(written().contains("\xa4\xa6\xb8 &#322; &#8211;"));
    QXmlStreamReader reader(written());
    QVERIFY(reader.readNextStartElement());
    QCOMPARE(reader.attributes().value("b").toString(), text);
    QVERIFY(reader.readNextStartElement());
    QCOMPARE(reader.readElementText(), text);
    QVERIFY(reader.readNextStartElement());
    QCOMPARE(reader.readElementText(), QString("end"));
    while (!reader.atEnd())
        reader.readNext();
    QVERIFY2(!reader.hasError(), qPrintable(reader.errorString()));
}

void XmlScriptsTest::errors_data()
{
    QTest::addColumn<QString>("body");
    QTest::addColumn<QString>("exception");
    QTest::addColumn<QString>("firstFrame");
    QTest::newRow("mismatch") << "startElement('A'); textElement('C', 'x'); startElement('B');\nendElement('A');"
                              << "Error: Mismatched tag: A != B"
                              << "functions.qs";
    QTest::newRow("thrown") << "startElement('A'); textElement('C', 'x'); startElement('B');\nthrow 'oops';"
                            << "oops"
                            << "own.qs:3";
}

/** What was written before the error is closed and kept. */
void XmlScriptsTest::errors()
{
    QFETCH(QString, body);
    XmlScriptManager manager;
    QSignalSpy spy(&manager, &XmlScriptManager::exceptionUncaught);
    manager.loadFromSource(script(body), "own.qs");
    QVERIFY(!manager.hasException());
    XmlScriptModel model(m_data.registry());
    manager.write(m_file, false, &model);
    QTEST(manager.exception(), "exception");
    QFETCH(QString, firstFrame);
    QVERIFY2(manager.backTrace().first().contains(firstFrame), qPrintable(manager.backTrace().join('\n')));
    QCOMPARE(spy.count(), 1);
    QCOMPARE(manager.lastError(), QString());
    QCOMPARE(written(), declaration + "\n<A>\n    <C>x</C>\n    <B/>\n</A>\n");
}

void XmlScriptsTest::errorsEndWithTheirRun()
{
    XmlScriptManager manager;
    QSignalSpy spy(&manager, &XmlScriptManager::exceptionUncaught);
    manager.loadFromSource("var n = 0; " + script("startElement('A'); if (++n % 2) endElement('B');"), "own.qs");
    XmlScriptModel model(m_data.registry());
    for (int run = 1; run <= 4; ++run) {
        manager.write(m_file, false, &model);
        QCOMPARE(manager.hasException(), run % 2 == 1);
    }
    QCOMPARE(spy.count(), 2);
}

void XmlScriptsTest::frame_data()
{
    QTest::addColumn<QString>("settings");
    QTest::addColumn<QString>("customer"); // properties
    QTest::addColumn<QString>("parties");
    const QString sender = "<eb:From>\n<eb:PartyId>%1</eb:PartyId>\n<eb:Role>%2</eb:Role>\n</eb:From>\n";
    const QString receiver = "<eb:To>\n<eb:PartyId>%1</eb:PartyId>\n<eb:Role>%2</eb:Role>\n</eb:To>\n";
    QTest::newRow("no addresses") << ""
                                  << ""
                                  << "";
    QTest::newRow("all addresses")
        << "finvoice/senderId=S<\nfinvoice/intermediatorId=SI\nfinvoice/defaultReceiverId=D\n"
        << "e2=R\ne1=RI\n"
        << sender.arg("S&lt;", "Sender") + sender.arg("SI", "Intermediator") + receiver.arg("R", "Receiver") +
               receiver.arg("RI", "Intermediator");
    QTest::newRow("default receiver") << "finvoice/defaultReceiverId=D\n"
                                      << "e3=EDI\n"
                                      << receiver.arg("D", "Receiver");
    QTest::newRow("intermediators only") << "finvoice/intermediatorId=SI\n"
                                         << "e1=RI\n"
                                         << sender.arg("SI", "Intermediator") + receiver.arg("RI", "Intermediator");
}

void XmlScriptsTest::frame()
{
    QFETCH(QString, settings);
    QFETCH(QString, customer);
    m_data.settings().propertiesFromString(settings);
    Customer record;
    record.propertiesFromString(customer);
    Invoice invoice;
    invoice.number = 17;
    invoice.customerId = m_data.add(record);
    m_data.add(invoice);
    m_data.fetch();
    XmlScriptModel model(m_data.registry());
    QVERIFY(model.run());
    QFile file(m_file);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(XmlScriptManager::writeSoapEnv(&file, &model));
    file.close();
    QString frame = QString::fromLatin1(written());
    const QRegularExpression timestamp("<eb:Timestamp>\\d{4}-\\d\\d-\\d\\dT\\d\\d:\\d\\d:\\d\\d</eb:Timestamp>");
    QVERIFY(frame.contains(timestamp));
    QFETCH(QString, parties);
    const QString ebxml = "http://www.oasis-open.org/committees/ebxml-msg/schema/msg-header-2_0.xsd";
    QCOMPARE(frame.replace(timestamp, "TIME"),
             "<SOAP-ENV:Envelope xmlns:SOAP-ENV=\"http://schemas.xmlsoap.org/soap/envelope/\" "
             "xmlns:xlink=\"http://www.w3.org/1999/xlink\" xmlns:eb=\"" +
                 ebxml +
                 "\">\n"
                 "<SOAP-ENV:Header>\n"
                 "<eb:MessageHeader xmlns:eb=\"" +
                 ebxml + "\" SOAP-ENV:mustUnderstand=\"1\">\n" + parties +
                 "<eb:CPAId>yoursandmycpa</eb:CPAId>\n"
                 "<eb:MessageData>\n"
                 "<eb:MessageId>17</eb:MessageId>\n"
                 "TIME\n"
                 "</eb:MessageData>\n"
                 "</eb:MessageHeader>\n"
                 "</SOAP-ENV:Header>\n"
                 "<SOAP-ENV:Body>\n"
                 "<eb:Manifest eb:id=\"Manifest\" eb:version=\"2.0\">\n"
                 "<eb:Reference eb:id=\"Finvoice\" xlink:href=\"17\">\n"
                 "<eb:Schema eb:location=\"http://www.finvoice.info/finvoice.xsd\" eb:version=\"2.0\"/>\n"
                 "</eb:Reference>\n"
                 "</eb:Manifest>\n"
                 "</SOAP-ENV:Body>\n"
                 "</SOAP-ENV:Envelope>\n");
}

/** Each document stands behind its frame, and the next frame behind it. */
void XmlScriptsTest::appended()
{
    XmlScriptManager manager;
    manager.setSoapEnvEnabled(true);
    manager.loadFromSource(script("textElement('A', get('invoice/number'));"), "own.qs");
    XmlScriptModel model(m_data.registry());
    manager.write(m_file, true, &model);
    manager.write(m_file, true, &model);
    const QByteArray bytes = written();
    QVERIFY(bytes.startsWith("<SOAP-ENV:Envelope "));
    QCOMPARE(bytes.count("</SOAP-ENV:Envelope>\n" + declaration + "\n<A></A>\n"), 2);
    QCOMPARE(bytes.count("</A>\n<SOAP-ENV:Envelope "), 1);
    manager.setSoapEnvEnabled(false);
    manager.write(m_file, false, &model);
    QCOMPARE(written(), declaration + "\n<A></A>\n");
}

void XmlScriptsTest::unwritableFiles_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<bool>("append");
    for (const bool append : {false, true}) {
        const char *mode = append ? "append to %s" : "write %s";
        QTest::addRow(mode, "nowhere") << "/nonexistent/a.xml" << append;
        QTest::addRow(mode, "a folder") << QDir::tempPath() << append;
        QTest::addRow(mode, "a full disk") << "/dev/full" << append;
    }
}

void XmlScriptsTest::unwritableFiles()
{
    QFETCH(QString, file);
    QFETCH(bool, append);
    XmlScriptManager manager;
    manager.loadFromSource(script("textElement('A', 'x');"), "own.qs");
    XmlScriptModel model(m_data.registry());
    manager.write(file, append, &model);
    QVERIFY(!manager.lastError().isEmpty());
    QVERIFY(!manager.hasException());
    manager.write(m_file, append, &model);
    QCOMPARE(manager.lastError(), QString());
}

void XmlScriptsTest::withoutScript()
{
    XmlScriptManager manager;
    XmlScriptModel model(m_data.registry());
    manager.write(m_file, false, &model);
    manager.loadFromSource("function print() {}", "own.qs");
    manager.write(m_file, false, &model);
    QVERIFY(!QFile::exists(m_file));
    QVERIFY(!manager.load("/nonexistent/a.qs"));
}

QTEST_MAIN(XmlScriptsTest)
#include "tst_xmlscripts.moc"

#include "pdfprinter.h"
#include "pdfreader.h"
#include "printmodel.h"
#include "printscriptmanager.h"

#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <limits>

#include <sys/resource.h>

namespace {

/** A model that answers every path with a value of each kind in turn. */
class KindsModel : public PrintModel {
public:
    QString title() const override { return QString(); }
    bool exportToCSV(const QString &, const QString &) override { return false; }
    using PrintModel::value;
    QVariant value(QStringList &path) override
    {
        static const QHash<QString, QVariant> values{
            {"int", 7},     {"long", 12345678901LL},      {"text", QString::fromUtf8(u8"ä")},
            {"true", true}, {"date", QDate(2024, 2, 29)}, {"nodate", QDate()}};
        return values.value(path.value(0));
    }
};

constexpr int allPages = std::numeric_limits<int>::max();

/** Makes writing past a size fail, as a full disk does. @return the limit before */
rlimit limitFileSize(rlim_t bytes)
{
    rlimit before;
    getrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{bytes, before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
    return before;
}

} // namespace

/** Scripts on real PDF files, read with pdftotext. */
class PrintScriptManagerTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void prelude_data();
    void prelude();
    void pages_data();
    void pages();
    void exceptionKeepsPages();
    void exceptionsEndWithTheirRun();
    void oneManyFiles();
    void orientations_data();
    void orientations();
    void supportedOrientations_data();
    void supportedOrientations();
    void ownModel();
    void nothingToRun();
    void replacesWholeFiles();
    void unwritableFiles_data();
    void unwritableFiles();
    void fullDisk();

private:
    QString print(const QString &script, int fromPage = 0, int toPage = allPages);
    QStringList texts() const;

    KindsModel m_model;
    std::unique_ptr<QPrinter> m_printer = PdfPrinter::create();
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_file;
};

void PrintScriptManagerTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_file = m_folder->filePath("a.pdf");
    m_printer->setOutputFileName(m_file);
}

/** @return the exception, or the other error */
QString PrintScriptManagerTest::print(const QString &script, int fromPage, int toPage)
{
    PrintScriptManager manager;
    manager.loadFromSource(script, "own.qs");
    if (!manager.hasException())
        manager.print(m_printer.get(), &m_model, fromPage, toPage, false);
    return manager.hasException() ? manager.exception() : manager.lastError();
}

/** The lines of each page, joined. */
QStringList PrintScriptManagerTest::texts() const
{
    QStringList texts;
    for (const QStringList &lines : PdfReader::pages(m_file))
        texts << lines.join('|');
    return texts;
}

void PrintScriptManagerTest::prelude_data()
{
    QTest::addColumn<QString>("expression");
    QTest::addColumn<QString>("value");
    const struct {
        const char *expression, *value;
    } rows[] = {
        {"get('int') + 1", "8"},
        {"get('long') + 1", "12345678902"},
        {"get('text') + 1", u8"ä1"},
        {"get('true') === true", "true"},
        {"typeof get('nosuch')", "undefined"},
        {"get('date').getDate()", "29"},
        {"formatDate(get('date'), 'd.M.yyyy')", "29.2.2024"},
        {"'[' + formatDate(get('nodate'), 'd.M.yyyy') + ']'", "[]"},
        {"currentDate().getFullYear() > 2000", "true"},
        {"[AMOUNT_SCALE, QUANTITY_SCALE, PERCENTAGE_SCALE].join()", "4,4,2"},
        {"setLocale('fi'), formatNumber(2400, PERCENTAGE_SCALE)", "24"},
        {"setLocale('fi'), formatCurrency(5)", "0,05"},
        {"setLocale('fi'), formatCurrency(undefined)", "0,00"},
        {"isTextClipping()", "true"},
        {"setTextClipping(false), isTextClipping(true)", "false"},
        {"setLineHeight(5), typeof lineHeight()", "undefined"}, // kept
        {"orientation()", "1"},
        {"[paperRect().x, Math.round(paperRect().width), Math.round(pageRect().height)].join()", "0,210,297"},
        {"boundingRect(20, 30, 50, 0, '').x + boundingRect(20, 30.5, 50, 0, '').y", "50.5"},
        {"setFont('Arial', 10), boundingRectRight(0, 0, 50, 0, 'x').x > boundingRectCenter(0, 0, 50, 0, 'x').x",
         "true"},
        {"l[2]", "ReferenceError: Can't find variable: l"},
        {"boundingRect(0, 0, 50, 0, ''), l[2]", "0"}, // kept: the list is left in a global
        {"[drawLine, drawRect, fillRect, drawText, drawTextRight, drawTextHCenter, drawTextVCenter, drawTextCenter, "
         "drawImage, drawBarcode128C, rotate, setBrush, setPen, newPage].length",
         "14"},
        {"drawText(0, 0, 10, 10, undefined), drawText(0, 0, 10, 0, null), drawText(0, 0, 10, 0, {}), 'ok'", "ok"},
        {"setPen('#000'), setPen('#000', 0.5), setBrush('#ccc'), 'ok'", "ok"},
    };
    for (const auto &row : rows)
        QTest::newRow(row.expression) << QString(row.expression) << QString::fromUtf8(row.value);
}

void PrintScriptManagerTest::prelude()
{
    QFETCH(QString, expression);
    QTEST(print("function print() { throw '' + (" + expression + "); }"), "value");
}

void PrintScriptManagerTest::pages_data()
{
    QTest::addColumn<int>("fromPage");
    QTest::addColumn<int>("toPage");
    QTest::addColumn<QStringList>("texts");
    QTest::newRow("all") << 0 << allPages << QStringList{"p1", "p2", "p3"};
    QTest::newRow("from the second: it is the printer's first") << 2 << allPages << QStringList{"p2", "p3"};
    QTest::newRow("first") << 1 << 1 << QStringList{"p1"};
    QTest::newRow("second") << 2 << 2 << QStringList{"p2"};
}

void PrintScriptManagerTest::pages()
{
    QFETCH(int, fromPage);
    QFETCH(int, toPage);
    QCOMPARE(print("function print() { setFont('Arial', 10); for (var i = 1; i <= 3; i++) "
                   "{ if (i > 1) newPage(); drawText(20, 20, 100, 0, 'p' + i); } }",
                   fromPage, toPage),
             QString());
    QTEST(texts(), "texts");
}

void PrintScriptManagerTest::exceptionKeepsPages()
{
    PrintScriptManager manager;
    QSignalSpy spy(&manager, &PrintScriptManager::exceptionUncaught);
    manager.loadFromSource("function print() {\n  drawText(20, 20, 100, 0, 'one');\n  newPage();\n"
                           "  drawText(20, 20, 100, 0, 'two');\n  nosuch();\n}",
                           "own.qs");
    manager.print(m_printer.get(), &m_model, 0, allPages, false);
    QCOMPARE(manager.exception(), QString("ReferenceError: Can't find variable: nosuch"));
    QCOMPARE(manager.exceptionLineNumber(), 5);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(manager.lastError(), QString());
    QCOMPARE(texts(), (QStringList{"one", "two"}));
}

void PrintScriptManagerTest::exceptionsEndWithTheirRun()
{
    PrintScriptManager manager;
    QSignalSpy spy(&manager, &PrintScriptManager::exceptionUncaught);
    manager.loadFromSource("var n = 0; function print() { if (++n % 2) throw 'odd'; }", "own.qs");
    for (int run = 1; run <= 4; ++run) {
        manager.print(m_printer.get(), &m_model, 0, allPages, false);
        QCOMPARE(manager.hasException(), run % 2 == 1);
    }
    QCOMPARE(spy.count(), 2);
    m_printer->setOutputFileName("/nonexistent/a.pdf");
    manager.print(m_printer.get(), &m_model, 0, allPages, false); // not run at all
    QVERIFY(!manager.hasException());
}

/** One manager and one printer: each run begins with the defaults, and each file stands on its own. */
void PrintScriptManagerTest::oneManyFiles()
{
    PrintScriptManager manager;
    manager.loadFromSource("var n = 0;\nfunction print() { if (isTextClipping() && orientation() == 1) "
                           "drawText(20, 20 + n, 100, 0, 'number ' + ++n); setTextClipping(false); rotate(90); }",
                           "own.qs");
    for (int i = 1; i <= 3; ++i) {
        m_file = m_folder->filePath(QStringLiteral("%1.pdf").arg(i));
        m_printer->setOutputFileName(m_file);
        manager.print(m_printer.get(), &m_model, 0, allPages, false);
        QCOMPARE(texts(), QStringList(QStringLiteral("number %1").arg(i)));
    }
    QCOMPARE(m_printer->outputFileName(), m_file);
}

void PrintScriptManagerTest::orientations_data()
{
    QTest::addColumn<int>("orientation");
    QTest::addColumn<bool>("setPaperSize");
    QTest::addColumn<QSize>("size");
    QTest::newRow("portrait") << int(QPrinter::Portrait) << false << QSize(210, 297);
    QTest::newRow("landscape") << int(QPrinter::Landscape) << false << QSize(297, 210);
    QTest::newRow("own paper size") << int(QPrinter::Portrait) << true << QSize(148, 210);
    QTest::newRow("own paper size, landscape") << int(QPrinter::Landscape) << true << QSize(210, 148);
}

void PrintScriptManagerTest::orientations()
{
    m_printer->setPageSize(QPageSize(QPageSize::A4));
    PrintScriptManager manager;
    manager.loadFromSource("function print() { fillRect(1, 1, 1, 1); }", "own.qs");
    QFETCH(int, orientation);
    QFETCH(bool, setPaperSize);
    manager.setOrientation(static_cast<QPrinter::Orientation>(orientation));
    manager.setPaperSize(QPagedPaintDevice::A5);
    manager.print(m_printer.get(), &m_model, 0, allPages, setPaperSize);
    QTEST(PdfReader::paperSize(m_file), "size");
    m_printer->setPageSize(QPageSize(QPageSize::A4));
}

void PrintScriptManagerTest::supportedOrientations_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<int>("flags");
    QTest::newRow("none") << "" << 1;
    QTest::newRow("both") << "function supportedOrientations() { return 3; }" << 3;
    QTest::newRow("a text") << "function supportedOrientations() { return '3'; }" << 1;
    QTest::newRow("nothing") << "function supportedOrientations() {}" << 1;
    QTest::newRow("an error") << "function supportedOrientations() { throw 3; }" << 1;
    QTest::newRow("no function") << "var supportedOrientations = 3;" << 1;
}

void PrintScriptManagerTest::supportedOrientations()
{
    QFETCH(QString, script);
    PrintScriptManager manager;
    QCOMPARE(manager.supportedOrientations(), 1); // nothing loaded
    manager.loadFromSource(script, "own.qs");
    QTEST(manager.supportedOrientations(), "flags");
}

void PrintScriptManagerTest::ownModel()
{
    PrintScriptManager manager;
    manager.loadFromSource("function print() { drawText(20, 20, 100, 0, get('text')); }", "own.qs");
    manager.print(m_printer.get());
    QVERIFY(!QFile::exists(m_file)); // without a model
    manager.setModel(&m_model);
    QVERIFY(QMetaObject::invokeMethod(&manager, "print", Q_ARG(QPrinter *, m_printer.get())));
    QCOMPARE(texts(), QStringList(QString::fromUtf8(u8"ä")));
}

void PrintScriptManagerTest::nothingToRun()
{
    for (const char *script : {"", "var x = 1;", "function Print() {}", "function print() { ( }"})
        print(script);
    QVERIFY(!QFile::exists(m_file));
    PrintScriptManager manager;
    QVERIFY(!manager.load("/nonexistent/own.qs"));
    QVERIFY(!manager.hasException());
    manager.print(m_printer.get(), &m_model, 0, allPages, false);
    QVERIFY(!QFile::exists(m_file));
}

void PrintScriptManagerTest::replacesWholeFiles()
{
    QFile old(m_file);
    QVERIFY(old.open(QIODevice::WriteOnly));
    old.write("old");
    old.close();
    QVERIFY(old.setPermissions(QFile::ReadOwner | QFile::WriteOwner));
    const QString link = m_folder->filePath("link.pdf");
    QVERIFY(QFile::link(m_file, link));
    m_printer->setOutputFileName(link);
    QCOMPARE(print("function print() { drawText(20, 20, 100, 0, 'new'); }"), QString());
    QCOMPARE(texts(), QStringList("new"));
    QVERIFY(QFileInfo(link).isSymLink());
    QVERIFY(!QFile::permissions(m_file).testFlag(QFile::ReadOther));
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden), (QStringList{"a.pdf", "link.pdf"}));
}

void PrintScriptManagerTest::unwritableFiles_data()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("nowhere") << "/nonexistent/a.pdf";
    QTest::newRow("a folder") << QDir::tempPath();
}

void PrintScriptManagerTest::unwritableFiles()
{
    QFETCH(QString, file);
    m_printer->setOutputFileName(file);
    QVERIFY(!print("function print() {}").isEmpty());
    m_printer->setOutputFileName(m_file);
    QCOMPARE(print("function print() {}"), QString());
}

/** With files limited in size, as on a full disk: nothing of the document is left, an earlier file is as it was. */
void PrintScriptManagerTest::fullDisk()
{
    const QString script = "function print() { for (var i = 0; i < 50; i++) { drawText(20, 20, 100, 0, 'page ' + i); "
                           "newPage(); } }";
    for (const bool exists : {false, true}) {
        if (exists)
            QCOMPARE(print("function print() { drawText(20, 20, 100, 0, 'old'); }"), QString());
        const rlimit unlimited = limitFileSize(4096);
        const QString error = print(script);
        setrlimit(RLIMIT_FSIZE, &unlimited);
        m_printer = PdfPrinter::create(m_file); // the library's printer writes no more after a failure
        QCOMPARE(error, QString::fromUtf8(u8"Tiedoston kirjoittaminen jäi kesken"));
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden),
                 exists ? QStringList("a.pdf") : QStringList());
        if (exists)
            QCOMPARE(texts(), QStringList("old"));
    }
}

QTEST_MAIN(PrintScriptManagerTest)
#include "tst_printscriptmanager.moc"

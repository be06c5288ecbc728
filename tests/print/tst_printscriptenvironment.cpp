#include "printmodel.h"
#include "printscriptenvironment.h"

#include <QImage>
#include <QPainter>
#include <QtTest>

#include <limits>
#include <memory>

namespace {

/** A model with one image, 40 × 10 pixels. */
class ImageModel : public PrintModel {
public:
    QString title() const override { return QString(); }
    bool exportToCSV(const QString &, const QString &) override { return false; }
    using PrintModel::image;
    using PrintModel::value;
    QVariant value(QStringList &path) override { return path.join('|'); }
    QImage image(QStringList &path) override
    {
        QImage image(40, 10, QImage::Format_RGB32);
        image.fill(Qt::red);
        return path == QStringList("logo") ? image : QImage();
    }
};

constexpr int allPages = std::numeric_limits<int>::max();
constexpr int dpi = 254; // ten pixels a millimetre
constexpr int pixelsPerMm = 10;

} // namespace

/** The drawing functions, called as a script calls them, on an image whose pixels are tenths of a millimetre. */
class PrintScriptEnvironmentTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void values();
    void numbers_data();
    void numbers();
    void shapes();
    void nonsense();
    void pens_data();
    void pens();
    void fonts_data();
    void fonts();
    void rotation();
    void alignments_data();
    void alignments();
    void clipping_data();
    void clipping();
    void clippedText_data();
    void clippedText();
    void wrappedLines_data();
    void wrappedLines();
    void bounds();
    void images();
    void barcodes();
    void unpaintedPages_data();
    void unpaintedPages();
    void paper();

private:
    PrintScriptEnvironment &environment(int fromPage = 0, int toPage = allPages);
    QRect ink() const;
    int inkedLines() const;
    void wipe();

    ImageModel m_model;
    std::unique_ptr<QPrinter> m_printer;
    QImage m_image;
    std::unique_ptr<QPainter> m_painter;
    std::unique_ptr<PrintScriptEnvironment> m_environment;
};

void PrintScriptEnvironmentTest::init()
{
    m_printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    m_printer->setOutputFormat(QPrinter::PdfFormat);
    m_printer->setResolution(dpi);
    m_printer->setPageSize(QPageSize(QPageSize::A4));
    m_printer->setFullPage(true);
    m_image = QImage(1500, 800, QImage::Format_RGB32);
    m_image.setDotsPerMeterX(1000 * pixelsPerMm);
    m_image.setDotsPerMeterY(1000 * pixelsPerMm);
    m_painter = std::make_unique<QPainter>(&m_image);
    wipe();
}

void PrintScriptEnvironmentTest::cleanup()
{
    m_environment.reset();
    m_painter.reset();
}

PrintScriptEnvironment &PrintScriptEnvironmentTest::environment(int fromPage, int toPage)
{
    m_environment =
        std::make_unique<PrintScriptEnvironment>(&m_model, m_printer.get(), m_painter.get(), fromPage, toPage);
    m_environment->setFont("Arial", 10, "normal");
    return *m_environment;
}

void PrintScriptEnvironmentTest::wipe() { m_image.fill(Qt::white); }

/** The box of all that is not white. */
QRect PrintScriptEnvironmentTest::ink() const
{
    QRect box;
    for (int y = 0; y < m_image.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(m_image.constScanLine(y));
        for (int x = 0; x < m_image.width(); ++x) {
            if (line[x] != qRgb(255, 255, 255))
                box |= QRect(x, y, 1, 1);
        }
    }
    return box;
}

/** The number of bands of inked rows of pixels, of text without dots and accents the number of its lines. */
int PrintScriptEnvironmentTest::inkedLines() const
{
    int lines = 0;
    bool wasInked = false;
    for (int y = 0; y < m_image.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(m_image.constScanLine(y));
        const bool isInked = std::any_of(line, line + m_image.width(), [](QRgb c) { return c != qRgb(255, 255, 255); });
        lines += isInked && !wasInked;
        wasInked = isInked;
    }
    return lines;
}

void PrintScriptEnvironmentTest::values()
{
    PrintScriptEnvironment &env = environment();
    QCOMPARE(env.get("a//b"), QVariant("a||b"));
    QCOMPARE(env.formatDate(QDate(2024, 2, 9), "dd.MM.yyyy"), QString("09.02.2024"));
    QCOMPARE(env.formatDate(QDate(), "dd.MM.yyyy"), QString());
    QCOMPARE(env.currentDate(), QDate::currentDate());
    QVERIFY(env.isTextClipping());
    QCOMPARE(env.lineHeight(), -1.0);
}

void PrintScriptEnvironmentTest::numbers_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("currency"); // of -1234567 cents
    QTest::addColumn<QString>("quantity"); // of 12345000 at scale 4, at least 1 decimal
    const QString space(QLocale("fi").groupSeparator());
    QTest::newRow("fi") << "fi" << QString::fromUtf8(u8"−12") + space + "345,67" << '1' + space + "234,5";
    QTest::newRow("en") << "en" << QString::fromUtf8(u8"−12,345.67") << "1,234.5";
}

void PrintScriptEnvironmentTest::numbers()
{
    QFETCH(QString, locale);
    PrintScriptEnvironment &env = environment();
    env.setLocale(locale);
    QTEST(env.formatCurrency(-1234567), "currency");
    QTEST(env.formatNumber(12345000, 4, 1), "quantity");
    QVERIFY(!env.formatCurrency(3600000000LL).startsWith(QChar(0x2212))); // a list's sum is beyond 32 bits
}

void PrintScriptEnvironmentTest::shapes()
{
    PrintScriptEnvironment &env = environment();
    env.setBrush("#cc0000");
    env.fillRect(1, 2, 3, 4);
    QCOMPARE(ink(), QRect(10, 20, 30, 40));
    QCOMPARE(m_image.pixelColor(20, 30), QColor(Qt::black)); // whatever the brush
    wipe();
    env.drawRect(1, 2, 3, 4);
    QCOMPARE(m_image.pixelColor(20, 30), QColor("#cc0000"));
    QCOMPARE(m_image.pixelColor(10, 20), QColor(Qt::black));
    QCOMPARE(ink(), QRect(10, 20, 31, 41)); // the outline's own pixel comes on top
    wipe();
    env.drawLine(1.04, 2.06, 4, 2.06); // rounded to 10, 21
    QCOMPARE(ink().topLeft(), QPoint(10, 21));
}

/** Whatever numbers a script comes up with, the program goes on. */
void PrintScriptEnvironmentTest::nonsense()
{
    PrintScriptEnvironment &env = environment();
    for (const double number : {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(),
                                -std::numeric_limits<double>::infinity(), 1e300, -1e300, 1e9}) {
        env.fillRect(number, number, number, number);
        env.drawRect(0, 0, number, number);
        env.drawText(0, 0, number, 0, "right", "abc");
        env.drawText(number, number, 10, number, "left", "abc\nabc");
        env.drawText(0, 0, 10, number, "center", "abc");
        env.drawImage(0, 0, number, 1, "logo");
        env.boundingRect(number, 0, 10, number, "left", "abc");
        env.setLineHeight(number);
        env.setPen("no colour", number);
    }
    for (const int scale : {-5, 9, 10, 40, std::numeric_limits<int>::max()}) {
        QVERIFY(!env.formatNumber(std::numeric_limits<int>::min(), scale, scale).isEmpty());
        QVERIFY(!env.formatNumber(1, scale, -scale).isEmpty());
    }
}

void PrintScriptEnvironmentTest::pens_data()
{
    QTest::addColumn<double>("width");
    QTest::addColumn<int>("pixels");
    QTest::newRow("default") << -1.0 << 1;
    QTest::newRow("zero") << 0.0 << 1;
    QTest::newRow("half a millimetre") << 0.5 << 5;
}

void PrintScriptEnvironmentTest::pens()
{
    QFETCH(double, width);
    PrintScriptEnvironment &env = environment();
    env.setPen("blue", width);
    env.drawLine(10, 10, 30, 10);
    QTEST(ink().height(), "pixels");
    QCOMPARE(m_image.pixelColor(200, 100), QColor(Qt::blue));
}

void PrintScriptEnvironmentTest::fonts_data()
{
    QTest::addColumn<QString>("style");
    QTest::addColumn<int>("weight");
    QTest::addColumn<bool>("italic");
    QTest::newRow("normal") << "normal" << 50 << false;
    QTest::newRow("light") << "Light" << 25 << false;
    QTest::newRow("demi-bold") << "DEMIBOLD" << 63 << false;
    QTest::newRow("bold italic") << "bolditalic" << 75 << true;
    QTest::newRow("black italic") << "black Italic" << 87 << true;
    QTest::newRow("italic") << "italic" << 50 << true;
    QTest::newRow("not at the start") << "semibold" << 50 << false;
    QTest::newRow("not at the end") << "italicbold" << 50 << false;
    QTest::newRow("empty") << "" << 50 << false;
}

void PrintScriptEnvironmentTest::fonts()
{
    QFETCH(QString, style);
    environment().setFont("Arial", 8, style);
    QCOMPARE(m_painter->font().family(), QString("Arial"));
    QCOMPARE(m_painter->font().pointSize(), 8);
    QTEST(m_painter->font().weight(), "weight");
    QTEST(m_painter->font().italic(), "italic");
}

void PrintScriptEnvironmentTest::rotation()
{
    PrintScriptEnvironment &env = environment();
    env.rotate(45);
    env.rotate(45); // adds up
    env.fillRect(10, -20, 30, 5);
    const QRect box = ink();
    QVERIFY(qAbs(box.left() - 150) <= 1 && qAbs(box.top() - 100) <= 1);
    QVERIFY(qAbs(box.width() - 50) <= 2 && qAbs(box.height() - 300) <= 2);
}

void PrintScriptEnvironmentTest::alignments_data()
{
    QTest::addColumn<QString>("alignment");
    QTest::addColumn<int>("middle"); // of the ink in a box from 200 to 1200, about
    for (const bool wrapped : {false, true}) {
        const auto row = [wrapped](const char *name) -> QTestData & {
            return QTest::addRow("%s, %s", name, wrapped ? "wrapped" : "single line");
        };
        row("left") << "left" << 235;
        row("right") << "right" << 1165;
        row("hcenter") << "hcenter" << 700;
        row("unknown") << "middle" << 235;
        row("case counts") << "Right" << 235;
        if (wrapped) { // a single line has no lower end to be centred to
            row("vcenter") << "vcenter" << 235;
            row("center") << "center" << 700;
        }
    }
}

void PrintScriptEnvironmentTest::alignments()
{
    QFETCH(QString, alignment);
    const bool wrapped = QByteArray(QTest::currentDataTag()).endsWith("wrapped");
    environment().drawText(20, 5, 100, wrapped ? 20 : 0, alignment, "HHH");
    QFETCH(int, middle);
    const QRect box = ink();
    QVERIFY2(qAbs(box.center().x() - middle) <= 30, qPrintable(QString::number(box.center().x())));
    QVERIFY2(box.top() >= 50 && box.bottom() < 100, qPrintable(QString::number(box.top())));
}

void PrintScriptEnvironmentTest::clipping_data()
{
    QTest::addColumn<bool>("clipping");
    QTest::addColumn<QString>("alignment");
    QTest::newRow("on") << true << "left";
    QTest::newRow("on, right") << true << "right";
    QTest::newRow("off") << false << "left";
}

void PrintScriptEnvironmentTest::clipping()
{
    QFETCH(bool, clipping);
    QFETCH(QString, alignment);
    PrintScriptEnvironment &env = environment();
    env.setTextClipping(clipping);
    const QString text = QString("HIM ").repeated(10);
    env.drawText(20, 5, 33, 0, alignment, text);
    const QRect box = ink();
    QVERIFY(!box.isEmpty() && box.left() >= 200);
    QCOMPARE(box.right() < 530, clipping);
    QVERIFY(box.width() > 250); // as much as fits
}

void PrintScriptEnvironmentTest::clippedText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("others"); // that fit, or one more character
    const QString face = QString::fromUtf8(u8"😀");
    QTest::newRow("narrow letters") << QString(500, 'i') << QString();
    QTest::newRow("wide letters") << QString(500, 'W') << QString();
    QTest::newRow("pairs are not halved") << face.repeated(100) << QString();
    QTest::newRow("fits") << "abc" << QString();
    QTest::newRow("empty") << "" << QString();
}

/** What is drawn is the longest start of the text that fits. */
void PrintScriptEnvironmentTest::clippedText()
{
    QFETCH(QString, text);
    PrintScriptEnvironment &env = environment();
    const auto width = [&env](const QString &shown) {
        return env.boundingRect(0, 0, 1, 0, "left", shown).at(2).toInt();
    };
    const int step = text.size() > 1 && text.at(0).isHighSurrogate() ? 2 : 1;
    int length = 0;
    while (length < text.size() && width(text.left(length + step)) <= 4000) // 40 mm
        length += step;
    env.drawText(5, 5, 40, 0, "left", text);
    const QImage actual = m_image;
    wipe();
    env.setTextClipping(false);
    env.drawText(5, 5, 40, 0, "left", text.left(length));
    QVERIFY(actual == m_image);
    QCOMPARE(length == text.size(), text.size() <= 3);
}

void PrintScriptEnvironmentTest::wrappedLines_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("lineHeight");
    QTest::addColumn<double>("height");
    QTest::addColumn<int>("lines");
    QTest::addColumn<int>("bottom"); // of the last line's box at most, pixels
    const QString four = QString("HHH\nHHH\nHHH\nHHH");
    QTest::newRow("all") << four << 5.0 << 20.0 << 4 << 250;
    QTest::newRow("a line more: its top is not below the limit") << four << 5.0 << 5.0 << 2 << 150;
    QTest::newRow("a tenth less") << four << 5.0 << 4.9 << 1 << 100;
    QTest::newRow("words are wrapped") << QString("HHH ").repeated(8) << 5.0 << 40.0 << 2 << 150;
    QTest::newRow("wrapped words end with the box too") << QString("HHH ").repeated(40) << 5.0 << 9.9 << 2 << 150;
    QTest::newRow("a word wider than the box stands out") << QString(40, 'H') << 5.0 << 20.0 << 1 << 100;
    QTest::newRow("empty lines take their height") << "HHH\n\n\nHHH" << 5.0 << 40.0 << 2 << 250;
    QTest::newRow("natural height") << four << -1.0 << 40.0 << 4 << 220;
    QTest::newRow("no text") << "" << 5.0 << 20.0 << 0 << 0;
}

void PrintScriptEnvironmentTest::wrappedLines()
{
    QFETCH(QString, text);
    QFETCH(double, lineHeight);
    QFETCH(double, height);
    PrintScriptEnvironment &env = environment();
    env.setLineHeight(lineHeight);
    env.drawText(20, 5, 50, height, "left", text);
    QTEST(inkedLines(), "lines");
    QFETCH(int, bottom);
    QVERIFY2(bottom == 0 ? ink().isEmpty() : ink().bottom() < bottom && ink().bottom() >= bottom - 50,
             qPrintable(QString::number(ink().bottom())));
}

void PrintScriptEnvironmentTest::bounds()
{
    PrintScriptEnvironment &env = environment(5); // on a page that is not painted
    const QVariantList line = env.boundingRect(20, 5, 10, 0, "left", "HHHHHHHHHH");
    QCOMPARE(line.size(), 4);
    QCOMPARE(line.at(0), QVariant(2000)); // hundredths of a millimetre
    QCOMPARE(line.at(1), QVariant(500));
    QVERIFY(line.at(2).toInt() > 2000); // not cut
    const QVariantList right = env.boundingRect(20, 5, 100, 0, "right", "HHH");
    QCOMPARE(right.at(0).toInt() + right.at(2).toInt(), 12000);
    env.setLineHeight(5);
    const QVariantList box = env.boundingRect(20, 5, 50, 40, "left", "HHH\nHHHHHH\nHHH");
    QCOMPARE(box.at(0), QVariant(2000));
    QCOMPARE(box.at(1), QVariant(500));
    QVERIFY(box.at(3).toInt() > 1200 && box.at(3).toInt() < 1600); // two line heights and a line
    QCOMPARE(box.at(2), env.boundingRect(20, 5, 50, 40, "left", "HHHHHH").at(2));
    QCOMPARE(env.boundingRect(20, 5, 50, 40, "left", "HHH").at(3), env.boundingRect(0, 0, 5, 9, "left", "H").at(3));
    QVERIFY(ink().isEmpty());
}

void PrintScriptEnvironmentTest::images()
{
    PrintScriptEnvironment &env = environment();
    env.drawImage(10, 20, 30, 30, "nosuch");
    env.drawImage(10, 20, 0, 30, "logo");
    QVERIFY(ink().isEmpty());
    env.drawImage(10, 20, 30, 30, "logo"); // as wide as the box
    QCOMPARE(ink(), QRect(100, 200, 300, 75));
    wipe();
    env.drawImage(10, 20, 100, 10, "logo"); // as high as the box
    QCOMPARE(ink(), QRect(100, 200, 400, 100));
}

void PrintScriptEnvironmentTest::barcodes()
{
    PrintScriptEnvironment &env = environment();
    for (const char *text : {"", "12a4", "-123", " 12", "12.3", u8"١٢"})
        env.drawBarcode128C(10, 10, 50, 10, QString::fromUtf8(text));
    QVERIFY(ink().isEmpty());
    env.drawBarcode128C(10, 10, 50, 10, "1234"); // the measure is 46 modules, the symbol 57; 500 pixels
    QCOMPARE(ink(), QRect(100, 100, 10 * 57, 100));
}

void PrintScriptEnvironmentTest::unpaintedPages_data()
{
    QTest::addColumn<int>("fromPage");
    QTest::addColumn<int>("toPage");
    QTest::addColumn<QString>("painted"); // of the pages 1 to 4
    QTest::newRow("all") << 0 << allPages << "1234";
    QTest::newRow("from the first") << 1 << allPages << "1234";
    QTest::newRow("middle") << 2 << 3 << "23";
    QTest::newRow("one") << 3 << 3 << "3";
    QTest::newRow("to before the first: it is painted all the same") << 0 << 0 << "1";
    QTest::newRow("past the last") << 5 << allPages << "";
}

void PrintScriptEnvironmentTest::unpaintedPages()
{
    QFETCH(int, fromPage);
    QFETCH(int, toPage);
    QPainter onPrinter; // pages are asked of the printer, which has to be in use
    m_printer->setOutputFileName("/dev/null");
    QVERIFY(onPrinter.begin(m_printer.get()));
    PrintScriptEnvironment &env = environment(fromPage, toPage);
    QString painted;
    for (int page = 1; page <= 4; ++page) {
        if (page > 1)
            env.newPage();
        env.fillRect(1, 1, 1, 1);
        const bool isPainted = !ink().isEmpty();
        wipe();
        env.drawRect(1, 1, 1, 1);
        env.drawLine(1, 1, 2, 2);
        env.drawText(1, 1, 50, 0, "left", "HHH");
        env.drawText(1, 1, 50, 10, "left", "HHH");
        env.drawImage(1, 1, 10, 10, "logo");
        env.drawBarcode128C(1, 1, 50, 10, "12");
        QCOMPARE(!ink().isEmpty(), isPainted);
        wipe();
        painted += isPainted ? QString::number(page) : QString();
    }
    QTEST(painted, "painted");
}

void PrintScriptEnvironmentTest::paper()
{
    PrintScriptEnvironment &env = environment();
    QCOMPARE(env.orientation(), 1);
    // The library knows A4 in whole points, 595 by 842.
    const QVariantList portrait{0, 0, 20990, 29700};
    QCOMPARE(env.paperRect(), portrait);
    QCOMPARE(env.pageRect(), portrait);
    m_printer->setPageOrientation(QPageLayout::Landscape);
    QCOMPARE(env.orientation(), 2);
    QCOMPARE(env.paperRect(), (QVariantList{0, 0, 29700, 20990}));
}

QTEST_MAIN(PrintScriptEnvironmentTest)
#include "tst_printscriptenvironment.moc"

#include "barcode128.h"

#include <QImage>
#include <QPainter>
#include <QSet>
#include <QtTest>

/** Checks what is drawn: the widths of bars and spaces of a row of pixels, decoded by the rules of ISO/IEC 15417. */
class Barcode128Test : public QObject {
    Q_OBJECT
private slots:
    void patterns();
    void symbols_data();
    void symbols();
    void moduleWidth_data();
    void moduleWidth();
    void place();
    void nothing();
};

namespace {

constexpr int imageWidth = 2000;

QImage draw(const QString &digits, int x, int y, int width, int height)
{
    QImage image(imageWidth, 50, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::red); // bars are black all the same
    Barcode128::renderC(&painter, x, y, width, height, digits);
    return image;
}

bool isBlack(const QImage &image, int x, int y) { return image.pixelColor(x, y) == Qt::black; }

/** The widths of bars and spaces in turn, from the first black pixel of a row to the last. */
QVector<int> elements(const QImage &image, int y)
{
    QVector<int> widths;
    bool wasBlack = false;
    for (int x = 0; x < image.width(); ++x) {
        const bool black = isBlack(image, x, y);
        if (widths.isEmpty() && !black)
            continue;
        if (widths.isEmpty() || black != wasBlack)
            widths.append(0);
        ++widths.last();
        wasBlack = black;
    }
    if (!wasBlack && !widths.isEmpty())
        widths.removeLast();
    return widths;
}

/** The patterns of the symbol's characters as decimal numbers: six elements each, the stop character seven. */
QVector<int> characters(const QVector<int> &elements, int module)
{
    QVector<int> patterns;
    for (int i = 0; i < elements.size(); ++i) {
        if (i % 6 == 0 && i + 1 < elements.size())
            patterns.append(0);
        patterns.last() = patterns.last() * 10 + elements.at(i) / module;
    }
    return patterns;
}

int valueOf(int pattern)
{
    for (int value = 0; value < 103; ++value) {
        if (Barcode128::charset[value] == pattern)
            return value;
    }
    return -1;
}

} // namespace

/** Every character is 11 modules with an even number of black ones, in elements of one to four modules. */
void Barcode128Test::patterns()
{
    QSet<int> seen;
    for (const int pattern : Barcode128::charset) {
        const QByteArray digits = QByteArray::number(pattern);
        QCOMPARE(digits.size(), 6);
        int modules = 0, black = 0;
        for (int i = 0; i < 6; ++i) {
            QVERIFY(digits.at(i) >= '1' && digits.at(i) <= '4');
            modules += digits.at(i) - '0';
            black += i % 2 == 0 ? digits.at(i) - '0' : 0;
        }
        QCOMPARE(modules, 11);
        QCOMPARE(black % 2, 0);
        seen.insert(pattern);
    }
    QCOMPARE(seen.size(), 103);
    QCOMPARE(Barcode128::charset[0], 212222);
    QCOMPARE(Barcode128::charset[1], 222122);
    QCOMPARE(Barcode128::charset[99], 113141);
    QCOMPARE(Barcode128::charset[102], 411131);
}

void Barcode128Test::symbols_data()
{
    QTest::addColumn<QString>("digits");
    QTest::addColumn<int>("checkValue");
    QTest::newRow("odd number of digits") << "1" << 3;
    // Published examples of the Finnish bank barcode, with their check characters.
    QTest::newRow("bank 1") << "479440520200360820048831500000000868516259619897100612" << 40;
    QTest::newRow("bank 3") << "402500046400013020006938000000069875672083435364110724" << 14;
    QTest::newRow("bank 6") << "473313130010000580000000000000000000000000868624130809" << 68;
    QTest::newRow("bank 8") << "439363630020924920000010300000000000000590738390230311" << 9;
}

void Barcode128Test::symbols()
{
    QFETCH(QString, digits);
    const QVector<int> patterns = characters(elements(draw(digits, 0, 0, 10, 50), 25), 1);
    QCOMPARE(patterns.first(), 211232); // start of code set C
    QCOMPARE(patterns.last(), 2331112);
    QTEST(valueOf(patterns.at(patterns.size() - 2)), "checkValue");
    QString decoded;
    for (int i = 1; i < patterns.size() - 2; ++i)
        decoded += QString::number(valueOf(patterns.at(i))).rightJustified(2, '0');
    QCOMPARE(decoded, digits.size() % 2 ? '0' + digits : digits);
}

void Barcode128Test::moduleWidth_data()
{
    QTest::addColumn<int>("boxWidth");
    QTest::addColumn<int>("module");
    // 54 digits measure 321 modules
    QTest::newRow("narrower than the measure") << 10 << 1;
    QTest::newRow("the measure") << 321 << 1;
    QTest::newRow("twice the measure") << 642 << 1;
    QTest::newRow("one pixel more") << 643 << 2;
    QTest::newRow("three times") << 963 << 2;
    QTest::newRow("1000 pixels") << 1000 << 3;
}

void Barcode128Test::moduleWidth()
{
    QFETCH(int, boxWidth);
    QFETCH(int, module);
    const QVector<int> widths = elements(draw(QString(54, '1'), 0, 0, boxWidth, 50), 25);
    int length = 0;
    for (const int width : widths)
        length += width;
    QCOMPARE(length, 332 * module);
    QCOMPARE(widths.first(), 2 * module);
}

void Barcode128Test::place()
{
    const QImage image = draw("12", 100, 10, 500, 20);
    QVERIFY(!isBlack(image, 99, 15) && isBlack(image, 100, 15)); // no quiet zone
    QVERIFY(!isBlack(image, 100, 9) && isBlack(image, 100, 10));
    QVERIFY(isBlack(image, 100, 29) && !isBlack(image, 100, 30));
}

void Barcode128Test::nothing() { QVERIFY(elements(draw(QString(), 0, 0, 500, 50), 25).isEmpty()); }

QTEST_MAIN(Barcode128Test)
#include "tst_barcode128.moc"

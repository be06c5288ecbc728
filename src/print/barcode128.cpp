#include "barcode128.h"

#include <QBrush>
#include <QPainter>

namespace {

constexpr int startC = 211232;
constexpr int startCValue = 105;
constexpr int stop = 2331112; // ends with a bar of two modules
constexpr int checksumModulus = 103;
constexpr int modulesPerPair = 11;

/** The widest whole-pixel module that fits; the measure is kept, printed forms rely on the width it gives. */
int moduleWidth(int boxWidth, int digitCount)
{
    const int size = digitCount * modulesPerPair / 2 + 24;
    return boxWidth > size ? (boxWidth + size - 1) / size - 1 : 1;
}

} // namespace

const int Barcode128::charset[103] = {
    212222, 222122, 222221, 121223, 121322, 131222, 122213, 122312, 132212, 221213, 221312, 231212, 112232,
    122132, 122231, 113222, 123122, 123221, 223211, 221132, 221231, 213212, 223112, 312131, 311222, 321122,
    321221, 312212, 322112, 322211, 212123, 212321, 232121, 111323, 131123, 131321, 112313, 132113, 132311,
    211313, 231113, 231311, 112133, 112331, 132131, 113123, 113321, 133121, 313121, 211331, 231131, 213113,
    213311, 213131, 311123, 311321, 331121, 312113, 312311, 332111, 314111, 221411, 431111, 111224, 111422,
    121124, 121421, 141122, 141221, 112214, 112412, 122114, 122411, 142112, 142211, 241211, 221114, 413111,
    241112, 134111, 111242, 121142, 121241, 114212, 124112, 124211, 411212, 421112, 421211, 212141, 214121,
    412121, 111143, 111341, 131141, 114113, 114311, 411113, 411311, 113141, 114131, 311141, 411131,
};

int Barcode128::drawBars(QPainter *painter, int x, int y, int moduleWidth, int height, int pattern)
{
    const QByteArray widths = QByteArray::number(pattern);
    bool isBar = true;
    for (const char digit : widths) {
        const int width = (digit - '0') * moduleWidth;
        if (isBar)
            painter->fillRect(x, y, width, height, QBrush(Qt::black));
        x += width;
        isBar = !isBar;
    }
    return x;
}

void Barcode128::renderC(QPainter *painter, int x, int y, int width, int height, const QString &digits)
{
    if (digits.isEmpty())
        return;
    const QString pairs = digits.size() % 2 ? QLatin1Char('0') + digits : digits;
    const int module = moduleWidth(width, pairs.size());
    x = drawBars(painter, x, y, module, height, startC);
    int checksum = startCValue;
    for (int i = 0; i < pairs.size(); i += 2) {
        const int value = 10 * (pairs.at(i).unicode() - '0') + (pairs.at(i + 1).unicode() - '0');
        x = drawBars(painter, x, y, module, height, charset[value]);
        checksum = (checksum + (i / 2 + 1) * value) % checksumModulus;
    }
    x = drawBars(painter, x, y, module, height, charset[checksum]);
    drawBars(painter, x, y, module, height, stop);
}

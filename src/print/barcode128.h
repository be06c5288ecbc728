#ifndef BARCODE128_H
#define BARCODE128_H

#include <QString>

class QPainter;

/** Draws Code 128 symbols of code set C, digit pairs (ISO/IEC 15417). All measures are device pixels. */
class Barcode128 {
public:
    /**
     * Draws one character.
     * @param pattern  the widths of bar, space, bar, … in modules, as the digits of a decimal number
     * @return the x just past the character
     */
    /** Fills from the painter's coordinates, black. */
    static int drawBars(QPainter *painter, int x, int y, int moduleWidth, int height, int pattern);

    /**
     * Draws a symbol from the left edge of the box, without quiet zones; an odd number of digits gets a "0" in front.
     * Modules are whole pixels, at least one, chosen so that the symbol less one character fits the box: it can stand
     * out by up to a character's width.
     * @param digits  ASCII digits only; an empty text draws nothing
     */
    static void renderC(QPainter *painter, int x, int y, int width, int height, const QString &digits);

    /** The element patterns of symbol values 0 to 102. */
    static const int charset[103]; ///< decimal digits, the first element is a bar
};

#endif

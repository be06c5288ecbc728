#ifndef PRINTSCRIPTENVIRONMENT_H
#define PRINTSCRIPTENVIRONMENT_H

#include "decimalformat.h"

#include <QDate>
#include <QImage>
#include <QObject>
#include <QPrinter>
#include <QVariant>

#include <functional>

class PrintModel;
class QPainter;
class QTextLine;

/**
 * What a print script sees as `env` during one print run. Coordinates and sizes are millimetres from the top left
 * corner of the paper; rectangles come back as lists x, y, width, height in hundredths of a millimetre.
 *
 * On a page outside the printed range drawing does nothing; measuring and setting work on every page.
 */
class PrintScriptEnvironment : public QObject {
    Q_OBJECT
public:
    /** Owns none of its arguments. Pages count from 1, the range is inclusive. */
    PrintScriptEnvironment(PrintModel *model, QPrinter *printer, QPainter *painter, int fromPage, int toPage,
                           QObject *parent = nullptr);

    Q_INVOKABLE QVariant get(const QString &path); ///< see PrintModel
    /** @param amount  cents; two decimals, grouped as the locale does */
    Q_INVOKABLE QString formatCurrency(qlonglong amount);
    /** @param number  has `scale` decimals, nine at most. The digits set stay for later calls. */
    Q_INVOKABLE QString formatNumber(qlonglong number, int scale, int minFractionDigits);
    /** The format of QDate, with month names of the system. */
    Q_INVOKABLE QString formatDate(const QDate &date, const QString &format);
    Q_INVOKABLE QDate currentDate(); ///< see PrintModel::today()

    Q_INVOKABLE void newPage(); ///< counts outside the printed range too
    /** In the pen and brush that are set; coordinates in millimetres. */
    Q_INVOKABLE void drawLine(double x1, double y1, double x2, double y2);
    Q_INVOKABLE void drawRect(double x, double y, double w, double h);
    Q_INVOKABLE void fillRect(double x, double y, double w, double h); ///< always black
    /**
     * @param h  0 or below: one line, cut to the width while text clipping is on; above: a box in which the text is
     *           wrapped, whose last line may stand out at the bottom
     */
    Q_INVOKABLE void drawText(double x, double y, double w, double h, const QString &alignment, const QString &text);
    /** Draws the model's image as large as fits into the box, from its top left corner. */
    Q_INVOKABLE void drawImage(double x, double y, double w, double h, const QString &path);
    /** Draws nothing for a text that holds anything but digits. */
    Q_INVOKABLE void drawBarcode128C(double x, double y, double w, double h, const QString &digits);
    Q_INVOKABLE void rotate(double angle); ///< degrees, added to earlier ones

    Q_INVOKABLE void setTextClipping(bool clipping) { m_textClipping = clipping; }
    Q_INVOKABLE bool isTextClipping() const { return m_textClipping; }
    Q_INVOKABLE void setLineHeight(double height) { m_lineHeight = height; } ///< negative: the font's own
    Q_INVOKABLE double lineHeight() const { return m_lineHeight; }
    /** Of numbers only, "fi_FI"; a name that is not known is the C locale. */
    Q_INVOKABLE void setLocale(const QString &name);

    Q_INVOKABLE int orientation() const; ///< 1 portrait, 2 landscape
    /** The area that is painted on and the whole sheet, hundredths of a millimetre. */
    Q_INVOKABLE QVariantList pageRect() const;
    Q_INVOKABLE QVariantList paperRect() const;
    /** The rectangle that drawText() would fill; a single line is measured uncut. */
    Q_INVOKABLE QVariantList boundingRect(double x, double y, double w, double h, const QString &alignment,
                                          const QString &text);

    Q_INVOKABLE void setBrush(const QString &color);             ///< `#RRGGBB` or a colour name of SVG 1.0
    Q_INVOKABLE void setPen(const QString &color, double width); ///< 0 or below: the thinnest line
    /** @param style  "light", "demiBold", "bold" or "black" at its start, "italic" at its end, in any letter case */
    Q_INVOKABLE void setFont(const QString &family, int pointSize, const QString &style);

private:
    /** By the resolution; rounded, and bounded so that sums stay within 32 bits. */
    int toPixels(double millimetres) const;
    QRect toPixels(double x, double y, double w, double h) const;
    /** Of a millimetre. */
    int toHundredths(double pixels) const;
    QVariantList toHundredths(const QRect &rect) const;
    QString clipped(const QString &text, int width) const; ///< the longest start that fits the width, in pixels
    /** Breaks a text into the lines of a box and hands each on with the top left corner of its line box, in pixels. */
    void layOut(const QRect &box, Qt::Alignment alignment, const QString &text,
                const std::function<void(const QTextLine &, const QPointF &)> &place) const;

    /** None is owned; all outlive the run of the script. */
    PrintModel *m_model;
    QPrinter *m_printer;
    QPainter *m_painter;
    const int m_resolution;         ///< dots per inch
    bool m_textClipping = true;     ///< single lines only
    double m_lineHeight = -1.0;     ///< millimetres; negative: the font's own
    DecimalFormat m_currencyFormat; ///< cents
    DecimalFormat m_numberFormat;   ///< its scale is that of the last formatNumber()
    const int m_fromPage, m_toPage; ///< inclusive, from 1
    int m_page = 1;                 ///< counts all pages, drawn or not
    bool m_painting;                ///< whether m_page is within the range
};

#endif

#ifndef DECIMALFORMAT_H
#define DECIMALFORMAT_H

#include <QLocale>
#include <QString>

/**
 * Turns scaled integers into text and back. With fractionDigits 4 the integer 12345 is 1.2345. The scales in use are
 * in constants.h.
 */
class DecimalFormat {
public:
    /**
     * Takes the system's locale. No more than maxFractionDigits; below minFractionDigits zeros are kept, above they are
     * cut.
     */
    explicit DecimalFormat(int fractionDigits = 0, int minFractionDigits = 0);

    /** The most decimals that a 32-bit scale holds; scripts may ask for more. */
    static constexpr int maxFractionDigits = 9;

    /** Of the scaled integers. */
    int fractionDigits() const { return m_fractionDigits; }
    void setFractionDigits(int digits); ///< larger numbers are taken as maxFractionDigits
    /** Of the text: 2 shows 1.5 as 1.50. Not checked against fractionDigits(). */
    int minFractionDigits() const { return m_minFractionDigits; }
    void setMinFractionDigits(int digits) { m_minFractionDigits = digits; }

    /** Written only; parse() takes "," and "." all the same. */
    QString decimalPoint() const { return m_decimalPoint; }
    void setDecimalPoint(const QString &point) { m_decimalPoint = point; }

    /** What format() groups by. */
    QLocale locale() const { return m_locale; }
    /** Also replaces the decimal point by the locale's. */
    void setLocale(const QLocale &locale);

    /** Display text: digits grouped as the locale groups them, U+2212 as the minus sign. */
    QString format(long long value) const;

    /** Machine text: no grouping, ASCII hyphen as the minus sign. */
    QString formatWithoutGrouping(long long value) const;

    /**
     * Reads a number whose decimal separator is "," or ".", whatever the locale. Decimals beyond the scale are cut, not
     * rounded. The integer part must fit into 32 bits, the result may be larger.
     * @param ok  set to whether the text was a number; the result is 0 when the integer part was not
     */
    long long parse(const QString &text, bool &ok) const;

private:
    /** Without the point; empty when all decimals are zeros that may be cut. */
    QString fraction(unsigned long long magnitude) const;

    /** The system's unless set. */
    QLocale m_locale;
    QString m_decimalPoint;   ///< may be of several characters
    int m_divisor = 1;        ///< 10 to the power m_fractionDigits
    int m_fractionDigits = 0; ///< 0 to maxFractionDigits
    int m_minFractionDigits = 0;
};

#endif

#include "decimalformat.h"

#include "integer.h"

#include <algorithm>
#include <cstdlib>

DecimalFormat::DecimalFormat(int fractionDigits, int minFractionDigits) : m_minFractionDigits(minFractionDigits)
{
    setFractionDigits(fractionDigits);
    setLocale(QLocale::system());
}

void DecimalFormat::setFractionDigits(int digits)
{
    m_fractionDigits = qMin(digits, maxFractionDigits);
    m_divisor = 1;
    for (int i = 0; i < m_fractionDigits; ++i)
        m_divisor *= 10;
}

void DecimalFormat::setLocale(const QLocale &locale)
{
    m_locale = locale;
    m_decimalPoint = locale.decimalPoint();
}

QString DecimalFormat::fraction(unsigned long long magnitude) const
{
    long long rest = magnitude % m_divisor;
    int size = std::max(m_fractionDigits, 1); // without fraction digits it is "0", which is cut like others
    for (; size > m_minFractionDigits && rest % 10 == 0; --size)
        rest /= 10;
    QString digits(size, QLatin1Char('0'));
    for (int i = size; rest > 0; rest /= 10)
        digits[--i] = QLatin1Char(static_cast<char>('0' + rest % 10));
    return digits;
}

namespace {

/** Also of the lowest number, whose opposite does not fit. */
unsigned long long magnitudeOf(long long value)
{
    return value < 0 ? 0ULL - static_cast<unsigned long long>(value) : static_cast<unsigned long long>(value);
}

} // namespace

QString DecimalFormat::format(long long value) const
{
    const unsigned long long magnitude = magnitudeOf(value);
    QString text = m_locale.toString(magnitude / m_divisor);
    if (value < 0)
        text.prepend(QChar(0x2212));
    const QString decimals = fraction(magnitude);
    return decimals.isEmpty() ? text : text + m_decimalPoint + decimals;
}

QString DecimalFormat::formatWithoutGrouping(long long value) const
{
    const unsigned long long magnitude = magnitudeOf(value);
    QString text;
    text.reserve(32); // enough for any value: large searches format several a record
    if (value < 0)
        text += QLatin1Char('-');
    text += QString::number(magnitude / m_divisor);
    const QString decimals = fraction(magnitude);
    if (!decimals.isEmpty()) {
        text += m_decimalPoint;
        text += decimals;
    }
    return text;
}

long long DecimalFormat::parse(const QString &text, bool &ok) const
{
    const bool negative = text.startsWith(QLatin1Char('-'));
    const int start = negative ? 1 : 0;
    const QStringView view(text);
    int separator = text.indexOf(QLatin1Char(','));
    if (separator < 0)
        separator = text.indexOf(QLatin1Char('.'));

    if (separator < 0) {
        const long long value = static_cast<long long>(Integer::parse(view.mid(start), ok)) * m_divisor;
        return negative ? -value : value;
    }

    ok = true;
    long long value = separator == 0 ? 0 : Integer::parse(view.mid(start, separator - start), ok);
    if (!ok)
        return 0;
    const bool integerNegative = value < 0;
    value *= m_divisor;

    const QStringView typed = view.mid(separator + 1);
    if (!typed.isEmpty() && !Integer::isDigits(typed)) {
        ok = false; // also where the offending character is beyond the scale and would be cut
        return 0;
    }
    const QString decimals = typed.left(m_fractionDigits).toString().leftJustified(m_fractionDigits, QLatin1Char('0'));
    const int fractionValue = Integer::parse(decimals, ok);
    value += integerNegative ? -fractionValue : fractionValue;
    return negative ? -value : value;
}

#ifndef DECIMALTEXT_H
#define DECIMALTEXT_H

#include <QString>

namespace EInvoice {

/** A scaled number in plain decimals, without zeros behind the least of them. */
inline QString decimalText(long long number, int digits, int least, QChar point)
{
    const bool isNegative = number < 0;
    QString text = QString::number(isNegative ? 0ULL - static_cast<unsigned long long>(number)
                                              : static_cast<unsigned long long>(number));
    text = text.rightJustified(digits + 1, QLatin1Char('0'));
    QString fraction = text.right(digits);
    while (fraction.size() > least && fraction.endsWith(QLatin1Char('0')))
        fraction.chop(1);
    QString result = isNegative ? QStringLiteral("-") : QString();
    result += text.left(text.size() - digits);
    return fraction.isEmpty() ? result : result + point + fraction;
}

} // namespace EInvoice

#endif

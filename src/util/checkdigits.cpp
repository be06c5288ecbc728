#include "checkdigits.h"

int CheckDigits::ofReference(const QString &digits)
{
    constexpr int weights[] = {7, 3, 1};
    int sum = 0;
    int position = 0;
    for (auto it = digits.crbegin(); it != digits.crend(); ++it, ++position)
        sum += it->digitValue() * weights[position % 3];
    return (10 - sum % 10) % 10;
}

int CheckDigits::modulo97(const QString &text)
{
    int rest = 0;
    for (const QChar c : text) {
        if (c >= QLatin1Char('0') && c <= QLatin1Char('9'))
            rest = (rest * 10 + c.unicode() - '0') % 97;
        else if (c >= QLatin1Char('A') && c <= QLatin1Char('Z'))
            rest = (rest * 100 + c.unicode() - 'A' + 10) % 97;
        else
            return -1;
    }
    return rest;
}

#include "integer.h"

#include <algorithm>
#include <charconv>
#include <limits>

namespace {

bool isAsciiDigit(QChar c) { return c >= QLatin1Char('0') && c <= QLatin1Char('9'); }

} // namespace

bool Integer::isDigits(QStringView text)
{
    return !text.isEmpty() && std::all_of(text.begin(), text.end(), isAsciiDigit);
}

int Integer::parse(QStringView text, bool &ok)
{
    const bool hasSign = text.startsWith(QLatin1Char('-')) || text.startsWith(QLatin1Char('+'));
    const bool negative = text.startsWith(QLatin1Char('-'));
    const QStringView digits = hasSign ? text.mid(1) : text;
    ok = isDigits(digits);
    if (!ok)
        return 0;
    long long value = 0;
    for (const QChar c : digits) {
        value = value * 10 + (c.unicode() - '0');
        if (value > static_cast<long long>(std::numeric_limits<int>::max()) + 1)
            break;
    }
    if (negative)
        value = -value;
    ok = value >= std::numeric_limits<int>::min() && value <= std::numeric_limits<int>::max();
    return ok ? static_cast<int>(value) : 0;
}

void Integer::appendTo(QString &target, long long value)
{
    char digits[std::numeric_limits<long long>::digits10 + 3]; // a sign, and the digit that is not always there
    const char *end = std::to_chars(digits, digits + sizeof digits, value).ptr;
    target += QLatin1String(digits, static_cast<int>(end - digits));
}

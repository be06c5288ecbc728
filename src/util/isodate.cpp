#include "isodate.h"

namespace {

constexpr int textSize = 10;

/** @return the number that the digits of a piece of the text make, -1 when another character is among them */
int number(const QString &text, int start, int size)
{
    int value = 0;
    for (int i = start; i < start + size; ++i) {
        const int digit = text.at(i).unicode() - '0';
        if (digit < 0 || digit > 9)
            return -1;
        value = value * 10 + digit;
    }
    return value;
}

void putNumber(char *end, int value, int size)
{
    for (; size > 0; --size, value /= 10)
        *--end = static_cast<char>('0' + value % 10);
}

} // namespace

QDate IsoDate::parse(const QString &text)
{
    const QLatin1Char dash('-');
    if (text.size() != textSize || text.at(4) != dash || text.at(7) != dash)
        return QDate();
    const int year = number(text, 0, 4);
    const int month = number(text, 5, 2);
    const int day = number(text, 8, 2);
    return year < 1 || month < 1 || day < 1 ? QDate() : QDate(year, month, day);
}

void IsoDate::appendTo(QString &target, const QDate &date)
{
    int year = 0;
    int month = 0;
    int day = 0;
    date.getDate(&year, &month, &day);
    if (year < 1 || year > 9999) // an invalid date is of the year 0
        return;
    char text[] = "yyyy-mm-dd";
    putNumber(text + 4, year, 4);
    putNumber(text + 7, month, 2);
    putNumber(text + 10, day, 2);
    target += QLatin1String(text, textSize);
}

#include "valuewriter.h"

#include "isodate.h"
#include "language.h"
#include "texts.h"

#include <algorithm>

namespace {

constexpr int groupSize = 3;

QString grouped(QString plain)
{
    const bool finnish = Language::current() == Language::finnish;
    int point = plain.indexOf(QLatin1Char('.'));
    if (point < 0)
        point = plain.size();
    else if (finnish)
        plain[point] = QLatin1Char(',');
    const int first = plain.startsWith(QLatin1Char('-')) ? 1 : 0;
    for (int i = point - groupSize; i > first; i -= groupSize)
        plain.insert(i, finnish ? QLatin1Char(' ') : QLatin1Char(','));
    return plain;
}

char *putUtf8(char *to, uint codePoint)
{
    if (codePoint < 0x80) {
        *to++ = static_cast<char>(codePoint);
    } else if (codePoint < 0x800) {
        *to++ = static_cast<char>(0xc0 | (codePoint >> 6));
        *to++ = static_cast<char>(0x80 | (codePoint & 0x3f));
    } else if (codePoint < 0x10000) {
        *to++ = static_cast<char>(0xe0 | (codePoint >> 12));
        *to++ = static_cast<char>(0x80 | ((codePoint >> 6) & 0x3f));
        *to++ = static_cast<char>(0x80 | (codePoint & 0x3f));
    } else {
        *to++ = static_cast<char>(0xf0 | (codePoint >> 18));
        *to++ = static_cast<char>(0x80 | ((codePoint >> 12) & 0x3f));
        *to++ = static_cast<char>(0x80 | ((codePoint >> 6) & 0x3f));
        *to++ = static_cast<char>(0x80 | (codePoint & 0x3f));
    }
    return to;
}

char *putEscape(char *to, ushort unit)
{
    *to++ = '\\';
    switch (unit) {
    case '"':
    case '\\':
        *to++ = static_cast<char>(unit);
        break;
    case '\n':
        *to++ = 'n';
        break;
    case '\r':
        *to++ = 'r';
        break;
    case '\t':
        *to++ = 't';
        break;
    default:
        *to++ = 'u';
        *to++ = '0';
        *to++ = '0';
        *to++ = "0123456789abcdef"[unit >> 4];
        *to++ = "0123456789abcdef"[unit & 15];
    }
    return to;
}

} // namespace

QString ValueWriter::plainDecimal(long long number, int digits, int minDigits)
{
    const bool negative = number < 0;
    QString text =
        QString::number(negative ? -static_cast<unsigned long long>(number) : static_cast<unsigned long long>(number))
            .rightJustified(digits + 1, QLatin1Char('0'));
    if (digits > 0) {
        text.insert(text.size() - digits, QLatin1Char('.'));
        int surplus = digits - minDigits;
        while (surplus > 0 && text.endsWith(QLatin1Char('0'))) {
            text.chop(1);
            --surplus;
        }
        if (text.endsWith(QLatin1Char('.')))
            text.chop(1);
    }
    return negative ? QLatin1Char('-') + text : text;
}

QString ValueWriter::plain(const Field &field, const Value &value)
{
    switch (value.kind()) {
    case Value::text:
        return value.toText();
    case Value::number:
        return plainDecimal(value.toNumber(), fractionDigits(field.type), minFractionDigits(field.type));
    case Value::boolean:
        return value.toBool() ? QStringLiteral("true") : QStringLiteral("false");
    case Value::date: {
        QString text;
        IsoDate::appendTo(text, value.toDate());
        return text;
    }
    case Value::null:
    case Value::records:
        break;
    }
    return QString();
}

void ValueWriter::appendJsonString(ByteGatherer &target, const QString &text)
{
    constexpr int longest = 6; // an escape; a pair makes four bytes
    const ushort *unit = text.utf16();
    const ushort *const end = unit + text.size();
    target.append('"');
    while (unit < end) {
        const ushort *const pieceEnd = std::min(unit + ByteGatherer::capacity / longest - 1, end);
        char *to = target.room(static_cast<int>(pieceEnd - unit + 1) * longest);
        for (; unit < pieceEnd; ++unit) {
            if (*unit >= 32 && *unit < 127 && *unit != '"' && *unit != '\\') {
                *to++ = static_cast<char>(*unit);
            } else if (*unit < 0x80) {
                to = putEscape(to, *unit);
            } else if (QChar::isHighSurrogate(*unit) && unit + 1 < end && QChar::isLowSurrogate(unit[1])) {
                to = putUtf8(to, QChar::surrogateToUcs4(unit[0], unit[1])); // perhaps the first unit behind the piece
                ++unit;
            } else {
                to = putUtf8(to, QChar::isSurrogate(*unit) ? 0xfffd : *unit); // half a pair is no character
            }
        }
        target.taken(to);
    }
    target.append('"');
}

namespace {

/** Room that any number or date takes, with quotes. */
constexpr int longestNumber = 32;

/** Writes digits from the right. @return the first of them */
char *writeDigits(char *end, unsigned long long number, int least)
{
    char *at = end;
    for (; number > 0 || least > 0; --least, number /= 10)
        *--at = static_cast<char>('0' + number % 10);
    return at;
}

unsigned long long magnitude(long long number)
{
    return number < 0 ? 0ULL - static_cast<unsigned long long>(number) : static_cast<unsigned long long>(number);
}

void appendInteger(ByteGatherer &target, long long number)
{
    char buffer[longestNumber];
    char *const end = buffer + sizeof buffer;
    char *at = writeDigits(end, magnitude(number), 1);
    if (number < 0)
        *--at = '-';
    target.append(at, static_cast<int>(end - at));
}

/** As plainDecimal(), quoted: most of all numbers are of this kind. */
void appendDecimal(ByteGatherer &target, long long number, int digits, int minDigits)
{
    char buffer[longestNumber];
    char *const end = buffer + sizeof buffer;
    char *at = end;
    *--at = '"';
    unsigned long long rest = magnitude(number);
    for (; digits > minDigits && rest % 10 == 0; --digits)
        rest /= 10;
    for (int i = 0; i < digits; ++i, rest /= 10)
        *--at = static_cast<char>('0' + rest % 10);
    if (digits > 0)
        *--at = '.';
    at = writeDigits(at, rest, 1);
    if (number < 0)
        *--at = '-';
    *--at = '"';
    target.append(at, static_cast<int>(end - at));
}

void appendDate(ByteGatherer &target, const QDate &date)
{
    char buffer[] = "\"yyyy-mm-dd\"";
    int year = 0, month = 0, day = 0;
    date.getDate(&year, &month, &day);
    writeDigits(buffer + 5, static_cast<unsigned>(year), 4);
    writeDigits(buffer + 8, static_cast<unsigned>(month), 2);
    writeDigits(buffer + 11, static_cast<unsigned>(day), 2);
    target.append(buffer);
}

} // namespace

void ValueWriter::appendJson(ByteGatherer &target, const Field &field, const Value &value)
{
    switch (value.kind()) {
    case Value::text:
        appendJsonString(target, value.toText());
        return;
    case Value::number:
        if (isDecimal(field.type))
            appendDecimal(target, value.toNumber(), fractionDigits(field.type), minFractionDigits(field.type));
        else
            appendInteger(target, value.toNumber());
        return;
    case Value::boolean:
        target.append(value.toBool() ? QByteArrayLiteral("true") : QByteArrayLiteral("false"));
        return;
    case Value::date:
        if (value.toDate().year() >= 0 && value.toDate().year() <= 9999)
            appendDate(target, value.toDate());
        else
            target.append('"' + plain(field, value).toLatin1() + '"');
        return;
    case Value::null:
    case Value::records:
        target.append("null");
    }
}

QString ValueWriter::forPeople(const Field &field, const Value &value)
{
    switch (value.kind()) {
    case Value::number:
        return isDecimal(field.type) ? grouped(plain(field, value)) : plain(field, value);
    case Value::boolean:
        return value.toBool() ? ::text(TEXT("kyllä")) : ::text(TEXT("ei"));
    case Value::date:
        return date(value.toDate());
    case Value::text:
        for (const Choice *choice = field.choices; choice && choice->word; ++choice) {
            if (value.toText() == QLatin1String(choice->word))
                return ::text(choice->text);
        }
        return value.toText();
    case Value::null:
    case Value::records:
        break;
    }
    return QString();
}

QString ValueWriter::money(long long cents) { return grouped(plainDecimal(cents, 2, 2)) + QStringLiteral(" €"); }

QString ValueWriter::date(const QDate &date)
{
    if (!date.isValid())
        return QStringLiteral("\u2013");
    if (Language::current() == Language::english)
        return date.toString(Qt::ISODate);
    return date.toString(QStringLiteral("d.M.yyyy"));
}

bool ValueWriter::isRightAligned(ValueType type)
{
    return isDecimal(type) || type == ValueType::integer || type == ValueType::id;
}

#include "valuewriter.h"

#include "isodate.h"
#include "language.h"
#include "texts.h"

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

void appendUtf8(QByteArray &target, uint codePoint)
{
    if (codePoint < 0x80) {
        target += static_cast<char>(codePoint);
    } else if (codePoint < 0x800) {
        target += static_cast<char>(0xc0 | (codePoint >> 6));
        target += static_cast<char>(0x80 | (codePoint & 0x3f));
    } else if (codePoint < 0x10000) {
        target += static_cast<char>(0xe0 | (codePoint >> 12));
        target += static_cast<char>(0x80 | ((codePoint >> 6) & 0x3f));
        target += static_cast<char>(0x80 | (codePoint & 0x3f));
    } else {
        target += static_cast<char>(0xf0 | (codePoint >> 18));
        target += static_cast<char>(0x80 | ((codePoint >> 12) & 0x3f));
        target += static_cast<char>(0x80 | ((codePoint >> 6) & 0x3f));
        target += static_cast<char>(0x80 | (codePoint & 0x3f));
    }
}

void appendEscape(QByteArray &target, ushort unit)
{
    switch (unit) {
    case '"':
        target += "\\\"";
        break;
    case '\\':
        target += "\\\\";
        break;
    case '\n':
        target += "\\n";
        break;
    case '\r':
        target += "\\r";
        break;
    case '\t':
        target += "\\t";
        break;
    default:
        target += "\\u00";
        target += "0123456789abcdef"[unit >> 4];
        target += "0123456789abcdef"[unit & 15];
    }
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

void ValueWriter::appendJsonString(QByteArray &target, const QString &text)
{
    // Room for the longest escapes is taken and given back: one call for the whole text, as lists are long.
    constexpr int longest = 6;
    const int before = target.size();
    target.resize(before + text.size() * longest + 2);
    char *const begin = target.data();
    char *to = begin + before;
    *to++ = '"';
    const ushort *unit = text.utf16();
    const ushort *end = unit + text.size();
    for (; unit < end && *unit >= 32 && *unit < 127 && *unit != '"' && *unit != '\\'; ++unit)
        *to++ = static_cast<char>(*unit);
    target.resize(static_cast<int>(to - begin));
    for (; unit < end; ++unit) {
        if (*unit < 0x80) {
            if (*unit >= 32 && *unit != '"' && *unit != '\\' && *unit != 127)
                target += static_cast<char>(*unit);
            else
                appendEscape(target, *unit);
        } else if (QChar::isHighSurrogate(*unit) && unit + 1 < end && QChar::isLowSurrogate(unit[1])) {
            appendUtf8(target, QChar::surrogateToUcs4(unit[0], unit[1]));
            ++unit;
        } else {
            appendUtf8(target, QChar::isSurrogate(*unit) ? 0xfffd : *unit); // half a pair is no character
        }
    }
    target += '"';
}

namespace {

/** Writes digits from the right. @return the first of them */
char *writeDigits(char *end, unsigned long long number, int least)
{
    char *at = end;
    for (; number > 0 || least > 0; --least, number /= 10)
        *--at = static_cast<char>('0' + number % 10);
    return at;
}

void appendInteger(QByteArray &target, long long number)
{
    char buffer[32];
    char *const end = buffer + sizeof buffer;
    const bool isNegative = number < 0;
    char *at = writeDigits(end, isNegative ? 0ULL - static_cast<unsigned long long>(number) : number, 1);
    if (isNegative)
        *--at = '-';
    target.append(at, static_cast<int>(end - at));
}

/** Sums are most of all numbers: two decimals, quoted. */
void appendCents(QByteArray &target, long long cents)
{
    char buffer[40];
    char *const end = buffer + sizeof buffer;
    const bool isNegative = cents < 0;
    const unsigned long long magnitude = isNegative ? 0ULL - static_cast<unsigned long long>(cents) : cents;
    char *at = end;
    *--at = '"';
    at = writeDigits(at, magnitude % 100, 2);
    *--at = '.';
    at = writeDigits(at, magnitude / 100, 1);
    if (isNegative)
        *--at = '-';
    *--at = '"';
    target.append(at, static_cast<int>(end - at));
}

void appendDate(QByteArray &target, const QDate &date)
{
    char buffer[16];
    char *const end = buffer + sizeof buffer;
    int year = 0, month = 0, day = 0;
    date.getDate(&year, &month, &day);
    char *at = end;
    *--at = '"';
    at = writeDigits(at, static_cast<unsigned>(day), 2);
    *--at = '-';
    at = writeDigits(at, static_cast<unsigned>(month), 2);
    *--at = '-';
    at = writeDigits(at, static_cast<unsigned>(year), 4);
    *--at = '"';
    target.append(at, static_cast<int>(end - at));
}

} // namespace

void ValueWriter::appendJson(QByteArray &target, const Field &field, const Value &value)
{
    switch (value.kind()) {
    case Value::text:
        appendJsonString(target, value.toText());
        return;
    case Value::number:
        if (field.type == ValueType::money)
            appendCents(target, value.toNumber());
        else if (isDecimal(field.type))
            target += '"' + plain(field, value).toLatin1() + '"';
        else
            appendInteger(target, value.toNumber());
        return;
    case Value::boolean:
        target += value.toBool() ? "true" : "false";
        return;
    case Value::date:
        if (value.toDate().year() >= 0 && value.toDate().year() <= 9999)
            appendDate(target, value.toDate());
        else
            target += '"' + plain(field, value).toLatin1() + '"';
        return;
    case Value::null:
    case Value::records:
        target += "null";
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

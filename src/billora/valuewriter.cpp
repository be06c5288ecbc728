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
    target += '"';
    const ushort *unit = text.utf16();
    const ushort *end = unit + text.size();
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

void ValueWriter::appendJson(QByteArray &target, const Field &field, const Value &value)
{
    switch (value.kind()) {
    case Value::text:
        appendJsonString(target, value.toText());
        return;
    case Value::number:
        if (isDecimal(field.type))
            target += '"' + plain(field, value).toLatin1() + '"';
        else
            target += QByteArray::number(value.toNumber());
        return;
    case Value::boolean:
        target += value.toBool() ? "true" : "false";
        return;
    case Value::date:
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

#include "paymenttext.h"

#include "checkdigits.h"
#include "constants.h"
#include "decimalformat.h"
#include "integer.h"

#include <QRegularExpression>

#include <limits>

namespace {

QDate dateOf(const QRegularExpressionMatch &match, int year, int month, int day)
{
    return QDate(match.captured(year).toInt(), match.captured(month).toInt(), match.captured(day).toInt());
}

QString withoutLeadingZeros(const QString &text)
{
    int start = 0;
    while (start < text.size() && text.at(start) == QLatin1Char('0'))
        ++start;
    return text.mid(start);
}

bool toCents(const DecimalFormat &format, const QString &integerPart, QString decimals, qint64 &cents)
{
    while (decimals.endsWith(QLatin1Char('0')))
        decimals.chop(1);
    if (decimals.size() > Constants::totalAmountFractionDigits)
        return false; // cut decimals would be another sum
    bool ok = false;
    const qint64 value = format.parse(integerPart + QLatin1Char(',') + decimals, ok);
    if (ok)
        cents = value;
    return ok;
}

/** Blanks of every kind become one plain blank, the typographic minus a hyphen, the currency's name nothing. */
QString plainAmount(const QString &text)
{
    static const QRegularExpression currency(QStringLiteral(" ?(EUR|\u20AC)$"));
    QString plain = text.simplified();
    return plain.replace(QChar(0x2212), QLatin1Char('-')).remove(currency);
}

} // namespace

QDate PaymentText::parseCSVDate(const QString &text)
{
    static const QRegularExpression dayFirst(QStringLiteral("(\\d{1,2})\\.(\\d{1,2})\\.(\\d{4})"));
    static const QRegularExpression yearFirst(QStringLiteral("(\\d{4})\\.(\\d{2})\\.(\\d{2})"));
    QRegularExpressionMatch match = dayFirst.match(text);
    if (match.hasMatch())
        return dateOf(match, 3, 2, 1);
    match = yearFirst.match(text);
    return match.hasMatch() ? dateOf(match, 1, 2, 3) : QDate();
}

QDate PaymentText::parseIsoDate(const QString &text)
{
    // By hand: expressions here would take a good part of the time of a large XML file.
    constexpr int length = 10, monthAt = 5, dayAt = 8;
    const QStringView view(text);
    if (view.size() < length || (view.size() > length && Integer::isDigits(view.mid(length, 1))))
        return QDate();
    const QChar separator = view.at(monthAt - 1);
    const bool separated = separator == QLatin1Char('-') || separator == QLatin1Char('/');
    const QStringView year = view.left(monthAt - 1), month = view.mid(monthAt, 2), day = view.mid(dayAt, 2);
    if (!separated || view.at(dayAt - 1) != separator || !Integer::isDigits(year) || !Integer::isDigits(month) ||
        !Integer::isDigits(day))
        return QDate();
    bool ok = false;
    return QDate(Integer::parse(year, ok), Integer::parse(month, ok), Integer::parse(day, ok));
}

QString PaymentText::parseCSVReferenceNumber(const QString &text)
{
    QString digits;
    const int start = text.size() > 4 && text.startsWith(QLatin1String("RF")) ? 4 : 0;
    for (const QChar c : QStringView(text).mid(start)) {
        if (c.category() == QChar::Number_DecimalDigit)
            digits += c;
    }
    return withoutLeadingZeros(digits);
}

QString PaymentText::nationalReference(const QString &text)
{
    static const QRegularExpression creditorReference(QStringLiteral("^RF[0-9]{2}(?=.)"));
    QString reference;
    for (const QChar c : text) {
        if (!c.isSpace())
            reference += c.toUpper();
    }
    return withoutLeadingZeros(reference.remove(creditorReference));
}

bool PaymentText::isNationalReference(const QString &digits)
{
    constexpr int minLength = 4, maxLength = 20;
    if (digits.size() < minLength || digits.size() > maxLength || !Integer::isDigits(digits))
        return false;
    return CheckDigits::ofReference(digits.chopped(1)) == digits.back().digitValue();
}

bool PaymentText::parseAmount(const DecimalFormat &format, const QString &text, qint64 &cents)
{
    // Groups of thousands are parted by blanks; by points only where a comma follows, and the other way round: a lone
    // "1.234" could be either and is refused for its decimals.
    static const QRegularExpression pattern(
        QStringLiteral("^([-+]?) ?(?:([0-9]+|[0-9]{1,3}(?: [0-9]{3})+)(?:[,.]([0-9]*))?"
                       "|([0-9]{1,3}(?:\\.[0-9]{3})+),([0-9]+)"
                       "|([0-9]{1,3}(?:,[0-9]{3})+)\\.([0-9]+))$"));
    static const QRegularExpression separators(QStringLiteral("[ .,]"));
    const QRegularExpressionMatch match = pattern.match(plainAmount(text));
    if (!match.hasMatch())
        return false;
    const int last = match.lastCapturedIndex();
    const int integerGroup = last % 2 == 0 ? last : last - 1; // each alternative has an integer and a decimal group
    QString integerPart = match.captured(integerGroup);
    integerPart.remove(separators);
    if (!toCents(format, integerPart, match.captured(integerGroup + 1), cents))
        return false;
    if (match.captured(1) == QLatin1String("-"))
        cents = -cents;
    return true;
}

bool PaymentText::parseXmlAmount(const DecimalFormat &format, const QString &text, qint64 &cents)
{
    const QString plain = text.startsWith(QLatin1Char('+')) ? text.mid(1) : text;
    const int point = plain.indexOf(QLatin1Char('.'));
    const QString integerPart = plain.left(point); // all of it without a point
    const QString decimals = point < 0 ? QString() : plain.mid(point + 1);
    if (!Integer::isDigits(integerPart + decimals))
        return false;
    return toCents(format, integerPart.isEmpty() ? QStringLiteral("0") : integerPart, decimals, cents);
}

bool PaymentText::fitsPayment(qint64 cents)
{
    constexpr qint64 limit = std::numeric_limits<int>::max();
    return cents >= -limit && cents <= limit;
}

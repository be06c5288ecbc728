#include "valuereader.h"

#include "field.h"
#include "integer.h"
#include "invoice.h"
#include "isodate.h"
#include "problem.h"
#include "suggestions.h"
#include "texts.h"

#include <QRegularExpression>

#include <limits>

namespace {

constexpr int daysInWeek = 7;

bool isBlank(QChar c)
{
    return c == QLatin1Char(' ') || c.unicode() == 0xa0 || c.unicode() == 0x202f || c.unicode() == 0x2009;
}

enum class NumberError { none, malformed, mixedSeparators, tooManyDecimals, tooLarge };

/** Reads sign, digits and decimals into a number scaled by 10^digits. */
NumberError parseNumber(const QString &text, int digits, long long &result)
{
    QString compact;
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (!isBlank(c)) {
            compact += c == QChar(0x2212) ? QLatin1Char('-') : c;
            continue;
        }
        // A blank stands between digits of thousands, three digits behind it.
        const bool betweenDigits = i > 0 && text.at(i - 1).isDigit() && i + 3 < text.size() &&
                                   text.at(i + 1).isDigit() && text.at(i + 2).isDigit() && text.at(i + 3).isDigit() &&
                                   (i + 4 >= text.size() || !text.at(i + 4).isDigit());
        if (!betweenDigits)
            return NumberError::malformed;
    }
    if (compact.contains(QLatin1Char('.')) && compact.contains(QLatin1Char(',')))
        return NumberError::mixedSeparators;
    static const QRegularExpression form(QStringLiteral("^([+-]?)([0-9]+)(?:[.,]([0-9]+))?$"));
    const QRegularExpressionMatch match = form.match(compact);
    if (!match.hasMatch())
        return NumberError::malformed;
    QString decimals = match.captured(3);
    while (decimals.size() > digits && decimals.endsWith(QLatin1Char('0')))
        decimals.chop(1);
    if (decimals.size() > digits)
        return NumberError::tooManyDecimals;
    QString whole = match.captured(2);
    while (whole.size() > 1 && whole.startsWith(QLatin1Char('0')))
        whole.remove(0, 1);
    bool ok = false;
    const qlonglong magnitude = (whole + decimals.leftJustified(digits, QLatin1Char('0'))).toLongLong(&ok);
    if (!ok)
        return NumberError::tooLarge;
    result = match.captured(1) == QLatin1String("-") ? -magnitude : magnitude;
    return NumberError::none;
}

QString numberReason(NumberError error, int digits)
{
    switch (error) {
    case NumberError::mixedSeparators:
        return text(TEXT("kirjoita 1234,50: piste ja pilkku eivät voi olla samassa luvussa"));
    case NumberError::tooManyDecimals:
        return digits == 0 ? text(TEXT("luvussa ei voi olla desimaaleja"))
                           : text(TEXT("luvussa voi olla enintään %1 desimaalia")).arg(digits);
    case NumberError::tooLarge:
        return text(TEXT("luku on liian suuri"));
    default:
        return text(TEXT("luku on kirjoitettava kuten 1234,50"));
    }
}

QDate addUnits(const QDate &from, int count, QChar unit)
{
    switch (unit.toLatin1()) {
    case 'd':
        return from.addDays(count);
    case 'w':
        return from.addDays(daysInWeek * count);
    case 'm':
        return from.addMonths(count);
    default:
        return from.addYears(count);
    }
}

Period monthOf(const QDate &day)
{
    const QDate first(day.year(), day.month(), 1);
    return {first, first.addMonths(1).addDays(-1)};
}

Period yearOf(int year) { return {QDate(year, 1, 1), QDate(year, 12, 31)}; }

bool isMonth(int month) { return month >= 1 && month <= 12; }

} // namespace

bool ValueReader::failValue(const QString &name, const QString &value, const QString &reason,
                            const QStringList &suggestions) const
{
    Problem problem;
    problem.code = Problem::badValue;
    problem.message = ::text(TEXT("virheellinen arvo \"%1\": %2")).arg(value, reason);
    problem.option = name;
    problem.value = value;
    for (const QString &word : suggestions)
        problem.suggestions.append({word, QString()});
    return m_sink.fail(problem);
}

bool ValueReader::text(const QString &name, ValueType type, const QString &value, QString &result) const
{
    for (const QChar c : value) {
        const bool allowed = c.unicode() >= 32 || c == QLatin1Char('\n') || c == QLatin1Char('\t');
        if (!allowed)
            return failValue(name, value, ::text(TEXT("tekstissä on ohjausmerkki")));
    }
    if (type != ValueType::bank) {
        result = value;
        return true;
    }
    QString compact;
    for (const QChar c : value) {
        if (!isBlank(c))
            compact += c.toUpper();
    }
    result = compact;
    return true;
}

bool ValueReader::word(const QString &name, const Choice *choices, const QString &value, QString &result) const
{
    QStringList words;
    for (const Choice *choice = choices; choice->word; ++choice) {
        const QString known = QLatin1String(choice->word);
        if (value.compare(known, Qt::CaseInsensitive) == 0) {
            result = known;
            return true;
        }
        words.append(known);
    }
    return failValue(name, value, ::text(TEXT("arvo on jokin näistä: %1")).arg(words.join(QLatin1Char(' '))),
                     Suggestions::nearest(value, words));
}

bool ValueReader::isTrue(const QString &value)
{
    static const QStringList yes = {QStringLiteral("true"), QStringLiteral("yes"),        QStringLiteral("y"),
                                    QStringLiteral("1"),    QStringLiteral("kyll\u00e4"), QStringLiteral("k")};
    return yes.contains(value.toLower());
}

bool ValueReader::isYesOrNo(const QString &value)
{
    static const QStringList no = {QStringLiteral("false"), QStringLiteral("no"), QStringLiteral("n"),
                                   QStringLiteral("0"),     QStringLiteral("ei"), QStringLiteral("e")};
    return isTrue(value) || no.contains(value.toLower());
}

bool ValueReader::flag(const QString &name, const QString &value, bool &result) const
{
    if (!isYesOrNo(value))
        return failValue(name, value, ::text(TEXT("arvo on true tai false")));
    result = isTrue(value);
    return true;
}

bool ValueReader::number(const QString &name, ValueType type, const QString &value, long long &result) const
{
    const int digits = fractionDigits(type);
    QString plain = value.trimmed();
    if (plain.endsWith(QChar(0x20ac)) && (type == ValueType::money || type == ValueType::price))
        plain.chop(1);
    else if (plain.endsWith(QLatin1Char('%')) && type == ValueType::percent)
        plain.chop(1);
    while (!plain.isEmpty() && isBlank(plain.at(plain.size() - 1)))
        plain.chop(1);
    long long parsed = 0;
    const NumberError error = parseNumber(plain, digits, parsed);
    if (error != NumberError::none)
        return failValue(name, value,
                         digits == 0 && error == NumberError::malformed ? ::text(TEXT("arvon on oltava kokonaisluku"))
                                                                        : numberReason(error, digits));
    // The database holds quantities and prices in 64 bits, all else in 32; prices are read back through 32.
    const bool fits = type == ValueType::quantity ||
                      (parsed <= std::numeric_limits<int>::max() && parsed >= std::numeric_limits<int>::min());
    if (!fits)
        return failValue(name, value, numberReason(NumberError::tooLarge, digits));
    result = parsed;
    return true;
}

bool ValueReader::number(const QString &name, ValueType type, const QString &value, int &result) const
{
    long long parsed = 0;
    if (!number(name, type, value, parsed))
        return false;
    if (parsed > std::numeric_limits<int>::max() || parsed < std::numeric_limits<int>::min())
        return failValue(name, value, numberReason(NumberError::tooLarge, 0));
    result = static_cast<int>(parsed);
    return true;
}

bool ValueReader::parseDate(const QString &value, QDate &result) const
{
    const struct {
        const char *word;
        QDate date;
    } words[] = {{"today", m_today}, {"yesterday", m_today.addDays(-1)}, {"tomorrow", m_today.addDays(1)}};
    for (const auto &known : words) {
        if (value == QLatin1String(known.word)) {
            result = known.date;
            return true;
        }
    }
    result = IsoDate::parse(value);
    if (result.isValid())
        return true;
    static const QRegularExpression relative(QStringLiteral("^([+-][0-9]{1,5})([dwmy])$"));
    static const QRegularExpression dayFirst(QStringLiteral("^([0-9]{1,2})\\.([0-9]{1,2})\\.([0-9]{4})?$"));
    QRegularExpressionMatch match = relative.match(value);
    if (match.hasMatch()) {
        result = addUnits(m_today, match.captured(1).toInt(), match.captured(2).at(0));
        return result.isValid() && result.year() >= 1 && result.year() <= 9999;
    }
    match = dayFirst.match(value);
    if (match.hasMatch()) {
        const int year = match.captured(3).isEmpty() ? m_today.year() : match.captured(3).toInt();
        result = QDate(year, match.captured(2).toInt(), match.captured(1).toInt());
    }
    return result.isValid();
}

bool ValueReader::date(const QString &name, const QString &value, QDate &result, bool clearable) const
{
    if (value.isEmpty() && clearable) {
        result = QDate();
        return true;
    }
    QDate parsed;
    if (!parseDate(value.trimmed(), parsed))
        return failValue(name, value, ::text(TEXT("päivä on kirjoitettava kuten 31.3.2026 tai 2026-03-31")));
    result = parsed;
    return true;
}

bool ValueReader::parsePeriod(const QString &value, Period &result) const
{
    const int dots = value.indexOf(QLatin1String(".."));
    if (dots >= 0) {
        Period from, to;
        const QString first = value.left(dots).trimmed();
        const QString last = value.mid(dots + 2).trimmed();
        const bool read = (first.isEmpty() || parsePeriod(first, from)) && (last.isEmpty() || parsePeriod(last, to));
        result = {from.from, to.to};
        return read && !(first.isEmpty() && last.isEmpty());
    }
    const struct {
        const char *word;
        Period period;
    } words[] = {{"this-month", monthOf(m_today)},
                 {"last-month", monthOf(m_today.addMonths(-1))},
                 {"this-year", yearOf(m_today.year())},
                 {"last-year", yearOf(m_today.year() - 1)}};
    for (const auto &known : words) {
        if (value == QLatin1String(known.word)) {
            result = known.period;
            return true;
        }
    }
    static const QRegularExpression year(QStringLiteral("^([0-9]{4})$"));
    static const QRegularExpression quarter(QStringLiteral("^([0-9]{4})[qQ]([1-4])$"));
    static const QRegularExpression isoMonth(QStringLiteral("^([0-9]{4})-([0-9]{2})$"));
    static const QRegularExpression slashMonth(QStringLiteral("^([0-9]{1,2})/([0-9]{4})$"));
    QRegularExpressionMatch match = year.match(value);
    if (match.hasMatch()) {
        result = yearOf(match.captured(1).toInt());
        return result.from.isValid();
    }
    match = quarter.match(value);
    if (match.hasMatch()) {
        const QDate first(match.captured(1).toInt(), 3 * match.captured(2).toInt() - 2, 1);
        result = {first, first.addMonths(3).addDays(-1)};
        return first.isValid();
    }
    match = isoMonth.match(value);
    int month = match.captured(2).toInt();
    int inYear = match.captured(1).toInt();
    if (!match.hasMatch()) {
        match = slashMonth.match(value);
        month = match.captured(1).toInt();
        inYear = match.captured(2).toInt();
    }
    if (match.hasMatch()) {
        if (!isMonth(month) || inYear < 1)
            return false;
        result = monthOf(QDate(inYear, month, 1));
        return true;
    }
    QDate day;
    if (!parseDate(value, day))
        return false;
    result = {day, day};
    return true;
}

bool ValueReader::period(const QString &name, const QString &value, Period &result) const
{
    Period parsed;
    if (!parsePeriod(value.trimmed(), parsed))
        return failValue(
            name, value,
            ::text(TEXT("ajanjakso on kirjoitettava kuten 2026-03, 3/2026, 2026q1 tai 1.3.2026..31.3.2026")));
    if (parsed.from.isValid() && parsed.to.isValid() && parsed.to < parsed.from)
        return failValue(name, value, ::text(TEXT("jakso päättyy ennen kuin alkaa")));
    result = parsed;
    return true;
}

bool ValueReader::reference(const QString &name, const QString &value, QString &result) const
{
    QString compact;
    for (const QChar c : value) {
        if (!isBlank(c))
            compact += c.toUpper();
    }
    const bool completes = compact.endsWith(QLatin1Char('#'));
    const bool isRf = compact.startsWith(QLatin1String("RF"));
    const QString digits = completes ? compact.left(compact.size() - 1) : isRf ? compact.mid(4) : compact;
    const QString base = completes ? digits : digits.left(digits.size() - 1);
    if (!compact.isEmpty()) {
        if (!Integer::isDigits(digits) || (isRf && completes) || !Invoice::isValidReferenceNumber(base))
            return failValue(name, value, ::text(TEXT("viitenumerossa on 3-19 numeroa ja tarkiste")));
        const QString full = base + QString::number(Invoice::calculateReferenceNumberCheckDigit(base));
        const bool isRight =
            isRf ? digits == full && Invoice::referenceNumberToRf(full) == compact : completes || digits == full;
        if (!isRight)
            return failValue(name, value, ::text(TEXT("viitenumeron tarkiste on väärä; oikea olisi %1")).arg(full));
        if (completes)
            compact = full;
    }
    result = compact;
    return true;
}

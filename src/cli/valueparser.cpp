#include "valueparser.h"

#include "commandstatus.h"
#include "integer.h"
#include "invoice.h"
#include "isodate.h"

#include <algorithm>
#include <limits>

namespace {

constexpr int dateLength = 10; // yyyy-MM-dd
constexpr int minReferenceLength = 4;

} // namespace

ValueParser::ValueParser(CommandStatus &status) : m_status(status) { m_format.setDecimalPoint(QStringLiteral(".")); }

bool ValueParser::fail(const QString &message, const QString &key, const QString &value)
{
    // Both in one step: a "%2" inside the user's value stays as typed.
    return m_status.fail(ExitCode::badData, message.arg(key, value));
}

bool ValueParser::failNumber(const QString &key, const QString &value)
{
    return fail(tr("Virheellinen luku: %1=%2"), key, value);
}

bool ValueParser::parseIntValue(const QString &key, const QString &value, int &result)
{
    bool ok = false;
    const int number = Integer::parse(value, ok);
    if (!ok)
        return failNumber(key, value);
    result = number;
    return true;
}

bool ValueParser::parseIdValue(const QString &key, const QString &value, int lastSaved, int &result)
{
    if (value != QLatin1String("@"))
        return parseIntValue(key, value, result);
    result = lastSaved;
    return true;
}

bool ValueParser::parseIntRangeValue(const QString &key, const QString &value, int &from, int &to)
{
    const int separator = value.indexOf(QLatin1Char('-'));
    bool fromOk = false;
    bool toOk = false;
    const QStringView view(value);
    const int first = separator < 1 ? 0 : Integer::parse(view.left(separator), fromOk);
    const int last = separator < 1 ? 0 : Integer::parse(view.mid(separator + 1), toOk);
    if (!fromOk || !toOk)
        return fail(tr("Virheellinen numeroväli: %1=%2"), key, value);
    from = first;
    to = last;
    return true;
}

bool ValueParser::parseDateValue(const QString &key, const QString &value, QDate &result)
{
    const QDate date = IsoDate::parse(value);
    if (!date.isValid())
        return fail(tr("Virheellinen päivämäärä: %1=%2"), key, value);
    result = date;
    return true;
}

bool ValueParser::parseDateRangeValue(const QString &key, const QString &value, QDate &from, QDate &to)
{
    const int separator = value.indexOf(QLatin1Char('-'), dateLength);
    const QDate first = separator < 0 ? QDate() : IsoDate::parse(value.left(separator));
    const QDate last = separator < 0 ? QDate() : IsoDate::parse(value.mid(separator + 1));
    if (!first.isValid() || !last.isValid())
        return fail(tr("Virheellinen päivämääräväli: %1=%2"), key, value);
    from = first;
    to = last;
    return true;
}

bool ValueParser::parseDecimalNumberValue(const QString &key, const QString &value, int fractionDigits,
                                          long long &result)
{
    m_format.setFractionDigits(fractionDigits);
    bool ok = false;
    const long long number = m_format.parse(value, ok);
    if (!ok)
        return failNumber(key, value);
    result = number;
    return true;
}

bool ValueParser::parseDecimalNumberValue(const QString &key, const QString &value, int fractionDigits, int &result)
{
    long long number = 0;
    if (!parseDecimalNumberValue(key, value, fractionDigits, number))
        return false;
    if (number > std::numeric_limits<int>::max() || number < std::numeric_limits<int>::min())
        return failNumber(key, value); // the columns hold 32 bits: another number would be stored
    result = static_cast<int>(number);
    return true;
}

bool ValueParser::parseReferenceNumber(const QString &key, const QString &value, QString &result)
{
    if (value.isEmpty()) {
        result = value;
        return true;
    }
    const bool hash = value.endsWith(QLatin1Char('#'));
    const QString digits = hash ? value.left(value.size() - 1) : value;
    const bool wellFormed = value.size() >= minReferenceLength &&
                            std::all_of(digits.begin(), digits.end(), [](QChar c) { return c.isDigit(); });
    if (!wellFormed)
        return fail(tr("Virheellinen viitenumero: %1=%2"), key, value);

    const QString base = hash ? digits : digits.left(digits.size() - 1);
    const int checkDigit = Invoice::calculateReferenceNumberCheckDigit(base);
    if (!hash && digits.at(digits.size() - 1).digitValue() != checkDigit)
        return fail(tr("Virheellinen viitenumero: %1=%2"), key, value);
    result = hash ? base + QString::number(checkDigit) : value;
    return true;
}

bool ValueParser::parsePrintFormat(const QString &key, const QString &value, std::optional<PrintFormat> &format,
                                   bool allowFinvoice)
{
    const struct {
        const char *name;
        PrintFormat format;
        bool allowed;
    } formats[] = {{"pdf", pdfFormat, true}, {"csv", csvFormat, true}, {"finvoice", finvoiceFormat, allowFinvoice}};
    for (const auto &known : formats) {
        if (known.allowed && value.compare(QLatin1String(known.name), Qt::CaseInsensitive) == 0) {
            format = known.format;
            return true;
        }
    }
    format = pdfFormat;
    return fail(tr("Virheellinen tulosteen tallennusmuoto: %1=%2"), key, value);
}

bool ValueParser::parseCsvDelimiter(const QString &key, const QString &value, QString &delimiter)
{
    if (value.size() != 1)
        return fail(tr("CSV-erottimen on oltava yhden merkin pituinen: %1=%2"), key, value);
    delimiter = value;
    return true;
}

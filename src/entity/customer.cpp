#include "customer.h"

namespace {

constexpr int finnishVatNumberLength = 10; // FI and eight digits
constexpr int hyphenPosition = 7;

bool isFinnishVatNumber(const QString &text)
{
    return text.size() == finnishVatNumberLength && text.startsWith(QLatin1String("FI"));
}

QString withoutCountryCode(const QString &vatNumber)
{
    return vatNumber.mid(2).insert(hyphenPosition, QLatin1Char('-'));
}

} // namespace

bool Customer::isValidBusinessId(const QString &id)
{
    constexpr int weights[] = {7, 9, 10, 5, 8, 4, 2};
    if (id.size() != 8 && id.size() != 9)
        return false;
    if (id.at(id.size() - 2) != QLatin1Char('-'))
        return false;
    const QString padded = id.size() == 8 ? QLatin1Char('0') + id : id;
    int sum = 0;
    for (int i = 0; i < hyphenPosition; ++i) {
        if (!padded.at(i).isDigit())
            return false;
        sum += weights[i] * padded.at(i).digitValue();
    }
    const int remainder = sum % 11;
    if (remainder == 1)
        return false; // no check digit exists for this body
    const int checkDigit = remainder == 0 ? 0 : 11 - remainder;
    const QChar last = padded.at(padded.size() - 1);
    return last.isDigit() && last.digitValue() == checkDigit;
}

bool Customer::isValidVatNumber(const QString &number)
{
    return number.size() >= 4 && number.at(0).isLetter() && number.at(1).isLetter();
}

bool Customer::isValidVatNumberOrBusinessId(const QString &text)
{
    if (isValidBusinessId(text))
        return true;
    if (isFinnishVatNumber(text) && isValidBusinessId(withoutCountryCode(text)))
        return true;
    return isValidVatNumber(text); // lenient: a Finnish check digit is not enforced here
}

QString Customer::convertBusinessIdToVatNumber(const QString &text)
{
    if (isValidBusinessId(text)) {
        const QString padded = text.size() == 8 ? QLatin1Char('0') + text : text;
        return QLatin1String("FI") + QString(padded).remove(QLatin1Char('-'));
    }
    return isValidVatNumber(text) ? text : QString();
}

QString Customer::convertVatNumberToBusinessId(const QString &text)
{
    if (isFinnishVatNumber(text))
        return withoutCountryCode(text);
    return isValidBusinessId(text) ? text : QString();
}

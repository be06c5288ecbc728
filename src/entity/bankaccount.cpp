#include "bankaccount.h"

namespace {

constexpr int finnishIbanLength = 18;
constexpr int bbanLength = 14;
constexpr int hyphenPosition = 6;

} // namespace

QString BankAccount::normalizedCode(const QString &typed)
{
    QString code;
    for (const QChar c : typed) {
        if (!c.isSpace())
            code += c.toUpper();
    }
    return code;
}

QString BankAccount::ibanToBban(const QString &iban) { return iban.size() == finnishIbanLength ? iban.mid(4) : iban; }

QString BankAccount::formatIban(const QString &iban)
{
    QString text;
    for (int i = 0; i < iban.size(); i += 4) {
        if (i > 0)
            text += QLatin1Char(' ');
        text += iban.midRef(i, 4);
    }
    return text;
}

QString BankAccount::formatBban(const QString &bban)
{
    if (bban.size() != bbanLength)
        return bban;
    // The bank groups 4 and 5 keep one digit more before the padding zeros.
    const bool sevenDigits = bban.startsWith(QLatin1Char('4')) || bban.startsWith(QLatin1Char('5'));
    const int padding = sevenDigits ? 7 : 6;
    QString text = bban;
    while (text.size() > padding && text.at(padding) == QLatin1Char('0'))
        text.remove(padding, 1);
    return text.insert(hyphenPosition, QLatin1Char('-'));
}

#include "accountnumber.h"

#include "checkdigits.h"

#include <QRegularExpression>

namespace {

constexpr int finnishIbanLength = 18;
constexpr int bbanLength = 14;

QString withoutBlanks(const QString &text)
{
    QString result;
    for (const QChar c : text) {
        if (!c.isSpace())
            result += c.toUpper();
    }
    return result;
}

/** The 14 digits of `123456-785`: zeros fill the gap behind the bank's part, which is longer in groups 4 and 5. */
QString machineForm(const QString &bankPart, const QString &accountPart)
{
    const bool sevenDigits = bankPart.startsWith(QLatin1Char('4')) || bankPart.startsWith(QLatin1Char('5'));
    const int kept = sevenDigits ? 1 : 0;
    const int zeros = bbanLength - bankPart.size() - accountPart.size();
    return bankPart + accountPart.left(kept) + QString(zeros, QLatin1Char('0')) + accountPart.mid(kept);
}

} // namespace

AccountNumber AccountNumber::fromBban(const QString &bban)
{
    const int remainder = CheckDigits::modulo97(bban + QLatin1String("FI00"));
    const QString check = QString::number(98 - remainder).rightJustified(2, QLatin1Char('0'));
    return {QLatin1String("FI") + check + bban, bban};
}

AccountNumber AccountNumber::parse(const QString &text)
{
    static const QRegularExpression finnish(QStringLiteral("^FI[0-9]{16}(?![0-9])"));
    static const QRegularExpression foreign(QStringLiteral("^(?!FI)[A-Z]{2}[0-9]{2}[A-Z0-9]{11,30}$"));
    static const QRegularExpression machine(QStringLiteral("^[0-9]{14}$"));
    static const QRegularExpression printed(QStringLiteral("^([0-9]{6})-([0-9]{2,8})$"));

    const QString number = withoutBlanks(text.section(QLatin1Char('/'), 0, 0));
    if (finnish.match(number).hasMatch()) {
        const QString iban = number.left(finnishIbanLength);
        return {iban, iban.right(bbanLength)};
    }
    if (foreign.match(number).hasMatch())
        return {number, QString()};
    if (machine.match(number).hasMatch())
        return fromBban(number);
    const QRegularExpressionMatch match = printed.match(number);
    return match.hasMatch() ? fromBban(machineForm(match.captured(1), match.captured(2))) : AccountNumber();
}

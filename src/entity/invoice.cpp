#include "invoice.h"

#include "bankaccount.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr int lastYear = 9999; // of dates as they are stored and printed

constexpr int minBaseLength = 3;
constexpr int maxBaseLength = 19;
constexpr int spyLength = 20;
constexpr int finnishIbanLength = 18;

QString padded(const QString &text, int length) { return text.rightJustified(length, QLatin1Char('0')); }

/** The first run of digits, empty for none. */
QString firstDigits(const QString &text)
{
    const auto isDigit = [](QChar c) { return c >= QLatin1Char('0') && c <= QLatin1Char('9'); };
    const auto first = std::find_if(text.begin(), text.end(), isDigit);
    const auto end = std::find_if_not(first, text.end(), isDigit);
    return QString(first, static_cast<int>(end - first));
}

bool isRf(const QString &reference) { return reference.startsWith(QLatin1String("RF")); }

} // namespace

QString Invoice::appendCheckDigitToReferenceNumber(const QString &text)
{
    QString base;
    for (const QChar c : text) {
        const bool leadingZero = base.isEmpty() && c == QLatin1Char('0');
        if (c.isDigit() && !leadingZero)
            base.append(c);
    }
    if (base.isEmpty())
        base = QStringLiteral("100");
    base = base.right(maxBaseLength).leftJustified(minBaseLength, QLatin1Char('0'));
    return base + QString::number(CheckDigits::ofReference(base));
}

bool Invoice::isValidReferenceNumber(const QString &reference)
{
    return reference.size() >= minBaseLength && reference.size() <= maxBaseLength;
}

QString Invoice::formatReferenceNumber(const QString &reference)
{
    if (isRf(reference))
        return BankAccount::formatIban(reference);
    QString text = reference;
    for (int i = text.size() - 5; i > 0; i -= 5)
        text.insert(i, QLatin1Char(' '));
    return text;
}

QString Invoice::formatRfReferenceNumber(const QString &reference) { return BankAccount::formatIban(reference); }

QString Invoice::formatSpyReferenceNumber(const QString &reference) { return padded(reference, spyLength); }

QString Invoice::referenceNumberToRf(const QString &reference)
{
    // Powers of ten modulo 97. Twenty of them, although a reference of more than 14 digits has more digits to weigh:
    // kept, since every program of this system writes these check digits.
    constexpr int weights[] = {1, 10, 3, 30, 9, 90, 27, 76, 81, 34, 49, 5, 50, 15, 53, 45, 62, 38, 89, 17};
    const QString digits = reference + QLatin1String("271500"); // R = 27, F = 15, no check digits yet
    int sum = 0;
    const int count = std::min<int>(digits.size(), std::size(weights));
    for (int i = 0; i < count; ++i)
        sum += digits.at(digits.size() - 1 - i).digitValue() * weights[i];
    return QLatin1String("RF") + padded(QString::number(98 - sum % 97), 2) + reference;
}

QDate Invoice::calculateDueDate() const
{
    bool ok = false;
    const int days = firstDigits(paymentTerms).toInt(&ok);
    const QDate due = ok ? date.addDays(days) : QDate();
    return due.year() <= lastYear ? due : QDate();
}

bool Invoice::canBeDue() const
{
    return firstDigits(paymentTerms).isEmpty() || !date.isValid() || calculateDueDate().isValid();
}

QString Invoice::barcode(const BankAccount *account, int version) const
{
    if ((version != 4 && version != 5) || account->iban.size() != finnishIbanLength)
        return QString();
    const QString amount = padded(QString::number(std::max(totalAmount, 0)), 8);
    // In version 5 the padding zeros stand before the RF check digits, which banks' own programs expect after them;
    // kept as it is written by all programs of this system.
    const QString reference = version == 4 ? QLatin1String("000") + padded(referenceNumber, 20)
                                           : padded(referenceNumberToRf(referenceNumber).mid(2), 23);
    return QString::number(version) + account->iban.mid(2) + amount + reference +
           dueDate.toString(QStringLiteral("yyMMdd"));
}

#include "iban.h"

#include "checkdigits.h"

namespace {

constexpr int finnishLength = 18;
constexpr int shortest = 15, longest = 34;

/** The first digits of the national number, the longest first among those that begin alike, and the bank's BIC. */
constexpr struct {
    const char *prefix, *bic;
} banks[] = {
    {"405", "HELSFIHH"}, {"497", "HELSFIHH"}, {"711", "BSUIFIHH"}, {"713", "CITIFIHX"}, {"715", "ITELFIHH"},
    {"717", "BIGKFIH1"}, {"799", "HOLVFIHH"}, {"31", "HANDFIHH"},  {"33", "ESSEFIHX"},  {"34", "DABAFIHH"},
    {"36", "SBANFIHH"},  {"37", "DNBAFIHX"},  {"38", "SWEDFIHH"},  {"39", "SBANFIHH"},  {"47", "POPFFI22"},
    {"1", "NDEAFIHH"},   {"2", "NDEAFIHH"},   {"4", "ITELFIHH"},   {"5", "OKOYFIHH"},   {"6", "AABAFI22"},
    {"8", "DABAFIHH"},
};

bool isLetter(QChar c) { return c >= QLatin1Char('A') && c <= QLatin1Char('Z'); }

} // namespace

bool Iban::isValid(const QString &iban)
{
    if (iban.size() < shortest || iban.size() > longest || !isLetter(iban.at(0)) || !isLetter(iban.at(1)))
        return false;
    if (iban.startsWith(QLatin1String("FI")) && iban.size() != finnishLength)
        return false;
    return CheckDigits::modulo97(iban.mid(4) + iban.left(4)) == 1;
}

QString Iban::finnishBic(const QString &iban)
{
    if (!iban.startsWith(QLatin1String("FI")))
        return QString();
    for (const auto &bank : banks) {
        if (iban.midRef(4).startsWith(QLatin1String(bank.prefix)))
            return QLatin1String(bank.bic);
    }
    return QString();
}

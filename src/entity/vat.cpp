#include "vat.h"

#include "constants.h"

#include <cstdlib>

namespace {

constexpr long long factorScale = 1000000000; // nine decimals
constexpr int factorDigits = 9;
constexpr long long wholePercentage = static_cast<long long>(Constants::percentageScale) * Constants::percentageScale;

long long powerOfTen(int exponent)
{
    long long power = 1;
    for (int i = 0; i < exponent; ++i)
        power *= 10;
    return power;
}

} // namespace

long long Vat::round(long long value, int digits) { return round(static_cast<__int128>(value), digits); }

long long Vat::round(__int128 value, int digits)
{
    const __int128 quotient = value / powerOfTen(digits - 1);
    const __int128 result = quotient / 10;
    const int lastDigit = static_cast<int>(quotient % 10);
    if (lastDigit >= 5)
        return static_cast<long long>(result + 1);
    if (lastDigit <= -5)
        return static_cast<long long>(result - 1);
    return static_cast<long long>(result);
}

long long Vat::addVat(long long amount, int vatRate)
{
    return round(static_cast<__int128>(amount) * (wholePercentage + vatRate), Constants::percentageFractionDigits + 2);
}

long long Vat::substractVat(long long amount, int vatRate)
{
    if (vatRate <= -wholePercentage)
        return amount; // no such rate; stored by nobody but a broken program
    const double factor = 1 / (vatRate / 100.0 / Constants::percentageScale + 1.0);
    const long long scaledFactor = static_cast<long long>(factor * factorScale);
    return round(static_cast<__int128>(amount) * scaledFactor, factorDigits);
}

long long Vat::roundWithSamePrecision(long long value, long long reference)
{
    constexpr int maxZeros = Constants::amountFractionDigits - Constants::totalAmountFractionDigits;
    long long rest = reference;
    int zeros = 0;
    while (rest != 0 && rest % 10 == 0 && zeros < maxZeros) {
        rest /= 10;
        ++zeros;
    }
    return zeros == 0 ? round(value, 0) : round(value, zeros) * powerOfTen(zeros);
}

long long Vat::priceVatExcluded(long long price, int vatRate, bool vatExcluded)
{
    return vatExcluded ? price : roundWithSamePrecision(substractVat(price, vatRate), price);
}

long long Vat::priceVatIncluded(long long price, int vatRate, bool vatExcluded)
{
    return vatExcluded ? roundWithSamePrecision(addVat(price, vatRate), price) : price;
}

void Vat::add(long long amount, int vatRate)
{
    m_amounts[vatRate] += amount;
    m_totalAmount += amount;
    if (m_roundingMode == roundPerRow) {
        const long long excluded = substractVat(amount, vatRate);
        m_amountsVatExcluded[vatRate] += excluded;
        m_totalAmountVatExcluded += excluded;
    }
}

void Vat::clear()
{
    m_amounts.clear();
    m_amountsVatExcluded.clear();
    m_totalAmount = 0;
    m_totalAmountVatExcluded = 0;
}

long long Vat::totalAmountVatExcluded() const
{
    if (m_roundingMode == roundPerRow)
        return m_totalAmountVatExcluded;
    long long sum = 0;
    for (auto it = m_amounts.cbegin(); it != m_amounts.cend(); ++it)
        sum += totalAmountVatExcluded(it.key());
    return sum;
}

long long Vat::totalAmountVatExcluded(int vatRate) const
{
    if (m_roundingMode == roundPerRow)
        return m_amountsVatExcluded.value(vatRate);
    return substractVat(m_amounts.value(vatRate), vatRate);
}

long long Vat::totalVatAmount() const
{
    long long sum = 0;
    for (auto it = m_amounts.cbegin(); it != m_amounts.cend(); ++it)
        sum += totalVatAmount(it.key());
    return sum;
}

long long Vat::totalVatAmount(int vatRate) const { return totalAmount(vatRate) - totalAmountVatExcluded(vatRate); }

#include "invoiceitem.h"

#include "constants.h"
#include "vat.h"

#include <limits>

namespace {

constexpr long long wholePercentage = static_cast<long long>(Constants::percentageScale) * Constants::percentageScale;
constexpr int amountToTotalDigits = Constants::amountFractionDigits - Constants::totalAmountFractionDigits;

} // namespace

bool InvoiceItem::fits() const
{
    const __int128 product = static_cast<__int128>(quantity) * amount;
    if (product > std::numeric_limits<long long>::max() || product < std::numeric_limits<long long>::min())
        return false;
    // A billion euros with all decimals: whatever the VAT rate makes of it fits too.
    constexpr __int128 most = static_cast<__int128>(10000000000000) * 100000000;
    const __int128 total = product * (wholePercentage - discount);
    return total <= most && total >= -most;
}

long long InvoiceItem::amountVatExcluded() const { return Vat::priceVatExcluded(amount, vatRate, vatExcluded); }

long long InvoiceItem::amountVatIncluded() const { return Vat::priceVatIncluded(amount, vatRate, vatExcluded); }

void InvoiceItem::setAmountVatExcluded(long long price)
{
    amount = price;
    vatExcluded = true;
}

void InvoiceItem::setAmountVatIncluded(long long price)
{
    amount = price;
    vatExcluded = false;
}

long long InvoiceItem::discountedPrice() const
{
    return Vat::round(static_cast<__int128>(wholePercentage - discount) * amount, Constants::amountFractionDigits);
}

long long InvoiceItem::unitAmountVatExcluded() const
{
    const long long price = discountedPrice();
    return vatExcluded ? price : Vat::roundWithSamePrecision(Vat::substractVat(price, vatRate), amount);
}

long long InvoiceItem::unitAmountVatIncluded() const
{
    const long long price = discountedPrice();
    return vatExcluded ? Vat::roundWithSamePrecision(Vat::addVat(price, vatRate), amount) : price;
}

long long InvoiceItem::total() const
{
    return Vat::round(static_cast<__int128>(quantity) * amount * (wholePercentage - discount),
                      Constants::quantityFractionDigits + Constants::amountFractionDigits);
}

long long InvoiceItem::totalAmountVatExcluded() const
{
    return Vat::round(vatExcluded ? total() : Vat::substractVat(total(), vatRate), amountToTotalDigits);
}

long long InvoiceItem::totalAmountVatIncluded() const
{
    return Vat::round(vatExcluded ? Vat::addVat(total(), vatRate) : total(), amountToTotalDigits);
}

int InvoiceItem::discountAmount() const
{
    const long long undiscounted =
        Vat::round(static_cast<__int128>(quantity) * amount, amountToTotalDigits + Constants::quantityFractionDigits);
    const long long vatIncluded = vatExcluded ? Vat::addVat(undiscounted, vatRate) : undiscounted;
    return static_cast<int>(vatIncluded - totalAmountVatIncluded());
}

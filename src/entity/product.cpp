#include "product.h"

#include "invoiceitem.h"
#include "vat.h"

long long Product::amountVatExcluded() const { return Vat::priceVatExcluded(amount, vatRate, vatExcluded); }

long long Product::amountVatIncluded() const { return Vat::priceVatIncluded(amount, vatRate, vatExcluded); }

void Product::setAmountVatExcluded(long long price)
{
    amount = price;
    vatExcluded = true;
}

void Product::setAmountVatIncluded(long long price)
{
    amount = price;
    vatExcluded = false;
}

void Product::toInvoiceItem(InvoiceItem *item) const
{
    item->productNumber = number;
    item->productName = name;
    item->unitCode = unitCode;
    item->amount = amount;
    item->vatRate = vatRate;
    item->vatExcluded = vatExcluded;
}

#ifndef PRODUCT_H
#define PRODUCT_H

#include <QString>

class InvoiceItem;

/** A product or service of the seller. */
class Product {
public:
    int id = -1;    ///< -1: not stored yet
    QString number; ///< a text, looked up exactly
    /** Go to new rows as they are; the unit is a text as printed, "kpl". */
    QString name;
    QString unitCode;
    long long amount = 0; ///< unit price, four decimals, VAT in it unless vatExcluded; stored ones are read as 32 bits
    int vatRate = 0;      ///< hundredths of a percent
    bool vatExcluded = false; ///< the kind of `amount`
    QString category;         ///< free text, empty for none

    void clear() { *this = Product(); }
    void copy(Product *target) const { *target = *this; }

    /** Unit price without and with VAT, four decimals, rounded as Vat::roundWithSamePrecision() says. */
    long long amountVatExcluded() const;
    long long amountVatIncluded() const;
    /** Stores the price as typed and records which kind it is; nothing is converted. */
    void setAmountVatExcluded(long long price);
    void setAmountVatIncluded(long long price);

    /** Fills number, name, unit, price and VAT rate of the row; quantity, discount and text are left as they are. */
    void toInvoiceItem(InvoiceItem *item) const;
};

#endif

#ifndef INVOICEITEM_H
#define INVOICEITEM_H

#include "propertymap.h"

#include <QString>

/**
 * A row of an invoice: one price, a quantity, a VAT rate and a discount, from which every other figure is computed. Its
 * properties are what RowTerms keeps for it.
 */
class InvoiceItem : public PropertyMap {
public:
    int id = -1;        ///< -1: not stored yet
    int invoiceId = -1; ///< -1: on none yet
    /**
     * As they were when the row was made: a product that changes later leaves rows alone. An empty number is of no
     * product.
     */
    QString productNumber;
    QString productName;
    long long quantity = 0;   ///< four decimals
    QString unitCode;         ///< a text as printed, "kpl"
    long long amount = 0;     ///< unit price, four decimals; vatExcluded tells whether VAT is in it
    int vatRate = 0;          ///< hundredths of a percent
    bool vatExcluded = false; ///< the kind of `amount`
    int discount = 0;         ///< hundredths of a percent
    QString text;             ///< a free comment line
    int rowNumber = 0;        ///< place on the invoice

    void clear() { *this = InvoiceItem(); }
    void copy(InvoiceItem *target) const { *target = *this; }

    /** Whether quantity times price fits 64 bits, and what follows from it does, as a row that is stored must. */
    bool fits() const;

    // Unit prices before the discount, four decimals.
    long long amountVatExcluded() const;
    long long amountVatIncluded() const;
    /** Stores the price as typed and records which kind it is; nothing is converted. */
    void setAmountVatExcluded(long long price);
    void setAmountVatIncluded(long long price);

    // Unit prices after the discount, four decimals.
    long long unitAmountVatExcluded() const;
    long long unitAmountVatIncluded() const;

    // Row totals after the discount, cents; 64 bits, for the caller to check before storing 32.
    long long totalAmountVatExcluded() const;
    long long totalAmountVatIncluded() const;

    /** What the discount takes off the row's total, VAT included, cents. */
    int discountAmount() const;

private:
    /** Four decimals, VAT as in `amount`, the discount taken off. The total is of the whole quantity. */
    long long discountedPrice() const;
    long long total() const;
};

#endif

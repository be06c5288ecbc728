#ifndef EINVOICESUMS_H
#define EINVOICESUMS_H

#include "einvoicedocument.h"

class InvoiceItem;

/**
 * The arithmetic that the standard's rules of sums hold for by the letter, while every printed row stays as close as a
 * cent. Whole cents, rationals in between, half away from zero.
 */
namespace EInvoice {

/** A line with the row that it was made of. */
struct SummedRow {
    const InvoiceItem *row; ///< not owned
    Line *line;             ///< its category, rate and sign are set
};

/**
 * Fills the net amounts, prices and allowances of lines, the breakdown and the totals.
 * @param sign  1, or -1 for a credit note whose rows are below zero
 * @param total, balance  as they are stored, cents
 */
void addSums(Document &document, const QVector<SummedRow> &rows, int sign, long long total, long long balance);

} // namespace EInvoice

#endif

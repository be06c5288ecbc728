#ifndef INVOICETOTALS_H
#define INVOICETOTALS_H

#include <QVector>

class Invoice;
class InvoiceItem;
struct UseCaseContext;

/** An invoice's stored total and balance, recomputed from its rows and payments. */
namespace InvoiceTotals {

enum class Outcome {
    updated,  ///< saved, with the balance, also when neither has changed
    failed,   ///< the statement failed or there is no such invoice: what was saved before stays saved
    tooLarge, ///< beyond 32 bits of cents: what was saved before must be taken back
};

/** Rows that were just saved: what they say of themselves goes to their invoice. */
struct SavedRows {
    QVector<InvoiceItem> rows;
    bool areNew = false;
};

/**
 * Sets total and balance of an invoice, in cents.
 * @return false, with invoiceTotalTooLarge told and nothing changed, when one is beyond 32 bits
 */
[[nodiscard]] bool set(UseCaseContext &context, Invoice &invoice, long long total, long long paid);

/** Recomputes and saves the total and the balance; a failure is told, with nothing changed. */
[[nodiscard]] Outcome updateInvoice(UseCaseContext &context, int invoiceId);
[[nodiscard]] Outcome updateInvoice(UseCaseContext &context, int invoiceId, const SavedRows &saved);

/**
 * The same for the invoice of a payment or row, and for the one that it was moved away from.
 * @param earlierInvoiceId  -1 for a new record; may be the same
 */
[[nodiscard]] Outcome updateInvoices(UseCaseContext &context, int invoiceId, int earlierInvoiceId,
                                     const SavedRows &saved);

} // namespace InvoiceTotals

#endif

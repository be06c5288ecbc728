#ifndef INVOICETOTALS_H
#define INVOICETOTALS_H

struct UseCaseContext;

/** An invoice's stored total and balance, recomputed from its rows and payments. */
namespace InvoiceTotals {

enum class Outcome {
    updated,  ///< saved, with the balance, also when neither has changed
    failed,   ///< the statement failed or there is no such invoice: what was saved before stays saved
    tooLarge, ///< beyond 32 bits of cents: what was saved before must be taken back
};

/** Recomputes and saves the total and the balance; a failure is told, with nothing changed. */
[[nodiscard]] Outcome updateInvoice(UseCaseContext &context, int invoiceId);

/**
 * The same for the invoice of a saved row or payment, and for the one that it was moved away from.
 * @param earlierInvoiceId  -1 for a new record; may be the same
 */
[[nodiscard]] Outcome updateInvoices(UseCaseContext &context, int invoiceId, int earlierInvoiceId);

} // namespace InvoiceTotals

#endif

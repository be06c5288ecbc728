#ifndef INVOICETOTALS_H
#define INVOICETOTALS_H

struct CommandContext;

/** An invoice's stored total and balance, recomputed from its rows and payments. */
namespace InvoiceTotals {

enum class Outcome {
    updated,
    failed,   ///< the statement failed or there is no such invoice: what was saved before stays saved
    tooLarge, ///< beyond 32 bits of cents: what was saved before must be taken back
};

/** Recomputes and saves the total and the balance; a failure is in the status, with nothing changed. */
[[nodiscard]] Outcome updateInvoice(CommandContext &context, int invoiceId);

} // namespace InvoiceTotals

#endif

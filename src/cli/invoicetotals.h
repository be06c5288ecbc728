#ifndef INVOICETOTALS_H
#define INVOICETOTALS_H

struct CommandContext;

/** An invoice's stored total and balance, recomputed from its rows and payments. */
namespace InvoiceTotals {

/**
 * Recomputes and saves the total and the balance.
 * @return false with the failure in the status, nothing changed: no such invoice, or a sum beyond 32 bits of cents
 */
[[nodiscard]] bool updateInvoice(CommandContext &context, int invoiceId);

} // namespace InvoiceTotals

#endif

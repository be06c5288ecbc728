#ifndef INVOICELOOKUP_H
#define INVOICELOOKUP_H

#include "commandcontext.h"
#include "invoice.h"

/**
 * The parameters by which a row or a payment names its invoice. State has a `record` with an invoice id, and a flag
 * `hasInvoice`.
 */
namespace InvoiceLookup {

/** Takes the invoice as the one that is named. @return true */
template <class State> bool use(State &state, const Invoice &invoice)
{
    state.record.invoiceId = invoice.id;
    state.hasInvoice = true;
    return true;
}

/** "@" is the invoice saved last. The invoice must exist; false with the status set, and state unchanged, otherwise. */
template <class State> bool byId(CommandContext &context, const QString &key, const QString &value, State &state)
{
    int id = 0;
    Invoice invoice;
    return context.values.parseIdValue(key, value, context.lastSaved.invoice, id) &&
           context.finder.findInvoiceById(id, &invoice) && use(state, invoice);
}

/** The same by the number that people see; only ASCII digits with an optional sign are one. */
template <class State> bool byNumber(CommandContext &context, const QString &key, const QString &value, State &state)
{
    int number = 0;
    Invoice invoice;
    return context.values.parseIntValue(key, value, number) && context.finder.findInvoiceByNumber(number, &invoice) &&
           use(state, invoice);
}

} // namespace InvoiceLookup

#endif

#include "invoicetotals.h"

#include "commandcontext.h"
#include "invoice.h"
#include "invoiceitem.h"
#include "payment.h"
#include "query.h"

#include <limits>

namespace {

bool fitsIntoCents(long long sum)
{
    return sum >= std::numeric_limits<int>::min() && sum <= std::numeric_limits<int>::max();
}

} // namespace

bool InvoiceTotals::updateInvoice(CommandContext &context, int invoiceId)
{
    Invoice invoice;
    if (!context.finder.findInvoiceById(invoiceId, &invoice))
        return false;
    Query *query = context.session.query();

    long long amount = 0;
    if (!query->fetchInvoiceItems(invoiceId))
        return context.session.failQuery();
    InvoiceItem item;
    while (query->next()) {
        query->invoiceItem(&item);
        amount += item.totalAmountVatIncluded();
    }

    long long balance = amount;
    if (!query->fetchPayments(invoiceId))
        return context.session.failQuery();
    Payment payment;
    while (query->next()) {
        query->payment(&payment);
        balance -= payment.amount;
    }

    if (!fitsIntoCents(amount) || !fitsIntoCents(balance))
        return context.status.fail(ExitCode::badData, CommandContext::tr("Laskun loppusumma on liian suuri"));
    invoice.totalAmount = static_cast<int>(amount);
    invoice.balance = static_cast<int>(balance);
    context.diagnostics.printDebugMessage(CommandContext::tr("Tallennetaan laskun %1 tiedot").arg(invoice.number));
    return query->saveInvoice(&invoice) || context.session.failQuery();
}

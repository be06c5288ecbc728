#include "invoicetotals.h"

#include "invoice.h"
#include "invoiceitem.h"
#include "payment.h"
#include "query.h"
#include "rowterms.h"
#include "usecasecontext.h"

#include <limits>

namespace {

InvoiceTotals::Outcome failQuery(UseCaseContext &context)
{
    context.session.failQuery();
    return InvoiceTotals::Outcome::failed;
}

bool fitsIntoCents(long long sum)
{
    return sum >= std::numeric_limits<int>::min() && sum <= std::numeric_limits<int>::max();
}

} // namespace

bool InvoiceTotals::set(UseCaseContext &context, Invoice &invoice, long long total, long long paid)
{
    if (!fitsIntoCents(total) || !fitsIntoCents(total - paid))
        return context.listener.fail(Failure::invoiceTotalTooLarge);
    invoice.totalAmount = static_cast<int>(total);
    invoice.balance = static_cast<int>(total - paid);
    return true;
}

InvoiceTotals::Outcome InvoiceTotals::updateInvoice(UseCaseContext &context, int invoiceId)
{
    return updateInvoice(context, invoiceId, SavedRows());
}

InvoiceTotals::Outcome InvoiceTotals::updateInvoice(UseCaseContext &context, int invoiceId, const SavedRows &saved)
{
    Invoice invoice;
    if (!context.finder.findInvoiceById(invoiceId, &invoice))
        return Outcome::failed;
    Query *query = context.session.query();

    long long amount = 0;
    InvoiceItem item;
    QSet<int> rowIds;
    const auto addItem = [&] {
        query->invoiceItem(&item);
        rowIds.insert(item.id);
        amount += item.totalAmountVatIncluded();
    };
    if (!query->fetchInvoiceItems(invoiceId) || !query->readAll(addItem))
        return failQuery(context);

    long long paid = 0;
    Payment payment;
    const auto addPayment = [&] {
        query->payment(&payment);
        paid += payment.amount;
    };
    if (!query->fetchPayments(invoiceId) || !query->readAll(addPayment))
        return failQuery(context);

    if (!set(context, invoice, amount, paid))
        return Outcome::tooLarge;
    for (const InvoiceItem &row : saved.rows)
        RowTerms::write(invoice, row, saved.areNew);
    RowTerms::keepOnly(invoice, rowIds);
    context.listener.note(Notice::savingInvoice, {QString::number(invoice.number)});
    return query->saveInvoice(&invoice) ? Outcome::updated : failQuery(context);
}

InvoiceTotals::Outcome InvoiceTotals::updateInvoices(UseCaseContext &context, int invoiceId, int earlierInvoiceId,
                                                     const SavedRows &saved)
{
    const Outcome outcome = updateInvoice(context, invoiceId, saved);
    const bool moved = earlierInvoiceId >= 0 && earlierInvoiceId != invoiceId;
    return moved && outcome == Outcome::updated ? updateInvoice(context, earlierInvoiceId) : outcome;
}

#include "recordediting.h"

#include "bankaccount.h"
#include "customer.h"
#include "invoice.h"
#include "invoiceeditor.h"
#include "invoiceitem.h"
#include "payment.h"
#include "product.h"
#include "query.h"
#include "rowterms.h"
#include "usecasecontext.h"

#include <algorithm>
#include <limits>

namespace {

using InvoiceTotals::Outcome;

/** Saves a record of a cached list, and has the list hold it. */
template <class Record>
bool saveListed(UseCaseContext &context, Record &record, bool (Query::*save)(Record *),
                void (Registry::*store)(const Record &), CachedList list)
{
    if (!(context.session.query()->*save)(&record))
        return context.session.failQuery();
    (context.session.registry().*store)(record);
    context.session.setStored(list);
    return true;
}

bool saveListed(UseCaseContext &context, BankAccount &account)
{
    return saveListed(context, account, &Query::saveBankAccount, &Registry::storeBankAccount, CachedList::bankAccounts);
}

bool saveListed(UseCaseContext &context, Customer &customer)
{
    return saveListed(context, customer, &Query::saveCustomer, &Registry::storeCustomer, CachedList::customers);
}

/** A row's total must fit its 32 bits of cents, and quantity times price 64, which a large discount may hide. */
bool checkTotal(UseCaseContext &context, const InvoiceItem &row)
{
    if (!row.fits())
        return context.listener.fail(Failure::rowTotalTooLarge);
    constexpr long long most = std::numeric_limits<int>::max();
    const long long total = row.totalAmountVatIncluded();
    return (total <= most && total >= -most) || context.listener.fail(Failure::rowTotalTooLarge);
}

/** What a row says of itself goes with it to another invoice; the earlier one may be gone. */
bool takeAlong(UseCaseContext &context, int earlierInvoiceId, InvoiceItem &row)
{
    Query *query = context.session.query();
    if (!query->fetchInvoiceDetails(earlierInvoiceId))
        return false;
    return query->readAll([&] {
        Invoice earlier;
        query->invoiceDetails(&earlier);
        RowTerms::read(earlier, row);
    });
}

/** Saves new rows of an invoice, numbered from the first on. */
bool saveRows(UseCaseContext &context, int invoiceId, int number, QVector<InvoiceItem> &rows)
{
    for (InvoiceItem &row : rows) {
        row.invoiceId = invoiceId;
        row.rowNumber = number++;
        if (!checkTotal(context, row))
            return false;
        if (!context.session.query()->saveInvoiceItem(&row))
            return context.session.failQuery();
        context.lastSaved.invoiceItem = row.id;
    }
    return true;
}

} // namespace

bool RecordEditing::giveNumber(UseCaseContext &context, Customer &customer)
{
    if (customer.number >= 0)
        return true;
    const int highest = context.session.query()->maxCustomerNumber();
    if (!context.session.query()->lastError().isEmpty())
        return context.session.failQuery();
    if (highest == std::numeric_limits<int>::max())
        return context.listener.fail(Failure::noNextCustomerNumber);
    customer.number = std::max(highest, 0) + 1;
    return true;
}

bool RecordEditing::save(UseCaseContext &context, BankAccount &account)
{
    if (!saveListed(context, account))
        return false;
    context.lastSaved.bankAccount = account.id;
    return true;
}

bool RecordEditing::save(UseCaseContext &context, Customer &customer)
{
    if (!giveNumber(context, customer) || !saveListed(context, customer))
        return false;
    context.lastSaved.customer = customer.id;
    return true;
}

bool RecordEditing::save(UseCaseContext &context, Product &product)
{
    if (!saveListed(context, product, &Query::saveProduct, &Registry::storeProduct, CachedList::products))
        return false;
    context.lastSaved.product = product.id;
    return true;
}

bool RecordEditing::addRows(UseCaseContext &context, int invoiceId, QVector<InvoiceItem> &rows)
{
    const int number = context.session.query()->nextRowNumber(invoiceId);
    if (number < 0)
        return context.session.failQuery();
    return saveRows(context, invoiceId, number, rows) &&
           InvoiceTotals::updateInvoice(context, invoiceId, {rows, true}) == Outcome::updated;
}

bool RecordEditing::addInvoice(UseCaseContext &context, InvoiceEditor &editor, QVector<InvoiceItem> &rows)
{
    Invoice &invoice = editor.invoice();
    long long total = 0;
    bool haveTerms = false;
    for (const InvoiceItem &row : qAsConst(rows)) {
        if (!checkTotal(context, row))
            return false;
        total += row.totalAmountVatIncluded();
        haveTerms = haveTerms || !row.properties.isEmpty();
    }
    RowTerms::keepOnly(invoice, {});
    if (!InvoiceTotals::set(context, invoice, total, 0) || !editor.save())
        return false;
    context.lastSaved.invoice = invoice.id;
    if (!saveRows(context, invoice.id, 0, rows))
        return false;
    if (!haveTerms)
        return true;
    for (const InvoiceItem &row : qAsConst(rows)) // by the ids that they have now
        RowTerms::write(invoice, row, true);
    return editor.save();
}

Outcome RecordEditing::saveRow(UseCaseContext &context, InvoiceItem &row, int earlierInvoiceId)
{
    const auto fail = [](bool) { return Outcome::tooLarge; };
    if (!checkTotal(context, row))
        return Outcome::tooLarge;
    Query *query = context.session.query();
    const bool isNew = row.id < 0;
    if (!isNew && earlierInvoiceId != row.invoiceId && !takeAlong(context, earlierInvoiceId, row))
        return fail(context.session.failQuery());
    if (isNew) {
        row.rowNumber = query->nextRowNumber(row.invoiceId);
        if (row.rowNumber < 0)
            return fail(context.session.failQuery());
    }
    context.listener.note(Notice::savingRow, {QString::number(row.invoiceId), row.productName});
    if (!query->saveInvoiceItem(&row))
        return fail(context.session.failQuery());
    const Outcome outcome = InvoiceTotals::updateInvoices(context, row.invoiceId, earlierInvoiceId, {{row}, isNew});
    if (outcome != Outcome::tooLarge)
        context.lastSaved.invoiceItem = row.id;
    return outcome;
}

Outcome RecordEditing::savePayment(UseCaseContext &context, Payment &payment, int earlierInvoiceId)
{
    context.listener.note(Notice::savingPayment);
    if (!context.session.query()->savePayment(&payment)) {
        context.session.failQuery();
        return Outcome::tooLarge;
    }
    context.lastSaved.payment = payment.id;
    return InvoiceTotals::updateInvoices(context, payment.invoiceId, earlierInvoiceId, {});
}

bool RecordEditing::remove(UseCaseContext &context, BankAccount &account)
{
    account.deleted = true;
    return saveListed(context, account);
}

bool RecordEditing::remove(UseCaseContext &context, Customer &customer)
{
    customer.deleted = true;
    return saveListed(context, customer);
}

bool RecordEditing::remove(UseCaseContext &context, const Product &product)
{
    if (!context.session.query()->deleteProduct(product.id))
        return context.session.failQuery();
    context.session.registry().forgetProduct(product.id);
    context.session.setStored(CachedList::products);
    return true;
}

bool RecordEditing::removeInvoice(UseCaseContext &context, int id)
{
    Query *query = context.session.query();
    return (query->deleteInvoiceItems(id) && query->deletePayments(id) && query->deleteInvoice(id)) ||
           context.session.failQuery();
}

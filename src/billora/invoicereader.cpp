#include "invoicereader.h"

#include "customer.h"
#include "database.h"
#include "query.h"
#include "registry.h"
#include "rowterms.h"
#include "settings.h"
#include "task.h"
#include "vat.h"

#include <QHash>

#include <memory>

namespace {

/** Invoices whose rows are read together. */
constexpr int chunkSize = 256;

/** Sums of an invoice's rows, and their own. */
void addSums(InvoiceRecord &record, int roundingMode)
{
    Vat vat;
    vat.setRoundingMode(roundingMode);
    for (int i = 0; i < record.rows.size(); ++i) {
        RowRecord &row = record.rows[i];
        RowTerms::read(record.invoice, row.item);
        row.position = i + 1;
        row.net = row.item.totalAmountVatExcluded();
        row.total = row.item.totalAmountVatIncluded();
        vat.add(row.total, row.item.vatRate);
    }
    record.net = vat.totalAmountVatExcluded();
    record.vat = vat.totalVatAmount();
    const QList<int> rates = vat.vatRates();
    for (const int rate : rates)
        record.vatRates.append(
            {rate, vat.totalAmountVatExcluded(rate), vat.totalVatAmount(rate), vat.totalAmount(rate)});
}

/** Reads what belongs to the invoices of a chunk. */
bool addDetails(Query &query, QVector<InvoiceRecord> &records, int roundingMode)
{
    QVector<int> ids;
    QHash<int, InvoiceRecord *> byId;
    for (InvoiceRecord &record : records) {
        ids.append(record.invoice.id);
        byId.insert(record.invoice.id, &record);
    }
    if (!query.fetchItemsOf(ids))
        return false;
    while (query.next()) {
        RowRecord row;
        query.invoiceItem(&row.item);
        if (InvoiceRecord *record = byId.value(row.item.invoiceId))
            record->rows.append(row);
    }
    if (query.hasReadError() || !query.fetchPaymentsOf(ids))
        return false;
    while (query.next()) {
        PaymentRecord payment;
        query.paymentListRow(&payment.payment, &payment.invoiceNumber, &payment.accountName);
        if (InvoiceRecord *record = byId.value(payment.payment.invoiceId))
            record->payments.append(payment);
    }
    for (InvoiceRecord &record : records)
        addSums(record, roundingMode);
    return !query.hasReadError();
}

} // namespace

bool InvoiceReader::read(Task &task, const InvoiceSelection &selection, bool withDetails, const Each &each)
{
    DatabaseSession &session = task.context().session;
    if (withDetails && !session.fetch(CachedList::settings))
        return false;
    Query *query = session.query();
    const QDate day = selection.asOf.isValid() ? selection.asOf : task.reader.today();
    // While the list stands, the rows of a chunk are read by a statement of their own; those of the last one are not,
    // and the statements of a single invoice are so the session's, which are kept. A connection to PostgreSQL carries
    // one answer at a time: there the list is read to its end first.
    const bool isInterleaved = session.database()->readsTogether();
    std::unique_ptr<Query> details;
    const int roundingMode = withDetails ? task.session.registry().settings()->roundingMode() : 0;
    if (!query->fetchInvoiceList(selection, withDetails))
        return session.failQuery();
    QVector<InvoiceRecord> waiting;
    bool isWanted = true;
    const auto pass = [&](Query &rows) {
        for (int first = 0; isWanted && first < waiting.size(); first += chunkSize) {
            QVector<InvoiceRecord> chunk = waiting.mid(first, chunkSize);
            if (!addDetails(rows, chunk, roundingMode))
                return session.failDatabase(rows.lastError());
            for (const InvoiceRecord &record : qAsConst(chunk))
                isWanted = isWanted && each(record);
        }
        waiting.clear();
        return true;
    };
    while (isWanted && query->next()) {
        InvoiceRecord record;
        record.today = day;
        query->invoiceListRow(&record.invoice, &record.customerNumber, &record.customerName, withDetails);
        if (!withDetails) {
            isWanted = each(record);
            continue;
        }
        waiting.append(record);
        if (waiting.size() < chunkSize || !isInterleaved)
            continue;
        if (!details)
            details = session.newQuery();
        if (!pass(*details))
            return false;
    }
    if (isWanted && query->hasReadError())
        return session.failQuery();
    query->finish();
    return pass(*query);
}

bool InvoiceReader::readWhole(Task &task, int id, InvoiceRecord &record)
{
    InvoiceSelection selection;
    selection.ids.append(id);
    selection.today = task.reader.today();
    return read(task, selection, true, [&record](const InvoiceRecord &found) {
        record = found;
        return true;
    });
}

InvoiceRecord InvoiceReader::ofSaved(Task &task, const Invoice &invoice, const Customer &customer,
                                     const QVector<InvoiceItem> &rows)
{
    InvoiceRecord record;
    record.invoice = invoice;
    record.today = task.reader.today();
    record.customerNumber = customer.number;
    record.customerName = customer.name;
    for (const InvoiceItem &item : rows) {
        RowRecord row;
        row.item = item;
        row.item.properties.clear(); // the invoice keeps them
        record.rows.append(row);
    }
    addSums(record, task.session.registry().settings()->roundingMode());
    return record;
}

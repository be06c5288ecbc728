#ifndef INVOICEREADER_H
#define INVOICEREADER_H

#include "invoiceselection.h"
#include "records.h"

#include <QVector>

#include <functional>

class Customer;
class Task;

/** Reads invoices as the table of fields wants them. Failures are told. */
namespace InvoiceReader {

/** @return false when no more are wanted */
using Each = std::function<bool(const InvoiceRecord &)>;

/**
 * Reads the selected invoices one after the other, in the order of the selection.
 * @param withDetails  their rows, payments and sums too
 */
[[nodiscard]] bool read(Task &task, const InvoiceSelection &selection, bool withDetails, const Each &each);
/** Reads the whole of one. */
[[nodiscard]] bool readWhole(Task &task, int id, InvoiceRecord &record);
/** What readWhole() would read of an invoice that was just made. @param customer  the invoice's */
InvoiceRecord ofSaved(Task &task, const Invoice &invoice, const Customer &customer, const QVector<InvoiceItem> &rows);

} // namespace InvoiceReader

#endif

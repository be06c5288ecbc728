#ifndef INVOICEWRITER_H
#define INVOICEWRITER_H

#include "arguments.h"
#include "invoiceeditor.h"
#include "records.h"

class Task;

/** Makes and changes invoices from what a command was given. For use in a transaction; problems are told. */
namespace InvoiceWriter {

/**
 * Sets the fields that are given, in the program's own order: customer, terms, date, due date, number, reference, the
 * rest. A new invoice is completed before its reference is set.
 */
[[nodiscard]] bool applyFields(Task &task, const Arguments &given, InvoiceEditor &editor);

/** Makes the rows of their words. */
[[nodiscard]] bool readRows(Task &task, const QVector<Arguments> &given, QVector<InvoiceItem> &rows);

/** The rows of an invoice in the grammar of RowWords, one a line, as they can be edited and read again. */
QStringList rowLines(const InvoiceRecord &record);

/** Reads the rows given as words (`row`) into those given as objects. */
[[nodiscard]] bool takeRowWords(Task &task, Arguments &given);

} // namespace InvoiceWriter

#endif

#ifndef RECORDFIELDS_H
#define RECORDFIELDS_H

#include "arguments.h"
#include "field.h"

class InvoiceItem;
class Task;
class ValueReader;

/** From what a command was given into records, by the table of fields. Problems are told. */
namespace RecordFields {

/** Sets every field of the table that was given, in the order of the table. */
[[nodiscard]] bool apply(const ValueReader &reader, const RecordTable &table, const Arguments &given, void *record);
/** Whether any editable field of the table was given. */
bool hasAny(const RecordTable &table, const Arguments &given);

/**
 * Fills a row of an invoice: its product, then its fields.
 * @param isNew  a row needs a product, or a name and a price; its quantity is 1 unless given
 */
[[nodiscard]] bool applyRow(Task &task, const Arguments &given, bool isNew, InvoiceItem &row);

} // namespace RecordFields

#endif

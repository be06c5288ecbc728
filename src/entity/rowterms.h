#ifndef ROWTERMS_H
#define ROWTERMS_H

#include <QSet>
#include <QString>

class Invoice;
class InvoiceItem;

/**
 * What a row says of itself beyond its columns, as its VAT category. It is kept among the properties of the invoice, as
 * `row.ID.KEY`, so that programs that know nothing of it keep it.
 */
namespace RowTerms {

/** @return empty when the row has none of the key */
QString value(const Invoice &invoice, int rowId, const char *key);
/** Gives a row all that its invoice keeps for it. */
void read(const Invoice &invoice, InvoiceItem &row);
/**
 * Keeps the properties of a stored row; an empty one is removed, what the row does not name stays.
 * @param isNew  the row has just got its id: nothing of an earlier row with this id stays
 */
void write(Invoice &invoice, const InvoiceItem &row, bool isNew);
/** Drops what is kept for rows that are gone. */
void keepOnly(Invoice &invoice, const QSet<int> &rowIds);

} // namespace RowTerms

#endif

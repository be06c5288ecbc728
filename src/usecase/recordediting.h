#ifndef RECORDEDITING_H
#define RECORDEDITING_H

#include "invoicetotals.h"

#include <QVector>

class BankAccount;
class Customer;
class InvoiceEditor;
class InvoiceItem;
class Payment;
class Product;

/**
 * Saving and removing records with what belongs to it. Each is for use in a transaction of the caller's; failures are
 * told.
 */
namespace RecordEditing {

/** A customer without a number gets the next one. Asked of the database: no need to read all customers for it. */
[[nodiscard]] bool giveNumber(UseCaseContext &context, Customer &customer);

/** Saves; the cached list is read again when next needed. */
[[nodiscard]] bool save(UseCaseContext &context, BankAccount &account);
[[nodiscard]] bool save(UseCaseContext &context, Customer &customer);
[[nodiscard]] bool save(UseCaseContext &context, Product &product);

/**
 * Saves an invoice's row, a new one behind the others, and brings the invoice's total up to date.
 * @param earlierInvoiceId  of a stored row, which may be moved; -1 for a new one
 * @return tooLarge and failed with the failure told; the row is not saved when it cannot be stored
 */
[[nodiscard]] InvoiceTotals::Outcome saveRow(UseCaseContext &context, InvoiceItem &row, int earlierInvoiceId);
/** The same for a payment. */
[[nodiscard]] InvoiceTotals::Outcome savePayment(UseCaseContext &context, Payment &payment, int earlierInvoiceId);
/** Saves the new invoice of an editor with its rows: its total is known before, and nothing is read again. */
[[nodiscard]] bool addInvoice(UseCaseContext &context, InvoiceEditor &editor, QVector<InvoiceItem> &rows);
/** Adds rows behind those of an invoice, with one update of its total. */
[[nodiscard]] bool addRows(UseCaseContext &context, int invoiceId, QVector<InvoiceItem> &rows);

/** Marks it removed: old payments and invoices go on referring to it. */
[[nodiscard]] bool remove(UseCaseContext &context, BankAccount &account);
[[nodiscard]] bool remove(UseCaseContext &context, Customer &customer);
/** Deleted: rows hold copies of its fields. */
[[nodiscard]] bool remove(UseCaseContext &context, const Product &product);
/** Removes an invoice with its rows and payments. */
[[nodiscard]] bool removeInvoice(UseCaseContext &context, int id);

} // namespace RecordEditing

#endif

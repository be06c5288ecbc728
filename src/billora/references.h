#ifndef REFERENCES_H
#define REFERENCES_H

#include <QString>

class BankAccount;
class Customer;
class Invoice;
class InvoiceItem;
class Payment;
class PrintScript;
class Product;
class Task;

/**
 * Finds the record that a word names: `@last` (the one that this run saved last, else the newest), `id:7`, its number,
 * or its name. Of names an equal one wins, else the only one that contains the word, letter case aside. Removed
 * customers and accounts are found by `id:` alone.
 *
 * None or several are a problem of the option, with the nearest ones as suggestions; the record is then unchanged.
 */
namespace References {

/** Letter case of names aside. */
[[nodiscard]] bool customer(Task &task, const QString &option, const QString &word, Customer &record);
/** A number wins over a name. */
[[nodiscard]] bool product(Task &task, const QString &option, const QString &word, Product &record);
[[nodiscard]] bool account(Task &task, const QString &option, const QString &word, BankAccount &record);
/** Its id as digits, or its name; the source is in the record. */
[[nodiscard]] bool layout(Task &task, const QString &option, const QString &word, PrintScript &record);
[[nodiscard]] bool invoice(Task &task, const QString &option, const QString &word, Invoice &record);
/** Digits are an id: payments have no numbers. */
[[nodiscard]] bool payment(Task &task, const QString &option, const QString &word, Payment &record);
/** Digits are the position on the invoice, from 1. */
[[nodiscard]] bool row(Task &task, const QString &option, const QString &word, int invoiceId, InvoiceItem &record);

} // namespace References

#endif

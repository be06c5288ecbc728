#ifndef RECORDPRINTER_H
#define RECORDPRINTER_H

class BankAccount;
class Customer;
class Invoice;
class InvoiceItem;
class Payment;
class Product;
class ResponseWriter;

/** The records of responses: one record each, with the properties that programs read, in a fixed order. */
namespace RecordPrinter {

/**
 * Prices have four decimals, sums two, quantities four, percentages two; trailing zeros are cut to each one's least.
 * Dates are ISO 8601, "" for none.
 */
void printBankAccount(ResponseWriter &response, const BankAccount &account);
void printCustomer(ResponseWriter &response, const Customer &customer);
void printProduct(ResponseWriter &response, const Product &product);
void printInvoice(ResponseWriter &response, const Invoice &invoice);
void printInvoiceItem(ResponseWriter &response, const InvoiceItem &item);
void printPayment(ResponseWriter &response, const Payment &payment);

} // namespace RecordPrinter

#endif

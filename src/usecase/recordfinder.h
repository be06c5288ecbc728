#ifndef RECORDFINDER_H
#define RECORDFINDER_H

#include "failure.h"

#include <QString>

class BankAccount;
class Customer;
class DatabaseSession;
class Invoice;
class InvoiceItem;
class Payment;
class Product;
class UseCaseListener;

/**
 * Looks up the one record that a parameter names, and copies it into the caller's. A record that is not found or not
 * unique is a failure, with the record unchanged.
 *
 * Names and product numbers: one exactly equal text wins, else one text that contains the searched one (letter case
 * aside). Kept as it is: two equal texts do not find anything by themselves.
 */
class RecordFinder {
public:
    /** Neither is owned; failures go to the listener. */
    RecordFinder(DatabaseSession &session, UseCaseListener &listener) : m_session(session), m_listener(listener) {}

    /** Ids are those of the database. Removed customers and accounts are not found. */
    [[nodiscard]] bool findBankAccountById(int id, BankAccount *account);
    [[nodiscard]] bool findBankAccountByName(const QString &name, BankAccount *account);
    /** The list is asked where it is cached, else the database. */
    [[nodiscard]] bool findCustomerById(int id, Customer *customer);
    [[nodiscard]] bool findCustomerByNumber(int number, Customer *customer);
    [[nodiscard]] bool findCustomerByName(const QString &name, Customer *customer);
    [[nodiscard]] bool findProductById(int id, Product *product);
    [[nodiscard]] bool findProductByNumber(const QString &number, Product *product);
    [[nodiscard]] bool findProductByName(const QString &name, Product *product);
    /** Always of the database. Of equal numbers any one; a negative number is no invoice's. */
    [[nodiscard]] bool findInvoiceById(int id, Invoice *invoice);
    [[nodiscard]] bool findInvoiceByNumber(int number, Invoice *invoice);
    [[nodiscard]] bool findInvoiceItemById(int id, InvoiceItem *item);
    [[nodiscard]] bool findPaymentById(int id, Payment *payment);

private:
    /** The failures of a lookup by text. */
    struct TextFailures {
        Failure::Code unknown;   ///< the text as argument
        Failure::Code ambiguous; ///< several match; the text as argument
    };

    /** @param searched  the argument of the failure */
    template <class Record, class Matches>
    bool findFirst(const QList<Record *> &list, Matches matches, Record *record, Failure::Code unknown, int searched);
    /** @param field     compared for equality */
    template <class Record, class Matches>
    bool findByText(const QList<Record *> &list, const QString &text, QString Record::*field, Matches contains,
                    Record *record, const TextFailures &failures);
    /** Takes the first row of a fetch. @param fetched  the outcome of that fetch */
    template <class Record, class Read>
    bool readOne(bool fetched, Read read, Record *record, Failure::Code unknown, int searched);

    /** The first that is not removed. */
    bool readCustomer(bool fetched, Customer *customer, Failure::Code unknown, int searched);

    DatabaseSession &m_session;  ///< not owned
    UseCaseListener &m_listener; ///< not owned
};

#endif

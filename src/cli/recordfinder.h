#ifndef RECORDFINDER_H
#define RECORDFINDER_H

#include <QCoreApplication>
#include <QString>

class BankAccount;
class CommandStatus;
class Customer;
class DatabaseSession;
class Invoice;
class InvoiceItem;
class Payment;
class Product;

/**
 * Looks up the one record that a parameter names, and copies it into the caller's. A record that is not found or not
 * unique is a failure (exit code 3), with the record unchanged.
 *
 * Names and product numbers: one exactly equal text wins, else one text that contains the searched one (letter case
 * aside). Kept as it is: two equal texts do not find anything by themselves.
 */
class RecordFinder {
    Q_DECLARE_TR_FUNCTIONS(RecordFinder)
public:
    RecordFinder(DatabaseSession &session, CommandStatus &status) : m_session(session), m_status(status) {}

    [[nodiscard]] bool findBankAccountById(int id, BankAccount *account);
    [[nodiscard]] bool findBankAccountByName(const QString &name, BankAccount *account);
    [[nodiscard]] bool findCustomerById(int id, Customer *customer);
    [[nodiscard]] bool findCustomerByNumber(int number, Customer *customer);
    [[nodiscard]] bool findCustomerByName(const QString &name, Customer *customer);
    [[nodiscard]] bool findProductById(int id, Product *product);
    [[nodiscard]] bool findProductByNumber(const QString &number, Product *product);
    [[nodiscard]] bool findProductByName(const QString &name, Product *product);
    [[nodiscard]] bool findInvoiceById(int id, Invoice *invoice);
    [[nodiscard]] bool findInvoiceByNumber(int number, Invoice *invoice);
    [[nodiscard]] bool findInvoiceItemById(int id, InvoiceItem *item);
    [[nodiscard]] bool findPaymentById(int id, Payment *payment);

private:
    /** The messages of a lookup, with "%1" for the searched text; `several` is empty where the first match counts. */
    struct Messages {
        QString notFound;
        QString several;
    };

    template <class Record, class Matches>
    bool findFirst(const QList<Record *> &list, Matches matches, Record *record, const QString &notFound);
    template <class Record, class Matches>
    bool findByText(const QList<Record *> &list, const QString &text, QString Record::*field, Matches contains,
                    Record *record, const Messages &messages);
    template <class Record, class Read> bool readOne(bool fetched, Read read, Record *record, const QString &notFound);

    bool readCustomer(bool fetched, Customer *customer, const QString &notFound);

    DatabaseSession &m_session;
    CommandStatus &m_status;
};

#endif

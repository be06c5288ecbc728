#ifndef INVOICEEDITOR_H
#define INVOICEEDITOR_H

#include "customer.h"
#include "invoice.h"

struct UseCaseContext;

/**
 * Builds an invoice, a new one or a change of a stored one, with what follows from each of its values. The order of the
 * calls counts: a customer and a number make the reference number and the notice texts anew, a date the due date. For
 * use in a transaction of the caller's.
 */
class InvoiceEditor {
public:
    /** @param context  not owned */
    explicit InvoiceEditor(UseCaseContext &context) : m_context(context) {}

    /** Reads what the effects need and fills a new invoice's defaults: today, terms and interest of the settings. */
    [[nodiscard]] bool begin();
    /** Goes on with a stored invoice. @return false with the failure told */
    [[nodiscard]] bool edit(const Invoice &stored);

    Invoice &invoice() { return m_invoice; } ///< changes made here directly have no effects on other fields
    const Customer &customer() const { return m_customer; } ///< empty while not known
    bool isStored() const { return m_isStored; }            ///< edit() was called

    /**
     * Both make the reference number (the customer's own, else of the template of the settings) and the notice texts
     * anew.
     */
    void useCustomer(const Customer &customer);
    void setNumber(int number);
    /** With the due date that the payment terms give. @return false, told, when they lead beyond the calendar */
    [[nodiscard]] bool setDate(const QDate &date);
    /** The due date stays. @return as setDate() */
    [[nodiscard]] bool setPaymentTerms(const QString &terms);

    /** What a new invoice needs and was not given: the due date and the next number; it must have a customer. */
    [[nodiscard]] bool complete();
    /** Saves; a new invoice is completed first. */
    [[nodiscard]] bool save();

private:
    void updateReferenceNumber(); ///< a customer's own reference as it is, else with a check digit
    bool checkTerms() const;      ///< @return false, with the failure told, when the due date is beyond the calendar

    UseCaseContext &m_context; ///< not owned
    Invoice m_invoice;         ///< -1 as id until it is saved
    Customer m_customer;       ///< default-constructed while not known
    bool m_isStored = false;   ///< complete() is for new ones only
};

#endif

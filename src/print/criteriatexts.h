#ifndef CRITERIATEXTS_H
#define CRITERIATEXTS_H

#include <QCoreApplication>
#include <QStringList>

class InvoiceCriteria;
class PaymentCriteria;
class Registry;

/**
 * A search told in words, for the head of a list: one line for each criterion that is set. Of a range with one open end
 * that end is left out ("ajalta 1.1.2015 -").
 */
class CriteriaTexts {
    Q_DECLARE_TR_FUNCTIONS(CriteriaTexts)
public:
    // The registry names customers and accounts; those that it does not know are told by their ids.
    /** In the order of the fields, Finnish dates. */
    static QStringList forInvoices(const InvoiceCriteria &criteria, const Registry &registry);
    static QStringList forPayments(const PaymentCriteria &payments, const InvoiceCriteria &invoices,
                                   const Registry &registry);

private:
    /** For one line each; an empty text sets none, an unknown set of kinds is "invoices". */
    static QString paymentState(const InvoiceCriteria &criteria);
    static QString documentKinds(int types);
};

#endif

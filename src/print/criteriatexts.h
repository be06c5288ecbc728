#ifndef CRITERIATEXTS_H
#define CRITERIATEXTS_H

#include <QCoreApplication>
#include <QStringList>

class InvoiceCriteria;
class PaymentCriteria;

/**
 * A search told in words, for the head of a list: one line for each criterion that is set. Of a range with one open end
 * that end is left out ("ajalta 1.1.2015 -"). Criteria that name one customer, account or reference have no wording.
 */
class CriteriaTexts {
    Q_DECLARE_TR_FUNCTIONS(CriteriaTexts)
public:
    static QStringList forInvoices(const InvoiceCriteria &criteria);
    static QStringList forPayments(const PaymentCriteria &payments, const InvoiceCriteria &invoices);

private:
    static QString paymentState(const InvoiceCriteria &criteria);
};

#endif

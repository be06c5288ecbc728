#ifndef PAYMENTCRITERIA_H
#define PAYMENTCRITERIA_H

#include <QDate>

/** A search for payments. A field that holds an invalid date or a negative number sets no condition. */
class PaymentCriteria {
public:
    QDate dateFrom, dateTo;
    int invoiceId = -1;
    int idFrom = -1, idTo = -1;
    int bankAccountId = -1;

    void clear() { *this = PaymentCriteria(); }
    void copy(PaymentCriteria *target) const { *target = *this; }
};

#endif

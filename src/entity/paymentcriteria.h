#ifndef PAYMENTCRITERIA_H
#define PAYMENTCRITERIA_H

#include <QDate>

/** A search for payments. A field that holds an invalid date or a negative number sets no condition. */
class PaymentCriteria {
public:
    QDate dateFrom, dateTo;     ///< both ends included
    int invoiceId = -1;         ///< of the database
    int idFrom = -1, idTo = -1; ///< both ends included
    int bankAccountId = -1;     ///< of the database; payments without an account cannot be asked for

    /** As constructed, without any condition; the copy is a whole one. */
    void clear() { *this = PaymentCriteria(); }
    void copy(PaymentCriteria *target) const { *target = *this; }
};

#endif

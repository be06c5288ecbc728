#ifndef PAYMENT_H
#define PAYMENT_H

#include <QDate>

/** A payment received on an invoice. */
class Payment {
public:
    int id = -1;            ///< -1: not stored yet
    int invoiceId = -1;     ///< -1: on none yet
    QDate date;             ///< of a bank's file the entry date
    int bankAccountId = -1; ///< -1: no account
    int amount = 0;         ///< cents; negative for a correction

    void clear() { *this = Payment(); }
    void copy(Payment *target) const { *target = *this; }
};

#endif

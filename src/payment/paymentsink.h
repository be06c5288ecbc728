#ifndef PAYMENTSINK_H
#define PAYMENTSINK_H

#include "paymentrecord.h"

/** Takes what the reader of one format finds, in file order. */
class PaymentSink {
public:
    virtual void accept(const PaymentRecord &payment) = 0; ///< the record is complete and its amount fits

    /**
     * @param field  the name of the field that cannot be read
     * @param found  the text in its place
     */
    virtual void reject(qint64 lineNumber, const char *field, const QString &found) = 0;

protected:
    ~PaymentSink() = default; ///< no sink is deleted through this class
};

#endif

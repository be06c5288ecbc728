#ifndef PAYMENTLISTENER_H
#define PAYMENTLISTENER_H

#include <QString>

class PaymentFileReader;

/** Takes what a PaymentFileReader finds in a file, payments and damage alike in the order of the file. */
class PaymentListener {
public:
    virtual ~PaymentListener() = default;

    /** One payment was read: the reader's accessors tell its fields until this returns. */
    virtual void payment(const PaymentFileReader &reader) = 0; ///< may keep nothing of `reader` but copies

    /**
     * Something could not be read, or does not add up. Reading goes on with the next record where it can.
     * @param lineNumber  of the damaged record, counted from 1
     * @param message     names the field and the text found in its place
     */
    virtual void error(qint64 lineNumber, const QString &message) = 0;
};

#endif

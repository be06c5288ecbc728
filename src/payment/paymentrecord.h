#ifndef PAYMENTRECORD_H
#define PAYMENTRECORD_H

#include <QDate>
#include <QString>

/** One payment as a bank's file tells it. */
struct PaymentRecord {
    QString timestamp;       ///< when the bank made the entry or the file, as written there; empty in CSV files
    QString iban;            ///< the seller's account without blanks, empty when the file does not tell it
    QString bban;            ///< the same account in the 14-digit machine form, empty when it has none
    QDate entryDate;         ///< the bank's booking date
    QDate paymentDate;       ///< when the payer paid; the entry date where the file does not tell
    int amount = 0;          ///< cents; negative for a correction and for a payment out
    QString referenceNumber; ///< national form without leading zeros; empty when there is none
    QString payerName;       ///< the other party; on a payment out its payee
    QString archiveId;       ///< the bank's archiving code of the entry, empty when there is none
    qint64 lineNumber = 0;   ///< where the payment begins in the file, from 1
    bool correction = false; ///< the file says that it takes back an earlier payment
};

#endif

#ifndef INVOICELEDGER_H
#define INVOICELEDGER_H

#include "invoice.h"
#include "payment.h"

#include <QString>
#include <QVector>

struct ImportedPayment;

/**
 * The payments of one invoice while a bank's file is imported: those stored before, and those that the file adds.
 *
 * Which payment came from which bank entry is kept in the invoice's property `bankArchiveIds`: words of the form
 * `paymentId:format:archiveId`.
 */
class InvoiceLedger {
public:
    /** @param payments  all that are stored for the invoice */
    InvoiceLedger(const Invoice &invoice, const QVector<Payment> &payments);

    int invoiceId() const { return m_invoice.id; }         ///< of the database
    int invoiceNumber() const { return m_invoice.number; } ///< what people see
    long long balance() const { return m_balance; }        ///< with what the file has added, cents

    /**
     * Whether the bank's entry is among the payments: one of the same date, amount and account (an account that is not
     * known counts as any). Between two files of one format the archive ids decide, where both have one; the formats do
     * not tell the same ids, so that between them an equal payment is the same one. A stored payment stands for one
     * entry of the file: it is taken by the first that equals it.
     */
    bool takeKnown(const ImportedPayment &payment);
    /** Whether there is a payment of that amount that was not taken back. */
    bool holdsAmount(int amount) const;
    /** Whether the invoice's balance can take the payment: it is 32 bits of cents. */
    bool canTake(int amount) const;
    void add(const ImportedPayment &payment); ///< lowers the balance; the date is the bank's entry date

    /** The payments that the file added, not stored yet. */
    QVector<Payment *> newPayments();
    /** The property text once all payments have their ids; unchanged when the file told nothing new. */
    QString archiveIds() const;

    static QString archiveIdsKey(); ///< of the invoice's property

    /**
     * The banks' files tell one archive id at lengths of 16 to 20, with and without the century and separators: its
     * last sixteen letters and digits are common to all.
     */
    static QString comparableId(const QString &archiveId);

private:
    struct Entry {
        Payment payment;      ///< without an id while it is new
        QString archiveId;    ///< comparable form behind its format, empty when not known
        bool isNew = false;   ///< added by the file, to be stored
        bool isTaken = false; ///< stands for an entry of this file
    };

    void readArchiveIds();                                   ///< words whose payment is gone are dropped
    static QString storedId(const ImportedPayment &payment); ///< `format:archiveId`, empty without an archive id

    Invoice m_invoice;        ///< as it was before the file
    QVector<Entry> m_entries; ///< stored ones first
    long long m_balance;      ///< cents; starts from the stored balance
};

#endif

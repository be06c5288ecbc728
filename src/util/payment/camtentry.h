#ifndef CAMTENTRY_H
#define CAMTENTRY_H

#include "paymentrecord.h"

#include <QStringList>

#include <optional>

class DecimalFormat;
class PaymentSink;

/** An amount as a camt file writes it, unsigned. */
struct CamtAmount {
    QString text;     ///< empty: not there
    QString currency; ///< ISO 4217; empty where it is not told
};

/** What an `Ntry` and the report around it tell before the first transaction. Texts are as in the file. */
struct CamtEntryHead {
    qint64 lineNumber = 0;
    QString timestamp, iban, bban; ///< of the report
    CamtAmount amount;
    QString direction; ///< CRDT or DBIT
    bool reversal = false;
    QString status;                 ///< empty: booked
    QString bookingDate, valueDate; ///< empty: not told
    QString archiveId;
    qint64 charges = 0; ///< cents
};

/** What a `TxDtls` tells. */
struct CamtTransaction {
    qint64 lineNumber = 0;
    QString archiveId; ///< empty: the entry's
    QString direction; ///< empty: the entry's
    CamtAmount amount, transactionAmount, counterValue;
    qint64 charges = 0; ///< cents
    QString debtor, ultimateDebtor, creditor, ultimateCreditor;
    QString reference;
    QStringList messages;
    QString acceptanceDate, transactionDate; ///< empty: not told
};

/**
 * Puts payments together from what an entry of a camt report and its transactions tell, and reports each as soon as it
 * is complete.
 *
 * Each transaction is one payment, an entry without transactions is one. An entry whose transactions have no amounts
 * cannot be split and is reported once, without a reference. Only booked entries count. The direction tells the sign; a
 * reversal of the other party's payment keeps the reference, payments out have none. Dates count as written, whatever
 * their time zone.
 */
class CamtEntry {
public:
    /** Neither sink nor format is owned. @param amountFormat  of cents */
    CamtEntry(PaymentSink &sink, const DecimalFormat &amountFormat, const CamtEntryHead &head);

    void add(const CamtTransaction &transaction);
    /** All transactions were added. */
    void finish();

private:
    bool checkHead();
    bool isBooked() const;
    CamtAmount amountOf(const CamtTransaction &transaction) const;
    void addWithoutAmount(const CamtTransaction &transaction);
    void rejectHeld();
    void rejectWithoutAmount(const CamtTransaction &transaction);
    void report(const CamtTransaction &transaction, qint64 cents, int position);
    void reportWhole();
    bool setPaymentDate(const CamtTransaction &transaction, PaymentRecord &payment) const;
    QString referenceOf(const CamtTransaction &transaction, bool credit) const;
    QString archiveIdOf(const CamtTransaction &transaction, int position) const;
    void compareTotal() const;

    PaymentSink &m_sink;
    const DecimalFormat &m_amountFormat;
    const CamtEntryHead m_head;
    bool m_usable = false; ///< false: not booked, or damaged
    QDate m_entryDate;
    std::optional<qint64> m_cents; ///< unsigned; empty when the amount cannot be read
    int m_count = 0;               ///< transactions added
    qint64 m_total = 0;            ///< of the transactions, cents, signed
    qint64 m_charges = 0;          ///< cents
    bool m_totalKnown = true;
    bool m_indivisible = false;
    std::optional<CamtTransaction> m_held; ///< the first when without an amount: it has the entry's if it stays alone
};

#endif

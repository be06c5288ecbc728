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
    QString timestamp, iban, bban;  ///< of the report
    CamtAmount amount;              ///< `Amt`, unsigned
    QString direction;              ///< CRDT or DBIT
    bool reversal = false;          ///< RvslInd: the entry takes back another
    QString status;                 ///< empty: booked
    QString bookingDate, valueDate; ///< empty: not told
    QString archiveId;              ///< AcctSvcrRef; empty: not told, or NOTPROVIDED
    qint64 charges = 0;             ///< cents
};

/** What a `TxDtls` tells. */
struct CamtTransaction {
    qint64 lineNumber = 0; ///< where the `TxDtls` begins, from 1
    QString archiveId;     ///< empty: the entry's
    QString direction;     ///< empty: the entry's
    /** `Amt`, `AmtDtls/TxAmt` and `AmtDtls/CntrValAmt`; the first in euros counts. */
    CamtAmount amount, transactionAmount, counterValue;
    qint64 charges = 0;                                         ///< cents
    QString debtor, ultimateDebtor, creditor, ultimateCreditor; ///< names, empty when not told
    QString reference;                       ///< RmtInf/Strd/CdtrRefInf/Ref, the first that holds a reference
    QStringList messages;                    ///< RmtInf/Ustrd, two at most: only whether there is one matters
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

    /** Reports the transaction before it too when that waited. Nothing is reported for an entry that is not usable. */
    void add(const CamtTransaction &transaction);
    /** All transactions were added: reports what waits, or compares the sum with the entry's amount. */
    void finish();

private:
    /**
     * Rejects a status, direction, currency or date that does not read. @return false when the entry is then unusable
     */
    bool checkHead();
    bool isBooked() const; ///< pending, informative and future entries come again when they are booked
    /** The first in euros or without a currency; empty text when there is none. */
    CamtAmount amountOf(const CamtTransaction &transaction) const;
    /** Holds the first; a second like it makes the entry indivisible. */
    void addWithoutAmount(const CamtTransaction &transaction);
    void rejectHeld(); ///< the one held is not the only one, and has no amount
    void rejectWithoutAmount(const CamtTransaction &transaction); ///< as foreign currency where that is why
    /**
     * @param cents     unsigned
     * @param position  of the transaction in its entry, from 1
     */
    void report(const CamtTransaction &transaction, qint64 cents, int position);
    void reportWhole(); ///< once, without a reference
    /** @return false, with the date rejected, when it does not read. */
    bool setPaymentDate(const CamtTransaction &transaction, PaymentRecord &payment) const;
    /** National form; `credit` lets a message that is nothing but a reference serve. */
    QString referenceOf(const CamtTransaction &transaction, bool credit) const;
    /** `id/position` for later transactions that have the entry's alone. */
    QString archiveIdOf(const CamtTransaction &transaction, int position) const;
    void compareTotal() const; ///< a difference of exactly the charges is none

    PaymentSink &m_sink;                   ///< not owned
    const DecimalFormat &m_amountFormat;   ///< not owned
    const CamtEntryHead m_head;            ///< a copy: outlives the reader's entry
    bool m_usable = false;                 ///< false: not booked, or damaged
    QDate m_entryDate;                     ///< BookgDt, else ValDt, else the report's time
    std::optional<qint64> m_cents;         ///< unsigned; empty when the amount cannot be read
    int m_count = 0;                       ///< transactions added
    __int128 m_total = 0;                  ///< of the transactions, cents, signed
    __int128 m_charges = 0;                ///< cents
    bool m_totalKnown = true;              ///< false after a transaction whose amount did not read
    bool m_indivisible = false;            ///< transactions without amounts: the entry is reported as a whole
    std::optional<CamtTransaction> m_held; ///< the first when without an amount: it has the entry's if it stays alone
};

#endif

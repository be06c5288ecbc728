#ifndef EASITEMISATION_H
#define EASITEMISATION_H

#include "paymentrecord.h"

#include <QVector>

#include <optional>

class PaymentSink;

/** A transaction record of an account statement with its additional information. */
struct EASEntry {
    PaymentRecord payment; ///< all but the amount
    qint64 cents = 0;      ///< signed
    QString number;        ///< of the transaction; an entry and its itemisation share it
    int level = 0;         ///< 0: an entry; 1 to 9: part of the entry above
    bool received = false; ///< a deposit or its correction: the other party is a payer, the reference is ours
    bool booked = true;    ///< false: the bank rejected it
    bool itemised = false; ///< an itemisation is said to follow
    qint64 itemCount = 0;  ///< of the itemisation, 0 when not told
};

/**
 * Reports the entries of an account statement, of itemised ones the parts or the whole, never both: the parts where
 * they carry references, the whole entry otherwise.
 */
class EASItemisation {
public:
    /** @param sink  not owned */
    explicit EASItemisation(PaymentSink &sink) : m_sink(sink) {}

    /** In the order of the file. Nothing is sure to be reported before end(). */
    void add(const EASEntry &entry);
    /**
     * Reports damage in its place among the payments.
     * @param lostPart  whether the record may have been a part of the entry above
     * @param field     must stay valid
     */
    void addDamage(qint64 lineNumber, const char *field, const QString &found, bool lostPart);
    /** The entry above is complete. */
    void end();

private:
    /** A part, or damage, that waits until it is known whether parts or the whole are reported. */
    struct Held {
        EASEntry part;
        const char *field = nullptr; ///< of the damage; null: a part
        QString found;
    };

    bool belongsToOther(const EASEntry &entry) const; ///< another transaction number: the itemisation above is over
    void finishPart(bool counts);                     ///< false: its own parts take its place
    void addPart(const EASEntry &part);               ///< holds it while no part had a reference
    void decide();                      ///< too much to hold: the whole is reported, further parts are passed over
    void place(const Held &damage);     ///< holds damage until the payments before it are out
    void releaseHeld(bool parts);       ///< @param parts  whether held parts are reported or dropped; damage always is
    void reportWhole();                 ///< without a reference when it is of many payments
    void report(const EASEntry &entry); ///< passes over what is not booked, rejects what does not fit a payment
    void reject(const EASEntry &entry); ///< as its amount

    PaymentSink &m_sink;             ///< not owned
    std::optional<EASEntry> m_entry; ///< the entry of level 0, until its parts are known
    std::optional<EASEntry> m_part;  ///< the last one: what follows tells whether it has parts itself
    QVector<Held> m_partDamage;      ///< found below that part
    QVector<Held> m_held;            ///< until a part with a reference comes
    qint64 m_partsTotal = 0;         ///< cents
    int m_levelReported = 0;         ///< parts below this level are within a part that was reported; 0: none
    bool m_partsReported = false;    ///< the whole will not be
    bool m_damaged = false;          ///< a part may be lost: totals are not compared
};

#endif

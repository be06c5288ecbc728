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

    bool belongsToOther(const EASEntry &entry) const;
    void finishPart(bool counts);
    void addPart(const EASEntry &part);
    void decide();
    void place(const Held &damage);
    void releaseHeld(bool parts);
    void reportWhole();
    void report(const EASEntry &entry);
    void reject(const EASEntry &entry);

    PaymentSink &m_sink;
    std::optional<EASEntry> m_entry;
    std::optional<EASEntry> m_part; ///< the last one: what follows tells whether it has parts itself
    QVector<Held> m_partDamage;     ///< found below that part
    QVector<Held> m_held;           ///< until a part with a reference comes
    qint64 m_partsTotal = 0;        ///< cents
    int m_levelReported = 0;        ///< parts below this level are within a part that was reported; 0: none
    bool m_partsReported = false;
    bool m_damaged = false;
};

#endif

#ifndef EASREADER_H
#define EASREADER_H

#include "easitemisation.h"

#include <optional>

class BankFileLines;
class FixedRecord;
class PaymentSink;
class QIODevice;
struct FixedField;

/**
 * Reads electronic account statements (Finance Finland, "Electronic account statement, service description" 3.3):
 * records T00 (statement), T10 (transaction), T11 (its additional information) and T40 (balance); the others hold
 * nothing to report.
 *
 * Deposits and their corrections keep their reference. Withdrawals are reported without one: a bill of the account's
 * owner has the reference of somebody else. The entries must lead from one balance to the next where all were read.
 */
class EASReader {
public:
    /** @param sink  not owned */
    explicit EASReader(PaymentSink &sink);

    /** @param device  open for reading */
    void read(QIODevice &device);

private:
    struct RecordType; ///< what a record code means and where its record may stand
    /** Of a record below a transaction, kept until its place in the order is known. */
    struct Damage {
        qint64 line;             ///< from 1
        const FixedField *field; ///< of EASFields
        QString found;
    };
    /** What T00 tells for the transactions below; empty texts when it could not be read. */
    struct Statement {
        QString iban, bban, timestamp, currency; ///< `timestamp` is YYMMDDHHMM as written
    };

    static const RecordType *recordType(const QString &code); ///< null for an unknown code
    /** Rejects codes and lengths that are wrong, else calls the reader of the type. */
    void readRecord(const BankFileLines &lines);
    /** One record each. A field that does not read rejects the record, of a statement the field only. */
    void readStatement(FixedRecord &record);
    void readTransaction(FixedRecord &record);
    void readAdditionalInformation(FixedRecord &record);
    void readItemCount(FixedRecord &record);
    void readPayerName(FixedRecord &record);
    void readCreditTransfer(FixedRecord &record);
    void readBalance(FixedRecord &record);
    /** Fields that nothing is made of: damage in them is told, and the transaction counts. */
    void checkRest(FixedRecord record);
    void pass(FixedRecord &) {} ///< nothing to read

    void startStatement(); ///< what follows is not of the account above, whether T00 reads or not
    /** One with code 9 changes no balance; a foreign currency is rejected. */
    bool addTransaction(EASEntry entry, QChar transactionCode); ///< @return whether it is m_transaction now
    void setPayerName(const QString &name); ///< only of deposits, and only a name that is not blank
    void finishTransaction();               ///< hands it to the itemisation, its damage behind it
    void finishEntry();                     ///< also the itemisation ends
    /** Without a type the record may have been a transaction: balances are not compared until the next one. */
    void rejectDamaged(const RecordType *type, const FixedField &field, const QString &found);

    PaymentSink &m_sink;                   ///< not owned
    EASItemisation m_itemisation;          ///< reports to the same sink
    std::optional<Statement> m_statement;  ///< none before the first T00
    std::optional<EASEntry> m_transaction; ///< the last one: additional information may follow
    QVector<Damage> m_belowTransaction;    ///< in its additional information
    std::optional<__int128> m_balance;     ///< cents; not known after damage until the next balance record
    qint64 m_line = 0;                     ///< of the record that is read, from 1
};

#endif

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
    struct RecordType;
    struct Damage {
        qint64 line;
        const FixedField *field;
        QString found;
    };
    struct Statement {
        QString iban, bban, timestamp, currency;
    };

    static const RecordType *recordType(const QString &code);
    void readRecord(const BankFileLines &lines);
    void readStatement(FixedRecord &record);
    void readTransaction(FixedRecord &record);
    void readAdditionalInformation(FixedRecord &record);
    void readItemCount(FixedRecord &record);
    void readPayerName(FixedRecord &record);
    void readCreditTransfer(FixedRecord &record);
    void readBalance(FixedRecord &record);
    void pass(FixedRecord &) {}

    void startStatement();
    void addTransaction(EASEntry entry, QChar transactionCode);
    void setPayerName(const QString &name);
    void finishTransaction();
    void finishEntry();
    void rejectDamaged(const RecordType *type, const FixedField &field, const QString &found);

    PaymentSink &m_sink;
    EASItemisation m_itemisation;
    std::optional<Statement> m_statement;
    std::optional<EASEntry> m_transaction; ///< the last one: additional information may follow
    QVector<Damage> m_belowTransaction;    ///< in its additional information
    std::optional<__int128> m_balance;     ///< cents; not known after damage until the next balance record
    qint64 m_line = 0;
};

#endif

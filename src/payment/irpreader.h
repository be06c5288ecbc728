#ifndef IRPREADER_H
#define IRPREADER_H

#include <QCoreApplication>

class BankFileLines;
class FixedRecord;
class PaymentSink;
class QIODevice;
struct FixedField;

/**
 * Reads incoming reference payments (Finance Finland, "Incoming reference payments, service description" 2.1): batches
 * of a record 0, payments 3, 5 and 7 of 90 characters each, and a record 9 with their totals.
 *
 * A correction is a negative payment with the reference of what it takes back. A direct debit that failed is no
 * payment. Totals are compared where every record of the batch was read; payments stay, whether they match or not.
 */
class IRPReader {
    Q_DECLARE_TR_FUNCTIONS(IRPReader)
public:
    /** @param sink  not owned */
    explicit IRPReader(PaymentSink &sink) : m_sink(sink) {}

    /** @param device  open for reading */
    void read(QIODevice &device);

private:
    struct Tally {
        qint64 count = 0;
        qint64 cents = 0; ///< unsigned sum
    };
    /** From a record 0 to its record 9. */
    struct Batch {
        bool open = false;    ///< also when the header was lost
        bool damaged = false; ///< a record could not be read: totals tell nothing
        Tally payments, corrections, failedDebits;
        QString timestamp; ///< YYMMDDHHMM as written; empty without a header
    };

    /** By the first character; what is unknown or too long damages the batch. */
    void readRecord(const BankFileLines &lines);
    /** Fields that do not read are rejected by name, the first of each record only. */
    void readHeader(FixedRecord &record);
    void readPayment(FixedRecord &record);
    void readSummary(FixedRecord &record);
    /** Fields that nothing is made of: damage in them is told, and the payment counts. */
    void checkRest(FixedRecord record);
    void endBatch(const QString &found); ///< rejects a batch without record 9. @param found  what stands in its place
    bool rejectFailed(const FixedRecord &record); ///< @return whether a field failed; the batch is then damaged
    void reject(const FixedField &field, const QString &found); ///< at m_line

    PaymentSink &m_sink; ///< not owned
    Batch m_batch;
    qint64 m_line = 0; ///< of the record that is read, from 1
};

#endif

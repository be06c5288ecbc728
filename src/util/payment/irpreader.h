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
        qint64 cents = 0;
    };
    struct Batch {
        bool open = false;
        bool damaged = false; ///< a record could not be read: totals tell nothing
        Tally payments, corrections, failedDebits;
        QString timestamp;
    };

    void readRecord(const BankFileLines &lines);
    void readHeader(FixedRecord &record);
    void readPayment(FixedRecord &record);
    void readSummary(FixedRecord &record);
    void endBatch(const QString &found);
    bool rejectFailed(const FixedRecord &record);
    void reject(const FixedField &field, const QString &found);

    PaymentSink &m_sink;
    Batch m_batch;
    qint64 m_line = 0;
};

#endif

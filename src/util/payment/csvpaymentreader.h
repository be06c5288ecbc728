#ifndef CSVPAYMENTREADER_H
#define CSVPAYMENTREADER_H

#include "accountnumber.h"
#include "csv.h"
#include "csvcolumns.h"

#include <QCoreApplication>
#include <QTextStream>
#include <QVector>

class BankFileLines;
class DecimalFormat;
class PaymentSink;
class QIODevice;
class QTextCodec;
struct PaymentRecord;

/**
 * Reads the payments of a bank's CSV file, whichever columns it has: a line of titles, then one row for each payment,
 * perhaps a line with the account's number in front. Further lines of titles and account numbers begin another file
 * that was joined to the first.
 *
 * These files do not tell a payment out from a correction: a negative row is reported with the reference that it has.
 */
class CSVPaymentReader {
    Q_DECLARE_TR_FUNCTIONS(CSVPaymentReader)
public:
    /**
     * @param sink          not owned
     * @param amountFormat  of cents; not owned
     */
    CSVPaymentReader(PaymentSink &sink, const DecimalFormat &amountFormat);

    /**
     * @param device     open for reading
     * @param delimiter  one character; where it gives no titles, the other usual ones are tried
     * @param codec      of the file; see BankFileLines
     */
    void read(QIODevice &device, const QString &delimiter, QTextCodec *codec);

private:
    struct Line {
        QString text;
        qint64 number;
        bool terminated; ///< false: the file ends within it, perhaps too early
    };
    struct Damage {
        const char *field = nullptr; ///< null: none
        QString found;
    };

    void addLine(const Line &line);
    void releasePending();
    void readLine(Line line);
    void readRecord(const Line &record);
    QStringList split(const QString &text, const QString &delimiter);
    bool readAccountLine(const QStringList &fields);
    bool readTitles(const Line &line);
    void rejectTitles(const CSVColumns &columns, qint64 line);
    bool isRow(const Line &line);
    Damage readRow(const Line &row, const QStringList &fields, PaymentRecord &payment) const;
    Damage checkWidth(const Line &row, const QStringList &fields) const;
    void setAccount(const QStringList &fields, PaymentRecord &payment) const;
    QString payerName(const QStringList &fields) const;
    QString referenceNumber(const QStringList &fields) const;

    PaymentSink &m_sink;
    const DecimalFormat &m_amountFormat;
    QString m_text;       ///< what is being split
    QTextStream m_stream; ///< over it
    CSV m_csv;
    QString m_delimiter;
    AccountNumber m_account; ///< the own one, from the line in front of the titles
    CSVColumns m_columns;
    bool m_readable = false; ///< all columns that are needed are there
    QVector<Line> m_pending; ///< the beginning of a record with a quoted line break
    CSVColumns m_candidate;  ///< the nearest to a line of titles while none was found
    qint64 m_candidateLine = 0;
};

#endif

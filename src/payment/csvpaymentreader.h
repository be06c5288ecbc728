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
    /** Of the file, or several joined with blanks where a quoted field held line breaks. */
    struct Line {
        QString text;    ///< without line end
        qint64 number;   ///< of the first, from 1
        bool terminated; ///< false: the file ends within it, perhaps too early
    };
    /** Why a row does not read, see PaymentSink::reject(). */
    struct Damage {
        const char *field = nullptr; ///< null: none
        QString found;
    };

    void addLine(const Line &line); ///< holds back lines while a quoted field may be open
    void releasePending();          ///< one by one: the quotation mark that holds them together is one too many
    void readLine(Line line);       ///< a lone quotation mark is dropped
    /** Row, account line or titles; with unknown columns everything but those is passed over. */
    void readRecord(const Line &record);
    QStringList split(const QString &text, const QString &delimiter); ///< changes the delimiter of m_csv
    /** @return false for another line; the columns are forgotten otherwise. */
    bool readAccountLine(const QStringList &fields);
    /** Tries all usual delimiters. @return whether the line is one of titles, usable or not. */
    bool readTitles(const Line &line);
    void rejectTitles(const CSVColumns &columns, qint64 line); ///< names the first column that is missing
    bool isRow(const Line &line);                              ///< reads on trial
    /** @param payment  filled as far as the row read */
    Damage readRow(const Line &row, const QStringList &fields, PaymentRecord &payment) const;
    /** Too many columns shift text, too few are of a file that was cut off. */
    Damage checkWidth(const Line &row, const QStringList &fields) const;
    /** The account line's, else the own one of the row's columns. */
    void setAccount(const QStringList &fields, PaymentRecord &payment) const;
    /** The first of its columns that holds no account number; empty when none does. */
    QString payerName(const QStringList &fields) const;
    QString referenceNumber(const QStringList &fields) const; ///< national form; `ref=` in front is dropped

    PaymentSink &m_sink;                 ///< not owned
    const DecimalFormat &m_amountFormat; ///< not owned
    QString m_text;                      ///< what is being split
    QTextStream m_stream;                ///< over it
    CSV m_csv;
    QString m_delimiter;        ///< as found out from the titles, at first as given
    AccountNumber m_account;    ///< the own one, from the line in front of the titles
    CSVColumns m_columns;       ///< all -1 before the titles
    bool m_readable = false;    ///< all columns that are needed are there
    QVector<Line> m_pending;    ///< the beginning of a record with a quoted line break
    CSVColumns m_candidate;     ///< the nearest to a line of titles while none was found
    qint64 m_candidateLine = 0; ///< from 1; 1 when nothing looked like titles
};

#endif

#ifndef RESPONSEWRITER_H
#define RESPONSEWRITER_H

#include "decimalformat.h"

#include <QDate>
#include <QString>

/**
 * Writes the responses of commands, a JSON-like text in the locale's character set, to a file descriptor. A response
 * is gathered and written in large pieces, and is written whole when endResponse() returns.
 */
class ResponseWriter {
public:
    /** @param descriptor  not owned; may be set not to wait */
    explicit ResponseWriter(int descriptor);

    /** Begins a JSON object. @param status  "OK" or "ERROR" */
    void startResponse(const QString &status);
    /** Members of the response itself, to be written before its first record. */
    void printMessage(const QString &message);
    void printNumRemoved(int count);
    /** Records lie in one array and do not nest; properties belong to the record that was started last. */
    void startRecord(const QString &recordType);
    void endRecord();
    /** Writes the rest, and an empty line behind it. Nobody is told when the reader is gone. */
    void endResponse();
    /** Ends a response that cannot be completed: it is taken back unless a part of it was written already. */
    void abandonResponse();

    /**
     * @param name      ASCII, not escaped; a literal
     * @param rawValue  JSON as it is to stand
     */
    void printRawProperty(const char *name, const QString &rawValue);
    void printProperty(const char *name, const QString &value);
    void printProperty(const char *name, int value);
    void printProperty(const char *name, bool value);
    void printProperty(const char *name, const QDate &value); ///< yyyy-MM-dd, or "" for an invalid date

    // Bare numbers with a decimal point: unit price (four decimals), sum of money (two), quantity (four), percentage.
    void printAmount(const char *name, long long value);
    void printTotal(const char *name, long long value);
    void printQuantity(const char *name, long long value);
    void printPercentage(const char *name, long long value);

    /** Quoted; only the double quote, the backslash, LF and CR are escaped. */
    static QString formatJsonString(const QString &text);

private:
    void startProperty(const char *name);       ///< with its comma where one is needed
    void appendJsonString(const QString &text); ///< see formatJsonString()
    void write();                               ///< all that is gathered, whole; waits for a slow reader

    int m_descriptor;            ///< not owned
    QString m_buffer;            ///< what is not written yet
    bool m_noRecordsYet = true;  ///< of the current response
    bool m_firstProperty = true; ///< of the current record
    bool m_wasWritten = false;   ///< a part of the current response
    DecimalFormat m_amountFormat, m_totalFormat, m_quantityFormat, m_percentageFormat; ///< decimal point "."
};

#endif

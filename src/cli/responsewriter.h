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
    explicit ResponseWriter(int descriptor);

    void startResponse(const QString &status);
    void printMessage(const QString &message);
    void printNumRemoved(int count);
    void startRecord(const QString &recordType);
    void endRecord();
    void endResponse();
    /** Ends a response that cannot be completed: it is taken back unless a part of it was written already. */
    void abandonResponse();

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
    void startProperty(const char *name);
    void appendJsonString(const QString &text);
    void write();

    int m_descriptor;
    QString m_buffer;
    bool m_noRecordsYet = true;
    bool m_firstProperty = true;
    bool m_wasWritten = false; ///< a part of the current response
    DecimalFormat m_amountFormat, m_totalFormat, m_quantityFormat, m_percentageFormat;
};

#endif

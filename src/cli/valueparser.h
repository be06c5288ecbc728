#ifndef VALUEPARSER_H
#define VALUEPARSER_H

#include "decimalformat.h"
#include "printformat.h"

#include <QCoreApplication>
#include <QDate>
#include <QString>
#include <optional>

class CommandStatus;

/**
 * Turns parameter values into typed ones. Each parser stores the result and returns true, or sets the status to a
 * message that names key and value (exit code 3), leaves the result alone, and returns false.
 */
class ValueParser {
    Q_DECLARE_TR_FUNCTIONS(ValueParser)
public:
    /** @param status  not owned */
    explicit ValueParser(CommandStatus &status);

    /** ASCII digits with an optional sign, 32 bits. */
    [[nodiscard]] bool parseIntValue(const QString &key, const QString &value, int &result);
    /** @param lastSaved  what "@" stands for */
    [[nodiscard]] bool parseIdValue(const QString &key, const QString &value, int lastSaved, int &result);
    /** "N1-N2", in any order: which is larger is not looked at. N1 cannot be negative. */
    [[nodiscard]] bool parseIntRangeValue(const QString &key, const QString &value, int &from, int &to);
    /** ISO 8601, yyyy-MM-dd, of a day that exists. */
    [[nodiscard]] bool parseDateValue(const QString &key, const QString &value, QDate &result);
    /** Two of them with "-" between, in any order. */
    [[nodiscard]] bool parseDateRangeValue(const QString &key, const QString &value, QDate &from, QDate &to);

    /** A number scaled by 10^fractionDigits; further decimals are cut. The int form refuses what is beyond 32 bits. */
    [[nodiscard]] bool parseDecimalNumberValue(const QString &key, const QString &value, int fractionDigits,
                                               long long &result);
    [[nodiscard]] bool parseDecimalNumberValue(const QString &key, const QString &value, int fractionDigits,
                                               int &result);

    /** A national reference number; "#" at its end is replaced by the check digit, an empty value is accepted. */
    [[nodiscard]] bool parseReferenceNumber(const QString &key, const QString &value, QString &result);

    /** On failure the format is PDF. */
    [[nodiscard]] bool parsePrintFormat(const QString &key, const QString &value, std::optional<PrintFormat> &format,
                                        bool allowFinvoice);
    /** One character of any kind. */
    [[nodiscard]] bool parseCsvDelimiter(const QString &key, const QString &value, QString &delimiter);

    /** The failure "Virheellinen luku". */
    bool failNumber(const QString &key, const QString &value);

private:
    /**
     * @param message  with "%1" for the key and "%2" for the value
     * @return false
     */
    bool fail(const QString &message, const QString &key, const QString &value);

    CommandStatus &m_status; ///< not owned
    DecimalFormat m_format;  ///< its scale is that of the last number
};

#endif

#ifndef CSVCOLUMNS_H
#define CSVCOLUMNS_H

#include <QStringList>

#include <array>

/**
 * Where the columns of a bank's CSV file are. The banks publish no layouts and move, add and rename columns, so that
 * they are known by their titles alone, whichever bank they come from.
 */
class CSVColumns {
public:
    enum Column {
        entryDate,    ///< the booking date, or the value date where a file has no other
        paymentDate,  ///< when the payer paid
        valueDate,    ///< not used but in place of entryDate
        amount,       ///< signed
        reference,    ///< one of the three that a file cannot do without
        name,         ///< of the other party
        title,        ///< a text, usually the other party's name too
        payer,        ///< account or name of the payer
        payeeAccount, ///< on a payment received the own account
        account,      ///< the own one in the first column
        currency,     ///< EUR or the euro sign when given
        archiveId,    ///< see PaymentRecord
        /** No column. */
        columnCount
    };

    CSVColumns() { m_indexes.fill(-1); } ///< no column is there
    /**
     * Finnish or English titles, letter case aside, perhaps with further words. The first that fits takes the column.
     */
    explicit CSVColumns(const QStringList &titles);

    /** As the constructor compares. */
    static bool isTitle(const QString &text, Column column);

    bool has(Column column) const { return m_indexes[column] >= 0; }
    int index(Column column) const { return m_indexes[column]; }   ///< -1 when the file has no such column
    int width() const { return m_width; }                          ///< number of titles
    QString value(const QStringList &fields, Column column) const; ///< trimmed; empty where there is none

    /** A line of titles has both a date and an amount; no other line does. */
    bool isHeader() const { return has(entryDate) && has(amount); }
    /** @return the title of a column that cannot be done without, empty when all are there */
    QString missingTitle() const;

private:
    std::array<int, columnCount> m_indexes; ///< -1: not there
    int m_width = 0;
};

#endif

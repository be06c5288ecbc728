#ifndef CSVEXPORT_H
#define CSVEXPORT_H

#include "csv.h"
#include "decimalformat.h"

#include <QDate>
#include <QTextStream>

#include <functional>

class OutputFile;

/**
 * A CSV file being written (UTF-8 without a byte order mark), and the form of values in it: numbers without grouping
 * and with the system locale's decimal point, dates in its short form.
 */
class CsvExport {
public:
    /**
     * Writes a file.
     * @param delimiter  one character
     * @param error      set to the file's error text on failure; an earlier file of that name is then as it was
     * @param write      writes the lines
     * @return whether the file was written whole
     */
    [[nodiscard]] static bool save(const QString &fileName, const QString &delimiter, QString &error,
                                   const std::function<void(CsvExport &)> &write);

    /** Quoted where CSV::writeField() does; the line ends in CR LF (RFC 4180). */
    void field(const QString &value) { m_csv.writeField(value); }
    void endLine() { m_csv.writeLine(); }

    QString price(long long amount) const;    ///< four decimals
    QString sum(long long cents) const;       ///< two decimals
    QString quantity(long long amount) const; ///< four decimals
    QString percentage(int hundredths) const; ///< two decimals at most
    static QString date(const QDate &date);   ///< empty for an invalid date

private:
    CsvExport(OutputFile &file, const QString &delimiter); ///< neither is copied: both outlive this

    QTextStream m_stream;                                                           ///< on the file's device, UTF-8
    CSV m_csv;                                                                      ///< on m_stream
    DecimalFormat m_priceFormat, m_sumFormat, m_quantityFormat, m_percentageFormat; ///< of the system's locale
};

/** A column of an export: its translatable title and how a line's text is made of what the line knows. */
template <class Line> struct CsvColumn {
    const char *title;                  ///< Finnish, in the translation context of the model
    QString (*value)(const Line &line); ///< a text in its final form, not yet quoted
};

/** Writes the titles of a table of columns, translated in the context of Model, and a line of them. */
template <class Model, class Table> void writeTitles(CsvExport &out, const Table &columns)
{
    for (const auto &column : columns)
        out.field(Model::tr(column.title));
}
template <class Table, class Line> void writeValues(CsvExport &out, const Table &columns, const Line &line)
{
    for (const auto &column : columns)
        out.field(column.value(line));
}

#endif

#ifndef TABLEWRITER_H
#define TABLEWRITER_H

#include "field.h"

#include <QStringList>
#include <QVector>

/** An aligned table for a terminal: a bold header, the rows, and the sums below. */
class TableWriter {
public:
    /**
     * @param columns  of the records that are added
     * @param width    of the terminal; the widest columns of text are cut to fit
     */
    TableWriter(const QVector<const Field *> &columns, int width, bool hasColor);

    void add(const void *record); ///< its texts are made at once: the record need not stay
    /** @return the lines, each with an end; nothing when no record was added */
    QString text() const;

private:
    /** Columns: the widest one of text gives way until the table fits, none below eight. */
    QVector<int> fittedWidths() const;
    /** With LF, without blanks at its end. */
    QString line(const QStringList &cells, const QVector<int> &widths, const QVector<const char *> &colors) const;

    QVector<const Field *> m_columns;        ///< not owned
    int m_width;                             ///< of the terminal, columns
    bool m_hasColor;                         ///< SGR codes are written
    QVector<QStringList> m_rows;             ///< cells of one line each
    QVector<QVector<const char *>> m_colors; ///< SGR codes of the cells, null for none; static texts
    QVector<long long> m_sums;               ///< in the scale of each column's type; zero where none is shown
};

#endif

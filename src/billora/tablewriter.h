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

    void add(const void *record);
    /** @return the lines, each with an end; nothing when no record was added */
    QString text() const;

private:
    QVector<int> fittedWidths() const;
    QString line(const QStringList &cells, const QVector<int> &widths, const QVector<const char *> &colors) const;

    QVector<const Field *> m_columns;
    int m_width;
    bool m_hasColor;
    QVector<QStringList> m_rows;
    QVector<QVector<const char *>> m_colors;
    QVector<long long> m_sums;
};

#endif

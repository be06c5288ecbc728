#include "tablewriter.h"

#include "terminal.h"
#include "texts.h"
#include "valuewriter.h"

#include <algorithm>

namespace {

constexpr int gap = 2;
constexpr int leastColumn = 8; ///< no column of text is cut below this

QString singleLine(QString cell)
{
    return cell.replace(QLatin1Char('\n'), QLatin1Char(' ')).replace(QLatin1Char('\t'), QLatin1Char(' '));
}

QString colored(const QString &cell, const char *color)
{
    return QStringLiteral("\033[") + QLatin1String(color) + QLatin1Char('m') + cell + QLatin1String("\033[0m");
}

} // namespace

TableWriter::TableWriter(const QVector<const Field *> &columns, int width, bool hasColor)
    : m_columns(columns), m_width(width), m_hasColor(hasColor), m_sums(columns.size())
{
}

void TableWriter::add(const void *record)
{
    QStringList cells;
    QVector<const char *> colors;
    for (int i = 0; i < m_columns.size(); ++i) {
        const Field &field = *m_columns.at(i);
        const Value value = field.get(record);
        if (field.is(Field::summed))
            m_sums[i] += value.toNumber();
        cells.append(singleLine(ValueWriter::forPeople(field, value)));
        const char *color = nullptr;
        for (const Choice *choice = field.choices; choice && choice->word; ++choice) {
            if (value.toText() == QLatin1String(choice->word))
                color = choice->color;
        }
        colors.append(color);
    }
    m_rows.append(cells);
    m_colors.append(colors);
}

QVector<int> TableWriter::fittedWidths() const
{
    QVector<int> widths(m_columns.size());
    int total = -gap;
    for (int i = 0; i < m_columns.size(); ++i) {
        widths[i] = Terminal::width(::text(m_columns.at(i)->heading));
        for (const QStringList &row : m_rows)
            widths[i] = std::max(widths[i], Terminal::width(row.at(i)));
        total += widths[i] + gap;
    }
    while (total > m_width) { // the widest column of text gives way
        int widest = -1;
        for (int i = 0; i < widths.size(); ++i) {
            const bool isText = m_columns.at(i)->type == ValueType::text; // a cut number or date is none
            if (isText && widths[i] > leastColumn && (widest < 0 || widths[i] > widths[widest]))
                widest = i;
        }
        if (widest < 0)
            break;
        const int cut = std::min(total - m_width, widths[widest] - leastColumn);
        const int step = std::max(1, std::min(cut, widths[widest] / 4));
        widths[widest] -= step;
        total -= step;
    }
    return widths;
}

QString TableWriter::line(const QStringList &cells, const QVector<int> &widths,
                          const QVector<const char *> &colors) const
{
    QString line;
    for (int i = 0; i < cells.size(); ++i) {
        const QString cell = Terminal::fitted(cells.at(i), widths.at(i));
        const QString padding(widths.at(i) - Terminal::width(cell), QLatin1Char(' '));
        const QString shown = m_hasColor && colors.at(i) && !cell.isEmpty() ? colored(cell, colors.at(i)) : cell;
        if (i > 0)
            line += QString(gap, QLatin1Char(' '));
        line += ValueWriter::isRightAligned(m_columns.at(i)->type) ? padding + shown : shown + padding;
    }
    while (line.endsWith(QLatin1Char(' ')))
        line.chop(1);
    return line + QLatin1Char('\n');
}

QString TableWriter::text() const
{
    if (m_rows.isEmpty())
        return QString();
    const QVector<int> widths = fittedWidths();
    QStringList header, sums;
    bool hasSums = false;
    for (int i = 0; i < m_columns.size(); ++i) {
        const Field &field = *m_columns.at(i);
        header.append(::text(field.heading).toUpper());
        const bool isSummed = field.is(Field::summed) && m_rows.size() > 1;
        hasSums = hasSums || isSummed;
        sums.append(isSummed ? ValueWriter::forPeople(field, Value(m_sums.at(i))) : QString());
    }
    QString lines = line(header, widths, QVector<const char *>(m_columns.size(), "1"));
    for (int i = 0; i < m_rows.size(); ++i)
        lines += line(m_rows.at(i), widths, m_colors.at(i));
    if (hasSums)
        lines += line(sums, widths, QVector<const char *>(m_columns.size(), "1"));
    return lines;
}

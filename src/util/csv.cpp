#include "csv.h"

#include <QTextStream>

#include <algorithm>

namespace {

constexpr QLatin1Char quote('"');

} // namespace

CSV::CSV(QTextStream *stream, QObject *parent) : QObject(parent), m_stream(stream) {}

void CSV::writeField(const QString &value)
{
    if (m_fieldWritten)
        *m_stream << m_delimiters.at(0);
    m_fieldWritten = true;
    const bool isQuoted = std::any_of(value.begin(), value.end(), [this](QChar c) {
        return c == quote || c == QLatin1Char(' ') || m_delimiters.contains(c);
    });
    if (isQuoted)
        *m_stream << quote << QString(value).replace(quote, QLatin1String("\"\"")) << quote;
    else
        *m_stream << value;
}

void CSV::writeLine()
{
    *m_stream << "\r\n";
    m_fieldWritten = false;
}

QStringList CSV::readLine()
{
    QString line;
    while (line.isEmpty() && !m_stream->atEnd())
        line = m_stream->readLine();
    return split(line);
}

QStringList CSV::split(const QString &line) const
{
    QStringList fields;
    QString field;
    bool inQuotes = false;
    for (int i = 0; i < line.size(); ++i) {
        const QChar c = line.at(i);
        if (inQuotes && c == quote && i + 1 < line.size() && line.at(i + 1) == quote) {
            field += quote;
            ++i;
        } else if (c == quote) {
            inQuotes = !inQuotes;
        } else if (!inQuotes && m_delimiters.contains(c)) {
            fields.append(field);
            field.clear();
        } else {
            field += c;
        }
    }
    if (!field.isEmpty())
        fields.append(field);
    return fields;
}

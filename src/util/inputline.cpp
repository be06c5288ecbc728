#include "inputline.h"

#include <QTextCodec>

#include <cerrno>
#include <unistd.h>

namespace {

constexpr int blockSize = 65536;

bool isWhiteSpace(QChar c)
{
    const ushort u = c.unicode();
    return (u >= 9 && u <= 13) || u == 32 || u == 0xA0 || u == 0x85 || (u > 127 && c.isSpace());
}

} // namespace

InputLine::InputLine(int descriptor) : m_descriptor(descriptor) {}

bool InputLine::read(QString &line)
{
    int searchFrom = m_position;
    for (;;) {
        int end = m_buffer.indexOf('\n', searchFrom);
        if (end < 0 && m_atEnd) {
            if (m_position >= m_buffer.size())
                return false;
            end = m_buffer.size();
        }
        if (end >= 0) {
            int length = end - m_position;
            if (length > 0 && m_buffer.at(m_position + length - 1) == '\r')
                --length;
            line = QTextCodec::codecForLocale()->toUnicode(m_buffer.constData() + m_position, length);
            m_position = end + 1;
            return true;
        }
        m_buffer.remove(0, m_position);
        m_position = 0;
        searchFrom = m_buffer.size();
        char block[blockSize];
        ssize_t count;
        do
            count = ::read(m_descriptor, block, sizeof block);
        while (count < 0 && errno == EINTR);
        m_atEnd = count <= 0;
        if (!m_atEnd)
            m_buffer.append(block, static_cast<int>(count));
    }
}

QStringList InputLine::splitWords(const QString &line)
{
    QStringList words;
    QString word;
    bool escape = false;
    bool inQuotes = false;
    for (const QChar c : line) {
        if (isWhiteSpace(c) && !inQuotes) {
            words.append(word);
            word.clear();
            continue;
        }
        switch (c.unicode()) {
        case '"':
            if (escape)
                word.append(c);
            else
                inQuotes = !inQuotes;
            escape = false;
            break;
        case 'n':
            word.append(escape ? QLatin1Char('\n') : c);
            break;
        case 'r':
            word.append(escape ? QLatin1Char('\r') : c);
            break;
        case 't':
            word.append(escape ? QLatin1Char('\t') : c);
            break;
        case '\\':
            if (escape)
                word.append(c);
            escape = !escape;
            break;
        default:
            word.append(c);
            escape = false;
        }
    }
    if (!word.isEmpty())
        words.append(word);
    return words;
}

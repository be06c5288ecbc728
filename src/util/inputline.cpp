#include "inputline.h"

#include "localetext.h"

#include <cerrno>
#include <poll.h>
#include <unistd.h>

namespace {

constexpr int blockSize = 65536;

bool isWhiteSpace(QChar c)
{
    const ushort u = c.unicode();
    return (u >= 9 && u <= 13) || u == 32 || u == 0xA0 || u == 0x85 || (u > 127 && c.isSpace());
}

/** read(), waiting for input also where the descriptor was set not to wait. */
ssize_t readBlock(int descriptor, char *block, std::size_t size)
{
    for (;;) {
        const ssize_t count = ::read(descriptor, block, size);
        if (count >= 0)
            return count;
        if (errno == EAGAIN || errno == EWOULDBLOCK) {
            pollfd wait = {descriptor, POLLIN, 0};
            ::poll(&wait, 1, -1);
        } else if (errno != EINTR) {
            return count;
        }
    }
}

} // namespace

InputLine::InputLine(int descriptor) : m_descriptor(descriptor) {}

bool InputLine::read(QString &line)
{
    QByteArray bytes;
    const bool isFirst = m_isFirst;
    if (!readBytes(bytes))
        return false;
    line = LocaleText::decode(bytes.constData(), bytes.size());
    if (isFirst && line.startsWith(QChar(QChar::ByteOrderMark)))
        line.remove(0, 1); // of a file that an editor saved with its mark
    return true;
}

bool InputLine::readBytes(QByteArray &line)
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
            line = m_buffer.mid(m_position, length);
            m_position = end + 1;
            m_isFirst = false;
            return true;
        }
        m_buffer.remove(0, m_position);
        m_position = 0;
        searchFrom = m_buffer.size();
        char block[blockSize];
        const ssize_t count = readBlock(m_descriptor, block, sizeof block);
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

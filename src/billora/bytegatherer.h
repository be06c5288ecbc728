#ifndef BYTEGATHERER_H
#define BYTEGATHERER_H

#include <QByteArray>

#include <cstring>

/**
 * Gathers many short pieces and appends them to a buffer at once, at the end of its life at the latest: in a long list
 * an append to a QByteArray costs more than the few bytes of a value. The buffer must not be touched meanwhile but
 * behind flush().
 */
class ByteGatherer {
public:
    /** @param target  belongs to the caller */
    explicit ByteGatherer(QByteArray &target) : m_target(target) {}
    ~ByteGatherer() { flush(); }
    ByteGatherer(const ByteGatherer &) = delete;
    ByteGatherer &operator=(const ByteGatherer &) = delete;

    /** The longest piece that room() has place for. */
    static constexpr int capacity = 1024;

    /** @return where up to `size` bytes may be written, capacity at most; taken() then tells their end */
    char *room(int size)
    {
        if (size > capacity - m_size)
            flush();
        return m_bytes + m_size;
    }
    void taken(const char *end) { m_size = static_cast<int>(end - m_bytes); }

    /** Any size. */
    void append(const char *bytes, int size)
    {
        if (size > capacity) {
            flush();
            m_target.append(bytes, size);
            return;
        }
        std::memcpy(room(size), bytes, static_cast<std::size_t>(size));
        m_size += size;
    }
    void append(const QByteArray &bytes) { append(bytes.constData(), bytes.size()); }
    void append(char byte) { append(&byte, 1); }
    template <int size> void append(const char (&literal)[size]) { append(literal, size - 1); }

    /** Appends what is gathered. */
    void flush()
    {
        m_target.append(m_bytes, m_size);
        m_size = 0;
    }
    /** The buffer with all that was appended. */
    QByteArray &target()
    {
        flush();
        return m_target;
    }

private:
    QByteArray &m_target; ///< not owned
    char m_bytes[capacity];
    int m_size = 0; ///< gathered in m_bytes
};

#endif

#ifndef INPUTLINE_H
#define INPUTLINE_H

#include <QByteArray>
#include <QString>
#include <QStringList>

/**
 * Reads lines from a file descriptor as they arrive. A line that is there is returned at once, also from a pipe that
 * stays open; the buffered readers of the library wait for a full block.
 */
class InputLine {
public:
    /** @param descriptor  not owned, stays open */
    explicit InputLine(int descriptor);

    /**
     * Waits for the next line.
     * @param line  the line without LF or CR LF, decoded from the locale's character set
     * @return false at the end of the input (or when it cannot be read); `line` is then unchanged
     */
    bool read(QString &line);

    /** The same, undecoded. @param line  unchanged at the end of the input */
    bool readBytes(QByteArray &line);
    /** Whether the next line is there already, so that nobody waits for an answer before it. */
    bool hasLine() const { return m_buffer.indexOf('\n', m_position) >= 0; }

    /**
     * Splits a command line into words. Unquoted white space ends a word (two in a row make an empty one), double
     * quotes keep white space, a backslash escapes `"`, `\`, `n`, `r` and `t`. After an escaped letter the escape stays
     * in force: existing scripts rely on it.
     */
    static QStringList splitWords(const QString &line);

private:
    int m_descriptor;      ///< not owned
    QByteArray m_buffer;   ///< bytes read, LF not yet looked for behind m_position
    int m_position = 0;    ///< start of what was not returned yet
    bool m_atEnd = false;  ///< also after a failed read
    bool m_isFirst = true; ///< a U+FEFF is dropped from the first line only
};

#endif

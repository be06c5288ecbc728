#ifndef BANKFILELINES_H
#define BANKFILELINES_H

#include <QString>

class QIODevice;
class QTextCodec;

/**
 * Reads a bank's file line by line. A line ends in LF or CR LF, the last one perhaps in nothing; a byte order mark
 * and the Ctrl-Z of old transfer programs are dropped. No more than one line is held in memory, and of a line without
 * end no more than a part.
 */
class BankFileLines {
public:
    /**
     * @param device  open for reading; not owned
     * @param codec   of the lines that are not UTF-8; null for ISO-8859-1. The standards name that one, editors write
     *                UTF-8, and the two are not mistaken for each other.
     */
    explicit BankFileLines(QIODevice &device, QTextCodec *codec = nullptr);

    /** Goes on to the next line. @return false at the end, everything else is then unchanged */
    bool next();

    /** Without its end; of a line that is too long, its beginning. */
    const QString &text() const { return m_text; }
    qint64 number() const { return m_number; }         ///< from 1; 0 before the first
    bool isBlank() const;                              ///< also when it holds white space only
    bool isTooLong() const { return m_tooLong; }       ///< the rest of the line was passed over
    bool isTerminated() const { return m_terminated; } ///< false for a last line without line end

private:
    QString decode(const QByteArray &bytes) const; ///< UTF-8 where the bytes are valid as such, else m_codec
    void skipRest();                               ///< of a line that is too long

    QIODevice &m_device; ///< not owned
    QTextCodec *m_utf8;  ///< of the library, never deleted
    QTextCodec *m_codec; ///< of what is not UTF-8
    QString m_text;      ///< 64 KiB of bytes at most
    qint64 m_number = 0;
    bool m_tooLong = false;
    bool m_terminated = false;
};

#endif

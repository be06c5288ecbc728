#ifndef CSV_H
#define CSV_H

#include <QObject>
#include <QString>
#include <QStringList>

class QTextStream;

/**
 * Reads and writes character-separated values (RFC 4180) on a text stream, which the caller opens, encodes and closes.
 * Unlike there a quoted field does not span lines when reading.
 */
class CSV : public QObject {
    Q_OBJECT
public:
    /** @param stream  not owned */
    explicit CSV(QTextStream *stream, QObject *parent = nullptr);

    /** Every character separates fields when reading; the first is written. Must not be empty when writing. */
    QString delimiters() const { return m_delimiters; }
    void setDelimiters(const QString &delimiters) { m_delimiters = delimiters; }

    /** Appends a field to the current line, quoted when it holds a quote, a space or any of the delimiters. */
    void writeField(const QString &value);
    /** Ends the current line with CR LF on every platform. */
    void writeLine();

    /**
     * @return the fields of the next line that is not empty; an empty list at the end. An empty last field is dropped,
     * text inside and outside quotes is joined.
     */
    QStringList readLine();

private:
    /** Never fails: an unclosed quote lasts to the end of the line. */
    QStringList split(const QString &line) const;

    QTextStream *m_stream; ///< must outlive this
    QString m_delimiters = QStringLiteral(",;");
    bool m_fieldWritten = false; ///< on the current line
};

#endif

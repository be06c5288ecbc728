#ifndef XMLTEXT_H
#define XMLTEXT_H

#include <QString>
#include <QStringList>

/** Writes the elements of a document one after the other; one without content is not written. */
class XmlText {
public:
    /** @param first  what stands in front of the root */
    explicit XmlText(const QString &first) : m_text(first) {}

    /** @param attributes  as they stand, `schemeID="0216"` */
    void open(const char *name, const QString &attributes = QString());
    void close(); ///< writes nothing for an element that nothing is in
    void leaf(const char *name, const QString &content, const QString &attributes = QString());

    /** Valid XML once every element is closed; the content is escaped, attributes are not. */
    const QString &text() const { return m_text; }

private:
    /** Writes the opened elements that something is in. */
    void flush();

    QString m_text;        ///< one element a line, without indentation
    QStringList m_open;    ///< names
    QStringList m_pending; ///< start tags that are not written yet, the last of m_open
};

#endif

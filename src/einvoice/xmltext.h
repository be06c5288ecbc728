#ifndef XMLTEXT_H
#define XMLTEXT_H

#include <QString>
#include <QVector>

/** Writes the elements of a document one after the other; one without content is not written. Names are literals. */
class XmlText {
public:
    /** @param first  what stands in front of the root */
    explicit XmlText(const QString &first);

    /** @param attributes  as they stand, `schemeID="0216"` */
    void open(const char *name, const QString &attributes = QString());
    void close(); ///< writes nothing for an element that nothing is in
    void leaf(const char *name, const QString &content, const QString &attributes = QString());

    /** Valid XML once every element is closed; the content is escaped, attributes are not. */
    const QString &text() const { return m_text; }

private:
    /** Writes the opened elements that something is in. */
    void flush();

    struct Pending {
        const char *name;
        QString attributes;
    };

    QString m_text;               ///< one element a line, without indentation
    QVector<const char *> m_open; ///< names, literals
    QVector<Pending> m_pending;   ///< not written yet, the last of m_open
};

#endif

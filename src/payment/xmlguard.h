#ifndef XMLGUARD_H
#define XMLGUARD_H

#include <QIODevice>

/**
 * Passes an XML file on as it is, but ends it where two markup characters `<` are further apart than any document has
 * reason for: a tag of a million attributes would keep the parser busy for hours, a text without end fill the memory.
 */
class XmlGuard : public QIODevice {
    Q_OBJECT
public:
    /** @param source  open for reading; not owned */
    explicit XmlGuard(QIODevice &source);

    bool isSequential() const override { return true; }        ///< a parser must not seek
    bool hasEnded() const { return m_distance > maxDistance; } ///< before the end of the source

    static constexpr qint64 maxDistance = 64 * 1024; // bytes

protected:
    /** Gives nothing more once the guard has ended the file. */
    qint64 readData(char *data, qint64 maxSize) override;
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    QIODevice &m_source;   ///< not owned
    qint64 m_distance = 0; ///< bytes since the last `<`
};

#endif

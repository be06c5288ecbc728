#ifndef JOURNALSTORE_H
#define JOURNALSTORE_H

#include <QByteArray>
#include <QString>
#include <QVector>

#include <functional>

/**
 * Where the lines of the journal of sent documents are kept, and beside them the head, a text that tells what the last
 * ones are. Both are the caller's; here they are bytes without LF. Nothing that was written is ever changed but the
 * head. Failures leave their text in lastError().
 */
class JournalStore {
public:
    struct Line {
        int number = 0;     ///< its place, from 1
        int invoiceId = -1; ///< of the database
        QByteArray text;
    };
    /** @return false when no more lines are wanted */
    using Each = std::function<bool(const QByteArray &text)>;

    virtual ~JournalStore() = default;

    /**
     * Begins to add: nobody else adds until write(), or until this object is gone. Makes what is missing.
     * @param head  empty for none. @param last  the last line, empty for none
     */
    [[nodiscard]] virtual bool lock(QByteArray &head, QByteArray &last) = 0;
    /**
     * After lock(): head and lines are on the disk when this returns true (in a database: once its transaction is).
     * @param intent  the head while the lines are being written, kept when that breaks off
     */
    [[nodiscard]] virtual bool write(const QByteArray &intent, const QVector<Line> &lines, const QByteArray &head) = 0;
    /**
     * Reads head and lines of one moment, in their order.
     * @param invoiceId  only its lines, where the store can tell; others may come too
     */
    [[nodiscard]] virtual bool read(QByteArray &head, const Each &each, int invoiceId = -1) = 0;

    /** Whether lock() and write() belong into a transaction of the database. */
    virtual bool isInDatabase() const = 0;
    virtual QString place() const = 0; ///< a file name, or the name of a table

    QString lastError() const { return m_lastError; } ///< empty before a failure

protected:
    bool fail(const QString &reason) ///< @return false
    {
        m_lastError = reason;
        return false;
    }

private:
    QString m_lastError; ///< of the last failure
};

#endif

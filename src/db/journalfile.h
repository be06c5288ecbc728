#ifndef JOURNALFILE_H
#define JOURNALFILE_H

#include "journalstore.h"

/**
 * The journal beside an SQLite database: `NAME.journal`, a line each, and the head in `NAME.journal.head`. They get the
 * permissions of the database's file.
 */
class JournalFile : public JournalStore {
public:
    /** @param database  an existing file; behind a link the journal is beside the file that it leads to */
    explicit JournalFile(const QString &database);
    ~JournalFile() override; ///< gives the lock back
    JournalFile(const JournalFile &) = delete;
    JournalFile &operator=(const JournalFile &) = delete;

    bool lock(QByteArray &head, QByteArray &last) override; ///< waits for others up to ten seconds
    bool write(const QByteArray &intent, const QVector<Line> &lines, const QByteArray &head) override;
    bool read(QByteArray &head, const Each &each, int invoiceId = -1) override; ///< gives the lines of all invoices
    bool isInDatabase() const override { return false; }
    QString place() const override { return m_name; }

private:
    bool failWith(int error); ///< keeps the text of an errno. @return false
    bool take(int kind);      ///< flock(2) on the open file, LOCK_EX or LOCK_SH
    QByteArray head() const;
    bool writeHead(const QByteArray &head, bool toDisk); ///< replaces the file as a whole
    void release();

    QString m_database, m_name; ///< absolute
    int m_file = -1;            ///< descriptor; -1 while closed
    bool m_isTorn = false;      ///< the last write was cut off: the file ends without LF
};

#endif

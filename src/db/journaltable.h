#ifndef JOURNALTABLE_H
#define JOURNALTABLE_H

#include "journalstore.h"

#include <QSqlDatabase>

/**
 * The journal in a PostgreSQL database: the table `billora_journal`, made at the first line. Its row 0 is the head.
 * Other programs of the system do not look at it; the schema's version stays.
 */
class JournalTable : public JournalStore {
public:
    explicit JournalTable(const QSqlDatabase &connection) : m_connection(connection) {} ///< an open connection, shared

    bool lock(QByteArray &head, QByteArray &last) override;
    bool write(const QByteArray &intent, const QVector<Line> &lines, const QByteArray &head) override;
    bool read(QByteArray &head, const Each &each, int invoiceId = -1) override;
    bool isInDatabase() const override { return true; }
    QString place() const override { return QStringLiteral("billora_journal"); }

private:
    bool exists() const; ///< the table

    QSqlDatabase m_connection; ///< open
};

#endif

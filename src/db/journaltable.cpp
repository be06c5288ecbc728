#include "journaltable.h"

#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>

bool JournalTable::exists() const { return m_connection.tables().contains(QStringLiteral("billora_journal")); }

bool JournalTable::lock(QByteArray &head, QByteArray &last)
{
    QSqlQuery query(m_connection);
    // Also for those who would both make the table. Ends with the transaction.
    constexpr char waiting[] = "SELECT pg_advisory_xact_lock(hashtext('billora_journal'))";
    constexpr char making[] = "CREATE TABLE billora_journal (line integer PRIMARY KEY, invoice_id integer NOT NULL, "
                              "content text NOT NULL)";
    constexpr char reading[] = "SELECT line, content FROM billora_journal WHERE line = 0 OR line = (SELECT max(line) "
                               "FROM billora_journal)";
    if (!query.exec(QLatin1String(waiting)) || (!exists() && !query.exec(QLatin1String(making))) ||
        !query.exec(QLatin1String(reading)))
        return fail(query.lastError().text());
    while (query.next())
        (query.value(0).toInt() == 0 ? head : last) = query.value(1).toString().toUtf8();
    return !query.lastError().isValid() || fail(query.lastError().text());
}

bool JournalTable::write(const QByteArray &, const QVector<Line> &lines, const QByteArray &head)
{
    QSqlQuery query(m_connection);
    query.prepare(QStringLiteral("INSERT INTO billora_journal (line, invoice_id, content) VALUES (?, ?, ?)"));
    for (const Line &line : lines) {
        query.addBindValue(line.number);
        query.addBindValue(line.invoiceId);
        query.addBindValue(QString::fromUtf8(line.text));
        if (!query.exec())
            return fail(query.lastError().text());
    }
    query.prepare(
        QStringLiteral("INSERT INTO billora_journal (line, invoice_id, content) VALUES (0, -1, ?) ON CONFLICT "
                       "(line) DO UPDATE SET content = excluded.content"));
    query.addBindValue(QString::fromUtf8(head));
    return query.exec() || fail(query.lastError().text());
}

bool JournalTable::read(QByteArray &head, const Each &each, int invoiceId)
{
    if (!exists())
        return true;
    QSqlQuery query(m_connection);
    query.setForwardOnly(true);
    QString statement = QStringLiteral("SELECT line, content FROM billora_journal");
    if (invoiceId >= 0)
        statement += QStringLiteral(" WHERE invoice_id = %1").arg(invoiceId);
    if (!query.exec(statement + QLatin1String(" ORDER BY line")))
        return fail(query.lastError().text());
    bool isWanted = true;
    while (isWanted && query.next()) {
        const QByteArray text = query.value(1).toString().toUtf8();
        if (query.value(0).toInt() == 0)
            head = text;
        else
            isWanted = each(text);
    }
    return !query.lastError().isValid() || fail(query.lastError().text()); // a read that broke is not a shorter journal
}

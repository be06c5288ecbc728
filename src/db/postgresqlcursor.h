#ifndef POSTGRESQLCURSOR_H
#define POSTGRESQLCURSOR_H

#include "cursor.h"

#include <QCoreApplication>
#include <QSqlQuery>

/** Nothing is kept prepared: a prepared statement lives on the server, and is lost with the connection. */
class PostgreSQLCursor : public Cursor {
    Q_DECLARE_TR_FUNCTIONS(PostgreSQLCursor)
public:
    /**
     * @param statement  of an open connection
     * @param isPooled   the connection may be another one from transaction to transaction: whole texts are sent
     */
    PostgreSQLCursor(const QSqlQuery &statement, bool isPooled);

    /** As Cursor has them; a text with U+0000, which the server does not store, is refused. */
    bool execute(const QString &sql, const QVariantList &values) override;
    bool wasPrepared() const override { return m_wasPrepared; }
    bool next() override { return m_query.next(); }
    void finish() override { m_query.finish(); }
    bool hasError() const override;
    QString lastError() const override;
    int insertedId() const override { return 0; } ///< the sequence tells
    int affectedRows() const override { return m_query.numRowsAffected(); }
    QVariant value(int column) const override { return m_query.value(column); }

private:
    QSqlQuery m_query;         ///< the last statement
    QString m_refusal;         ///< of one of its values
    const bool m_isPooled;     ///< see the constructor
    bool m_wasPrepared = true; ///< see wasPrepared()
};

#endif

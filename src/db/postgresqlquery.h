#ifndef POSTGRESQLQUERY_H
#define POSTGRESQLQUERY_H

#include "query.h"

/** New ids come from the tables' sequences, and text searches ignore letter case. */
class PostgreSQLQuery : public Query {
    Q_OBJECT
public:
    /**
     * @param isPooled  the connection may be another one from transaction to transaction: nothing is prepared on it
     */
    PostgreSQLQuery(const QSqlQuery &statement, bool isPooled, QObject *parent)
        : Query(statement, parent), m_isPooled(isPooled)
    {
    }

protected:
    /** What the backend does in its own way, see Query. */
    QString newIdExpression(const char *table) const override;
    int insertedId(const char *table) override;
    QString refusal(const QVariant &value) const override; ///< texts with U+0000, which the server does not store
    QString likeOperator() const override { return QStringLiteral("ILIKE"); }
    QString escapeClause() const override { return QStringLiteral(" ESCAPE E'\\\\'"); }
    /** A regular expression with both cases of every letter. */
    QString containsPattern(const QString &text) const override;
    QString containsOperator() const override { return QStringLiteral("~"); }
    /** A prepared statement lives on the server, and is lost with the connection. */
    bool keepsStatements() const override { return false; }
    bool preparesStatements() const override { return !m_isPooled; }

private:
    /** The value that this connection drew last, whatever other clients do meanwhile; 0 on failure. */
    int sequenceValue(const QString &sequenceName);

    const bool m_isPooled; ///< see the constructor
};

#endif

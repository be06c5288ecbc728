#ifndef POSTGRESQLQUERY_H
#define POSTGRESQLQUERY_H

#include "query.h"

/** New ids come from the tables' sequences, and text searches ignore letter case. */
class PostgreSQLQuery : public Query {
    Q_OBJECT
public:
    using Query::Query;

protected:
    /** What the backend does in its own way, see Query. */
    QString newIdExpression(const char *table) const override;
    int insertedId(const char *table) override;
    QString likeOperator() const override { return QStringLiteral("ILIKE"); }
    QString escapeClause() const override { return QStringLiteral(" ESCAPE E'\\\\'"); }
    /** A regular expression with both cases of every letter. */
    QString containsPattern(const QString &text) const override;
    QString containsOperator() const override { return QStringLiteral("~"); }

private:
    /** The value that this connection drew last, whatever other clients do meanwhile; 0 on failure. */
    int sequenceValue(const QString &sequenceName);
};

#endif

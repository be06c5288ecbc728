#include "postgresqlquery.h"

namespace {

QString sequenceName(const char *table) { return QLatin1String(table) + QLatin1String("_id_seq"); }

} // namespace

QString PostgreSQLQuery::newIdExpression(const char *table) const
{
    return QLatin1String("nextval('") + sequenceName(table) + QLatin1String("')");
}

int PostgreSQLQuery::insertedId(const char *table) { return sequenceValue(sequenceName(table)); }

int PostgreSQLQuery::sequenceValue(const QString &sequenceName)
{
    const bool found =
        m_cursor->execute(QLatin1String("SELECT currval('") + sequenceName + QLatin1String("')"), {}) && next();
    return found ? m_cursor->integer(0) : 0;
}

QString PostgreSQLQuery::containsPattern(const QString &text) const
{
    QString pattern;
    for (const QChar c : text) {
        if (c.toLower() != c.toUpper())
            pattern += QLatin1Char('[') + QString(c.toLower()) + c.toUpper() + QLatin1Char(']');
        else if (c.isLetterOrNumber() || c.isSpace() || c.unicode() > 127)
            pattern += c;
        else
            pattern += QLatin1Char('\\') + QString(c);
    }
    return pattern;
}

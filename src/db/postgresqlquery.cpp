#include "postgresqlquery.h"

#include <QVariant>

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
        m_query.exec(QLatin1String("SELECT currval('") + sequenceName + QLatin1String("')")) && m_query.next();
    return found ? m_query.value(0).toInt() : 0;
}

QString PostgreSQLQuery::refusal(const QVariant &value) const
{
    const bool hasNul = value.type() == QVariant::String && value.toString().contains(QChar(QChar::Null));
    return hasNul ? tr("PostgreSQL ei tallenna tekstiä, jossa on NUL-merkki") : QString();
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

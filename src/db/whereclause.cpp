#include "whereclause.h"

void WhereClause::add(const char *condition) { addAll(condition, {}); }

void WhereClause::add(const char *condition, const QDate &value)
{
    if (value.isValid())
        addAll(condition, {value});
}

void WhereClause::add(const char *condition, int value)
{
    if (value >= 0)
        addAll(condition, {value});
}

void WhereClause::add(const QString &condition, const QString &value)
{
    if (!value.isEmpty())
        addAll(condition.toUtf8().constData(), {value});
}

void WhereClause::addAll(const char *condition, const QVariantList &values)
{
    m_conditions.append(QString::fromUtf8(condition).replace(QLatin1String("%1"), m_prefix));
    m_values.append(values);
}

bool WhereClause::appendTo(QString &sql, QList<QVariant> &params, const QString &keyword) const
{
    if (m_conditions.isEmpty())
        return false;
    sql += keyword + m_conditions.join(QLatin1String(" AND "));
    params.append(m_values);
    return true;
}

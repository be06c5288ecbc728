#include "postgresqlcursor.h"

#include "sqltext.h"

#include <QSqlDriver>
#include <QSqlError>

#include <algorithm>

namespace {

bool hasNul(const QVariant &value)
{
    return value.type() == QVariant::String && value.toString().contains(QChar(QChar::Null));
}

} // namespace

PostgreSQLCursor::PostgreSQLCursor(const QSqlQuery &statement, bool isPooled) : m_query(statement), m_isPooled(isPooled)
{
    m_query.setForwardOnly(true);
}

bool PostgreSQLCursor::hasError() const { return !m_refusal.isEmpty() || m_query.lastError().isValid(); }

QString PostgreSQLCursor::lastError() const
{
    return m_refusal.isEmpty() ? m_query.lastError().text().trimmed() : m_refusal;
}

bool PostgreSQLCursor::execute(const QString &sql, const QVariantList &values)
{
    m_refusal.clear();
    if (std::any_of(values.begin(), values.end(), hasNul)) {
        m_refusal = tr("PostgreSQL ei tallenna tekstiä, jossa on NUL-merkki");
        return false;
    }
    m_query.finish();
    // The server prepares no statement that defines something.
    const bool isPrepared = !m_isPooled && (!values.isEmpty() || sql.startsWith(QLatin1String("SELECT")));
    m_wasPrepared = !isPrepared || m_query.prepare(sql);
    if (!isPrepared)
        return m_query.exec(SqlText::filled(*m_query.driver(), sql, values));
    if (!m_wasPrepared)
        return false;
    for (int i = 0; i < values.size(); ++i)
        m_query.bindValue(i, values.at(i));
    return m_query.exec();
}

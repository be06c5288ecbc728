#ifndef WHERECLAUSE_H
#define WHERECLAUSE_H

#include <QDate>
#include <QString>
#include <QStringList>
#include <QVariantList>

/**
 * Collects the conditions of a search with their parameters. A condition's text holds "%1" for the table prefix and a
 * "?" for each parameter; an unset value (invalid date, negative number, empty text) adds no condition.
 */
class WhereClause {
public:
    explicit WhereClause(const QString &prefix) : m_prefix(prefix) {}

    void add(const char *condition); ///< a condition without parameters
    void add(const char *condition, const QDate &value);
    void add(const char *condition, int value);
    void add(const QString &condition, const QString &value);
    /** Adds the condition always, with the values of its marks. */
    void addAll(const char *condition, const QVariantList &values);

    /**
     * Appends the keyword and the conditions, joined by AND, to the statement, and the values to the parameters.
     * @return false, with nothing touched, when there is no condition
     */
    bool appendTo(QString &sql, QList<QVariant> &params, const QString &keyword) const;

private:
    QString m_prefix;
    QStringList m_conditions;
    QVariantList m_values;
};

#endif

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
    /** @param prefix  of every column, "" or "i." */
    explicit WhereClause(const QString &prefix) : m_prefix(prefix) {}

    void add(const char *condition); ///< a condition without parameters
    /** Nothing for an invalid date, a negative number or an empty text. */
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
    QString m_prefix;         ///< in place of "%1"
    QStringList m_conditions; ///< joined by AND
    QVariantList m_values;    ///< in the order of the marks
};

#endif

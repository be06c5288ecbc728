#ifndef ARGUMENTS_H
#define ARGUMENTS_H

#include <QHash>
#include <QString>
#include <QStringList>
#include <QVector>

/**
 * What a command was given: texts by the names of its fields and options (lowerCamelCase), whether they came as words,
 * in an editor or as JSON.
 */
class Arguments {
public:
    /** Also of a value that is empty. */
    bool has(const QString &name) const { return m_values.contains(name); }
    bool has(const char *name) const { return has(QLatin1String(name)); }
    /** The value, null when not given; of a repeated option the last. */
    QString text(const QString &name) const
    {
        return m_values.value(name).isEmpty() ? QString() : m_values.value(name).last();
    }
    QString text(const char *name) const { return text(QString(QLatin1String(name))); }
    QStringList texts(const char *name) const { return m_values.value(QLatin1String(name)); }
    void add(const QString &name, const QString &value)
    {
        m_values[name].append(value.isNull() ? QStringLiteral("") : value);
    }
    void remove(const char *name) { m_values.remove(QLatin1String(name)); }
    /** Lets a function change every text, those of the rows too. */
    template <class Change> void replace(Change change)
    {
        for (QStringList &texts : m_values) {
            for (QString &text : texts)
                change(text);
        }
        for (Arguments &row : rows)
            row.replace(change);
    }
    QStringList names() const { return m_values.keys(); }
    bool isEmpty() const { return m_values.isEmpty() && rows.isEmpty(); }

    /** The rows of an invoice, each with the fields of a row and `product`. */
    QVector<Arguments> rows;
    bool hasRows = false; ///< the rows were given, perhaps none
    QStringList booleans; ///< names that were given as true or false of JSON
    QStringList lists;    ///< names that were given as a list of JSON, perhaps an empty one
    QStringList nulls;    ///< names that were given as null: their texts are empty

private:
    QHash<QString, QStringList> m_values; ///< in the order given; never null, perhaps empty
};

#endif

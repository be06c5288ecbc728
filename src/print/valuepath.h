#ifndef VALUEPATH_H
#define VALUEPATH_H

#include "integer.h"

#include <QStringList>
#include <QVariant>

#include <limits>

/**
 * Resolves value paths against tables: one row per key. A level takes its element off the front of the path and hands
 * the rest down; elements behind a scalar key are ignored.
 */
namespace ValuePath {

/** A key of a level, and how its value is made of what the level knows (the context) and the rest of the path. */
template <class... Context> struct Key {
    const char *key;                                          ///< one element; letter case counts
    QVariant (*value)(Context... context, QStringList &rest); ///< takes the elements that it uses off `rest`
};

/** An int, as scripts have it; what is beyond 32 bits keeps its value. */
inline QVariant number(long long value)
{
    const bool fits = value >= std::numeric_limits<int>::min() && value <= std::numeric_limits<int>::max();
    return fits ? QVariant(static_cast<int>(value)) : QVariant(value);
}

/** The value of a public field, for a table whose context ends with the record. */
template <auto member, class Record> QVariant field(const Record &record, QStringList &)
{
    return QVariant(record.*member);
}
template <auto member, class Model, class Record> QVariant field(Model &, const Record &record, QStringList &)
{
    return QVariant(record.*member);
}

/** @return an invalid variant for an empty path and for a key that the table does not hold */
template <class Table, class... Context> QVariant resolve(const Table &table, QStringList &path, Context &...context)
{
    if (path.isEmpty())
        return QVariant();
    const QString element = path.takeFirst();
    for (const auto &row : table) {
        if (element == QLatin1String(row.key))
            return row.value(context..., path);
    }
    return QVariant();
}

/**
 * Resolves `length` or an index followed by the rest of the path.
 * @param entry  called with a valid index and the rest of the path
 */
template <class Entry> QVariant resolveList(int count, QStringList &path, Entry entry)
{
    if (path.isEmpty())
        return QVariant();
    const QString element = path.takeFirst();
    if (element == QLatin1String("length"))
        return count;
    bool ok = false;
    const int index = Integer::parse(element, ok);
    if (!ok || index < 0 || index >= count)
        return QVariant();
    return entry(index, path);
}

} // namespace ValuePath

#endif

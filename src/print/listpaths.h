#ifndef LISTPATHS_H
#define LISTPATHS_H

#include <QStringList>
#include <QVariant>

class Registry;

/** The value paths that the list models share. */
namespace ListPaths {

/** `number`, `name` and the address of a customer; invalid when the registry does not know it. */
QVariant customer(const Registry &registry, int customerId, QStringList &path);

/** An invalid variant beyond the end. */
/** `length` or an index. */
QVariant texts(const QStringList &texts, QStringList &path);

/** Whether a column is shown: bit n of the flags belongs to the n-th name. */
template <class Names> QVariant column(const Names &names, int flags, QStringList &path)
{
    const QString element = path.isEmpty() ? QString() : path.takeFirst();
    int bit = 1;
    for (const char *name : names) {
        if (element == QLatin1String(name))
            return (flags & bit) != 0;
        bit <<= 1;
    }
    return QVariant();
}

} // namespace ListPaths

#endif

#include "field.h"

#include <QHash>

const Field *RecordTable::find(const QString &wanted) const
{
    for (const Field &field : *this) {
        if (wanted == QLatin1String(field.name))
            return &field;
    }
    return nullptr;
}

const QVector<QString> &RecordTable::names() const
{
    static QHash<const Field *, QVector<QString>> known;
    QVector<QString> &names = known[fields];
    if (names.isEmpty()) {
        for (const Field &field : *this)
            names.append(QLatin1String(field.name));
    }
    return names;
}

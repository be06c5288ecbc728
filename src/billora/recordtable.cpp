#include "field.h"

const Field *RecordTable::find(const QString &wanted) const
{
    for (const Field &field : *this) {
        if (wanted == QLatin1String(field.name))
            return &field;
    }
    return nullptr;
}

#include "recordlist.h"

#include "valuewriter.h"

bool RecordList::contains(const RecordTable &table, const void *record, const QString &text)
{
    for (const Field &field : table) {
        const bool isText =
            field.type == ValueType::text || field.type == ValueType::bank || field.type == ValueType::integer;
        if (isText && ValueWriter::plain(field, field.get(record)).contains(text, Qt::CaseInsensitive))
            return true;
    }
    return false;
}

bool RecordList::isLess(const Field &field, const void *a, const void *b)
{
    const Value first = field.get(a);
    const Value second = field.get(b);
    if (first.isNull() || second.isNull())
        return first.isNull() && !second.isNull();
    switch (first.kind()) {
    case Value::text:
        return first.toText().compare(second.toText(), Qt::CaseInsensitive) < 0;
    case Value::date:
        return first.toDate() < second.toDate();
    default:
        return first.toNumber() < second.toNumber();
    }
}

QStringList RecordList::sortKeys(const RecordTable &table)
{
    QStringList keys;
    for (const Field &field : table) {
        if (field.type != ValueType::records)
            keys.append(QLatin1String(field.name));
    }
    return keys;
}

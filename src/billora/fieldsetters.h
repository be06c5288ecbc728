#ifndef FIELDSETTERS_H
#define FIELDSETTERS_H

#include "field.h"
#include "valuereader.h"

#include <type_traits>

/** The setter of a table for a plain member of a record: its type and the field's decide how a value is read. */
template <class Record, auto member>
bool setMember(void *record, const ValueReader &reader, const Field &field, const QString &value)
{
    auto &target = static_cast<Record *>(record)->*member;
    using Target = std::remove_reference_t<decltype(target)>;
    const QString name = QLatin1String(field.name);
    if constexpr (std::is_same_v<Target, QString>)
        return reader.text(name, field.type, value, target);
    else if constexpr (std::is_same_v<Target, QDate>)
        return reader.date(name, value, target, field.is(Field::clearable));
    else if constexpr (std::is_same_v<Target, bool>)
        return reader.flag(name, value, target);
    else if (value.isEmpty() && field.is(Field::clearable)) {
        target = 0;
        return true;
    } else
        return reader.number(name, field.type, value, target);
}

/** The setter of a payment reference. */
template <class Record, auto member>
bool setReference(void *record, const ValueReader &reader, const Field &field, const QString &value)
{
    return reader.reference(field.name, value, static_cast<Record *>(record)->*member);
}

#endif

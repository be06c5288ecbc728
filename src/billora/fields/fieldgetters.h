#ifndef FIELDGETTERS_H
#define FIELDGETTERS_H

#include "field.h"

#include <functional>

// The getters of field tables, for a record that holds another: customer.name of a CustomerRecord.

/** The value of a part's member or member function. */
template <auto part, auto member> struct PartGetter;

template <class Record, class Part, Part Record::*part, auto member> struct PartGetter<part, member> {
    static Value get(const void *record)
    {
        return Value(std::invoke(member, static_cast<const Record *>(record)->*part));
    }
};

template <auto part, auto member> constexpr auto partValue = &PartGetter<part, member>::get;

template <auto member> struct Getter;
template <class Record, class Type, Type Record::*member> struct Getter<member> {
    static Value get(const void *record) { return Value(static_cast<const Record *>(record)->*member); }
};
/** The value of the record's own member. */
template <auto member> constexpr auto value = &Getter<member>::get;

/** The addresses of a list of nested records. */
template <class Record> Value recordsOf(const QVector<Record> &list)
{
    QVector<const void *> addresses;
    addresses.reserve(list.size());
    for (const Record &record : list)
        addresses.append(&record);
    return Value(addresses);
}

/** A number that may be missing: negative means not set. */
inline Value optionalNumber(int number) { return number < 0 ? Value() : Value(number); }

#endif

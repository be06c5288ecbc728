#ifndef FIELDGETTERS_H
#define FIELDGETTERS_H

#include "field.h"
#include "valuereader.h"
#include "vat.h"

#include <functional>

// The getters of field tables, for a record that holds another: customer.name of a CustomerRecord.

/** The value of a part's member or member function. */
/** `get` takes the address of the whole record; a member function must be const and take no arguments. */
template <auto part, auto member> struct PartGetter;

template <class Record, class Part, Part Record::*part, auto member> struct PartGetter<part, member> {
    /** `record` must be a Record, nothing checks it. */
    static Value get(const void *record)
    {
        return Value(std::invoke(member, static_cast<const Record *>(record)->*part));
    }
};

/** For Field::get: a part's member. */
template <auto part, auto member> constexpr auto partValue = &PartGetter<part, member>::get;

/**
 * The unit price of a product or row without or with VAT. Of one with four significant decimals the conversion that the
 * documents of this system share gives a tenth, see Vat::roundWithSamePrecision(); here it is the price.
 */
template <class Part> long long priceVatExcluded(const Part &part)
{
    const bool isWhole = part.vatExcluded || part.amount % 10 == 0;
    return isWhole ? part.amountVatExcluded() : Vat::substractVat(part.amount, part.vatRate);
}
template <class Part> long long priceVatIncluded(const Part &part)
{
    const bool isWhole = !part.vatExcluded || part.amount % 10 == 0;
    return isWhole ? part.amountVatIncluded() : Vat::addVat(part.amount, part.vatRate);
}

/** As PartGetter, for a record whose value is not in a part; members only. */
template <auto member> struct Getter;
template <class Record, class Type, Type Record::*member> struct Getter<member> {
    /** `record` must be a Record, nothing checks it. */
    static Value get(const void *record) { return Value(static_cast<const Record *>(record)->*member); }
};
/** The value of the record's own member. */
template <auto member> constexpr auto value = &Getter<member>::get;

/** A property of a part that is a PropertyMap: empty when it has none. */
template <auto part, const char *key> struct PropertyOf;
template <class Record, class Part, Part Record::*part, const char *key> struct PropertyOf<part, key> {
    /** An empty text, not null, when there is none. */
    static Value get(const void *record)
    {
        return Value((static_cast<const Record *>(record)->*part).property(QLatin1String(key)).toString());
    }
    /**
     * Reads by the field's choices or type and stores a text, dates as ISO 8601; an empty value removes the key.
     * @param record  the Part itself, not the record that holds it
     * @return false, with the problem told and the part unchanged, for a value that does not fit
     */
    static bool set(void *record, const ValueReader &reader, const Field &field, const QString &value)
    {
        QString text;
        if (!value.isEmpty() && field.choices) {
            if (!reader.word(field.name, field.choices, value, text))
                return false;
        } else if (!value.isEmpty() && field.type == ValueType::date) {
            QDate date;
            if (!reader.date(field.name, value, date))
                return false;
            text = date.toString(Qt::ISODate);
        } else if (!reader.text(field.name, field.type, value, text)) {
            return false;
        }
        static_cast<Part *>(record)->setPropertyIfNotEmpty(QLatin1String(key), text);
        return true;
    }
    /** A word of choices: not set when it is empty. */
    static Value getWord(const void *record)
    {
        const Value value = get(record);
        return value.toText().isEmpty() ? Value() : value;
    }
    /** A date that is stored as a text. */
    static Value getDate(const void *record) { return Value(QDate::fromString(get(record).toText(), Qt::ISODate)); }
};

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

#ifndef VALUETYPE_H
#define VALUETYPE_H

/** What a field holds or an option takes: how it is read, and how it is written in each form of output. */
enum class ValueType {
    text,     ///< may hold LF and tab, no other control characters
    word,     ///< one of the field's choices
    flag,     ///< yes or no; as an option it stands alone
    integer,  ///< 32 bits
    id,       ///< of the database
    money,    ///< cents, always two decimals
    price,    ///< four decimals, two shown at least
    quantity, ///< four decimals
    percent,  ///< two decimals
    date,     ///< without a time; `2026-03-31` in the machine forms
    period,   ///< one day up to all days; options only
    file,     ///< a name; `-` is standard input or output where the command says so
    secret,   ///< never echoed
    fields,   ///< names of fields, separated by commas; options only
    row,      ///< the grammar of RowWords; options only
    records,  ///< a list of records of another table
    bank,     ///< an IBAN or BIC: blanks and letter case do not matter
    customer, ///< references to records; options only
    product,
    account,
    layout,
    invoice,
    invoices, ///< numbers and ranges
    payment,
    position, ///< of a row on its invoice
    setting,  ///< a key
    command,
};

/** The name of a type for `describe`, "money"; a pointer to static text. */
const char *valueTypeName(ValueType type);
/** Decimals that the type holds: 4, 2, or 0 for a type that is no decimal number. */
int fractionDigits(ValueType type);
/** Decimals that are always written. */
int minFractionDigits(ValueType type);
inline bool isDecimal(ValueType type) { return fractionDigits(type) > 0; }

#endif

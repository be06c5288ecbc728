#ifndef VALUEWRITER_H
#define VALUEWRITER_H

#include "bytegatherer.h"
#include "field.h"

#include <QString>

/** Writes values as text, for programs and for people. */
namespace ValueWriter {

/** The plain form of JSON strings, CSV and pipes: `2183.70`, `2026-03-31`, `true`; nothing for what is not set. */
QString plain(const Field &field, const Value &value);
/** Appends the JSON form in UTF-8: decimals are strings. Nested records are not its business. */
void appendJson(ByteGatherer &target, const Field &field, const Value &value);
/** Appends a quoted JSON string in UTF-8, control characters escaped. */
void appendJsonString(ByteGatherer &target, const QString &text);
/** As people of the run's language write it: `2 183,70`, `16.3.2026`, `kyllä`. */
QString forPeople(const Field &field, const Value &value);

/** A scaled number in plain decimals, at least so many of them. */
QString plainDecimal(long long number, int digits, int minDigits);
/** Cents as people write sums, with the currency: `2 183,70 €`. */
QString money(long long cents);
/** A date as people write it. */
QString date(const QDate &date);

/** Whether columns of the type stand at the right. */
bool isRightAligned(ValueType type);

} // namespace ValueWriter

#endif

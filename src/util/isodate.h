#ifndef ISODATE_H
#define ISODATE_H

#include <QDate>
#include <QString>

/**
 * Dates in the form of ISO 8601, "yyyy-MM-dd", of the years 1 to 9999. Large searches read and write several dates a
 * record; the library's general conversions would take a third of their time.
 */
namespace IsoDate {

/** @return an invalid date when the text has another form or names no real day */
QDate parse(const QString &text);

/** Appends ten characters, nothing for a date outside the range. */
void appendTo(QString &target, const QDate &date);

} // namespace IsoDate

#endif

#ifndef CALENDAR_H
#define CALENDAR_H

#include <QDate>

/** The day of the computer's time zone. */
namespace Calendar {

/**
 * As QDate::currentDate(), which looks at the time zone's file several times at each call. A zone set or a clock moved
 * while the program runs counts from the next quarter of an hour on.
 */
QDate today();

} // namespace Calendar

#endif

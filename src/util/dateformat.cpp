#include "dateformat.h"

#include "calendar.h"

DateFormat::DateFormat()
    : m_dayMonthYear(QStringLiteral("^(\\d{1,2})[\\.,](\\d{1,2})[\\.,](\\d{4})$")),
      m_dayMonth(QStringLiteral("^(\\d{1,2})[\\.,](\\d{1,2})[\\.,]?$")),
      m_eightDigits(QStringLiteral("^(\\d{2})(\\d{2})(\\d{4})$")), m_fourDigits(QStringLiteral("^(\\d{2})(\\d{1,2})$")),
      m_day(QStringLiteral("^(\\d{1,2})[\\.,]?$"))
{
}

QDate DateFormat::parse(const QString &text) const
{
    const QDate today = Calendar::today();
    const struct {
        const QRegExp &pattern;
        bool month, year;
    } shapes[] = {
        {m_dayMonthYear, true, true}, {m_dayMonth, true, false}, {m_eightDigits, true, true},
        {m_fourDigits, true, false},  {m_day, false, false},
    };
    for (const auto &shape : shapes) {
        QRegExp pattern = shape.pattern; // matching changes the expression
        if (!pattern.exactMatch(text))
            continue;
        return QDate(shape.year ? pattern.cap(3).toInt() : today.year(),
                     shape.month ? pattern.cap(2).toInt() : today.month(), pattern.cap(1).toInt());
    }
    return QDate();
}

QString DateFormat::format(const QDate &date) const { return date.toString(QStringLiteral("d.M.yyyy")); }

#ifndef DATEFORMAT_H
#define DATEFORMAT_H

#include <QDate>
#include <QRegExp>
#include <QString>

/** Reads and writes dates in the Finnish day-first form, "5.3.2015" and its abbreviations. */
class DateFormat {
public:
    /** Compiles the patterns: one object serves many dates. */
    DateFormat();

    /**
     * Reads `5.3.2015`, `5.3.`, `05032015`, `0503` or `5`; "," serves as "." does. A missing year or month is the
     * current one, never rolled. Blanks around the text are not accepted.
     * @return an invalid date when the text is not understood or names no real day
     */
    QDate parse(const QString &text) const;

    /** @return "d.M.yyyy", empty for an invalid date */
    QString format(const QDate &date) const;

private:
    // In the order of trying: the first that matches the whole text decides.
    QRegExp m_dayMonthYear, m_dayMonth, m_eightDigits, m_fourDigits, m_day;
};

#endif

#ifndef VALUEREADER_H
#define VALUEREADER_H

#include "valuetype.h"

#include <QDate>
#include <QString>
#include <QStringList>

struct Choice;
struct Problem;

/** Where readers tell what is wrong. */
class ProblemSink {
public:
    virtual ~ProblemSink() = default;
    /** Takes the problem that ends the command. @return false, so that a failing operation ends in one line */
    virtual bool fail(const Problem &problem) = 0;
};

/** From the first to the last day, both included; an invalid date is no limit. */
struct Period {
    QDate from, to; ///< from is not after to
};

/**
 * Reads values as people write them. Each reader stores the result and returns true, or tells a problem that names the
 * field and the value, leaves the result alone and returns false. Nothing is rounded, cut or guessed.
 */
class ValueReader {
public:
    /** @param sink  belongs to the caller. @param today  what relative dates count from */
    ValueReader(ProblemSink &sink, const QDate &today) : m_sink(sink), m_today(today) {}

    const QDate &today() const { return m_today; } ///< what relative dates count from

    /** As it is; a bank type without its blanks and in upper case. Control characters but LF and TAB are refused. */
    bool text(const QString &name, ValueType type, const QString &value, QString &result) const;
    /** One of the choices, letter case aside. */
    bool word(const QString &name, const Choice *choices, const QString &value, QString &result) const;
    /** Whether a text is a yes of flag(). */
    static bool isTrue(const QString &value);
    /** Whether it is either. */
    static bool isYesOrNo(const QString &value);
    /** `true yes y 1 kyllä k`, `false no n 0 ei e`. */
    bool flag(const QString &name, const QString &value, bool &result) const;
    /**
     * A whole or decimal number of the type's scale: a point or a comma before the decimals, blanks between thousands,
     * `€` or `%` behind.
     */
    bool number(const QString &name, ValueType type, const QString &value, int &result) const;
    bool number(const QString &name, ValueType type, const QString &value, long long &result) const;
    /** `2026-03-31`, `31.3.2026`, `31.3.`, `today`, `yesterday`, `tomorrow`, `+14d`, `-1m`; empty clears if allowed. */
    bool date(const QString &name, const QString &value, QDate &result, bool clearable = false) const;
    /** A date, `2026`, `2026-03`, `3/2026`, `2026q1`, `A..B`, `this-month`, `last-month`, `this-year`, `last-year`. */
    bool period(const QString &name, const QString &value, Period &result) const;

    /**
     * A payment reference: national (3 to 19 digits and the check digit; `#` at the end is replaced by it) or RF (ISO
     * 11649). Blanks do not matter; an empty value is accepted.
     */
    bool reference(const QString &name, const QString &value, QString &result) const;

    /** Tells that a value is wrong. @param reason  a sentence in the language of the run. @return false */
    bool failValue(const QString &name, const QString &value, const QString &reason,
                   const QStringList &suggestions = {}) const;
    bool fail(const Problem &problem) const { return m_sink.fail(problem); }

private:
    bool parseDate(const QString &value, QDate &result) const;    ///< without telling a problem
    bool parsePeriod(const QString &value, Period &result) const; ///< without telling a problem

    ProblemSink &m_sink; ///< not owned
    QDate m_today;
};

#endif

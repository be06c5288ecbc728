#ifndef PARAMETERTABLE_H
#define PARAMETERTABLE_H

#include "commandcontext.h"
#include "parameterlist.h"

/**
 * The parameter keys of a command as a table. State is what the parameters build; for a saving command it has a member
 * `record`.
 */
template <class State> struct Parameter {
    const char *key; ///< a literal; letter case counts
    /** @return false with the status set. */
    bool (*apply)(CommandContext &, const QString &key, const QString &value, State &);
    bool editOnly = false; ///< unknown to the add command
};

/** Applies the parameters in the order of the words; the first failure ends it, with the status set. */
template <class State, std::size_t n>
[[nodiscard]] bool applyParameters(CommandContext &context, const ParameterList &parameters,
                                   const Parameter<State> (&table)[n], SaveCommandMode mode, State &state)
{
    for (const auto &[key, value] : parameters) {
        const Parameter<State> *known = nullptr;
        for (const Parameter<State> &candidate : table) {
            if (key == QLatin1String(candidate.key) && (mode == SaveCommandMode::edit || !candidate.editOnly))
                known = &candidate;
        }
        if (!known)
            return context.status.failUnknownParameter(key);
        if (!known->apply(context, key, value, state))
            return false;
    }
    return true;
}

namespace Parameters {

// Rows of the tables that store a value in a member of the record.

/** As it is, also an empty one; never fails. */
template <auto member, class State> bool text(CommandContext &, const QString &, const QString &value, State &state)
{
    state.record.*member = value;
    return true;
}

/** Signed, 32 bits. */
template <auto member, class State>
bool integer(CommandContext &context, const QString &key, const QString &value, State &state)
{
    return context.values.parseIntValue(key, value, state.record.*member);
}

/** ISO 8601, yyyy-MM-dd; no empty date. */
template <auto member, class State>
bool date(CommandContext &context, const QString &key, const QString &value, State &state)
{
    return context.values.parseDateValue(key, value, state.record.*member);
}

/** Scaled by 10^fractionDigits, cut beyond; "," and "." both serve. */
template <auto member, int fractionDigits, class State>
bool decimal(CommandContext &context, const QString &key, const QString &value, State &state)
{
    return context.values.parseDecimalNumberValue(key, value, fractionDigits, state.record.*member);
}

/** See ValueParser::parseReferenceNumber(). */
template <auto member, class State>
bool referenceNumber(CommandContext &context, const QString &key, const QString &value, State &state)
{
    return context.values.parseReferenceNumber(key, value, state.record.*member);
}

} // namespace Parameters

#endif

#ifndef JSONARGUMENTS_H
#define JSONARGUMENTS_H

#include "arguments.h"
#include "valuereader.h"

#include <QByteArray>

/**
 * A JSON object as what a command was given: its members are fields and options, `rows` an array of such objects.
 * Numbers are taken as the text that they are, so that 14.50 is exactly that; null empties a field. What is wrong is a
 * problem `bad-json`, or `bad-value` of the member that holds what no field can be.
 */
namespace JsonArguments {

/** A line of a batch: `command`, `args`, `as` and `key`; the others are refused. */
struct Line {
    QString command, as, key; ///< null when not given; `as` names the record for later lines
    Arguments arguments;      ///< empty without `args`
};

/** UTF-8. @return false with the problem told; what was read before it is in the arguments */
[[nodiscard]] bool readObject(const ValueReader &reader, const QByteArray &json, Arguments &arguments);
/** Without its end of line. Members of other names are a problem, as is one without `command`. */
[[nodiscard]] bool readLine(const ValueReader &reader, const QByteArray &json, Line &line);

} // namespace JsonArguments

#endif

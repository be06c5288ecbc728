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
    QString command, as, key;
    Arguments arguments;
};

[[nodiscard]] bool readObject(const ValueReader &reader, const QByteArray &json, Arguments &arguments);
[[nodiscard]] bool readLine(const ValueReader &reader, const QByteArray &json, Line &line);

} // namespace JsonArguments

#endif

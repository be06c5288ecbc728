#ifndef DESCRIPTION_H
#define DESCRIPTION_H

#include "command.h"

#include <QString>

class JsonWriter;

/** What programs are told of the program itself, made of the table of commands and fields. */
namespace Description {

/** The version of the machine forms: fields, codes and words stay within one. */
constexpr int schemaVersion = 1;

/** Everything, or a single command when one is given. */
void write(JsonWriter &json, const Command *only);

/** The record of a name, null for none. */
const RecordTable *record(const QString &name);
QStringList recordNames();
/** JSON Schema (2020-12) of a record as a command answers with it. */
void writeSchema(JsonWriter &json, const RecordTable &table);

/** JSON Schema of what a command takes. */
void writeInputSchema(JsonWriter &json, const Command &command);
/** JSON Schema of a command's structured answer: a record, or an object with `records`. */
void writeOutputSchema(JsonWriter &json, const Command &command);

} // namespace Description

#endif

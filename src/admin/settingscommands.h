#ifndef SETTINGSCOMMANDS_H
#define SETTINGSCOMMANDS_H

#include "commandcontext.h"

#include <QStringList>

// Each takes its parameters off the words and answers with `setting` records, or leaves a failure in the status.

/** The given keys (key=NAME), or all that have a value. */
void parseFindSettingsCommand(CommandContext &context, QStringList &args);
/** Stores all given values, or none when one of them is wrong. */
void parseEditSettingsCommand(CommandContext &context, QStringList &args);

#endif

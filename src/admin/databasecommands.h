#ifndef DATABASECOMMANDS_H
#define DATABASECOMMANDS_H

#include "commandcontext.h"

#include <QStringList>

// Each takes its parameters off the words and answers with one response, or leaves a failure in the status.

void parseCreateDatabaseCommand(CommandContext &context, QStringList &args);
void parseFindDatabasesCommand(CommandContext &context, QStringList &args);
/** Makes a database of the list the last used one. */
void parseSelectDatabaseCommand(CommandContext &context, QStringList &args);
/** Takes a database off the list; the database itself stays. */
void parseForgetDatabaseCommand(CommandContext &context, QStringList &args);

#endif

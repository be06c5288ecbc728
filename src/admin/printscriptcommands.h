#ifndef PRINTSCRIPTCOMMANDS_H
#define PRINTSCRIPTCOMMANDS_H

#include "commandcontext.h"

#include <QStringList>

// The print scripts stored in the database. Each takes its parameters off the words and answers with one response, or
// leaves a failure in the status.

void parseFindPrintScriptsCommand(CommandContext &context, QStringList &args);
/** Stores a script file; one with a syntax error is refused with its line number. */
void parseSavePrintScriptCommand(CommandContext &context, QStringList &args, SaveCommandMode mode);
/** Writes a stored script, or a built-in invoice layout by its name, to a file that does not exist yet. */
void parseExportPrintScriptCommand(CommandContext &context, QStringList &args);
void parseRemovePrintScriptsCommand(CommandContext &context, QStringList &args);
/** Chooses the script that prints invoices; without a lookup the built-in one. */
void parseSelectInvoiceScriptCommand(CommandContext &context, QStringList &args);

#endif

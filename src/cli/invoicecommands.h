#ifndef INVOICECOMMANDS_H
#define INVOICECOMMANDS_H

#include "commandcontext.h"

#include <QStringList>

// Each takes its parameters off the words and answers with one response, or leaves a failure in the status.

/** The invoice as saved, total and balance up to date, is the answer. */
void parseSaveInvoiceCommand(CommandContext &context, QStringList &args, SaveCommandMode mode);
/** Removing takes rows and payments along; keys that restrict nothing are refused, no keys at all mean everything. */
void parseFindInvoicesCommand(CommandContext &context, QStringList &args, FindCommandMode mode);

#endif

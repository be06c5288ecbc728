#ifndef INVOICECOMMANDS_H
#define INVOICECOMMANDS_H

#include "commandcontext.h"

#include <QStringList>

// Each takes its parameters off the words and answers with one response, or leaves a failure in the status.

void parseSaveInvoiceCommand(CommandContext &context, QStringList &args, SaveCommandMode mode);
void parseFindInvoicesCommand(CommandContext &context, QStringList &args, FindCommandMode mode);

#endif

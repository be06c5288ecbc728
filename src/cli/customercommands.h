#ifndef CUSTOMERCOMMANDS_H
#define CUSTOMERCOMMANDS_H

#include "commandcontext.h"

#include <QStringList>

// Each takes its parameters off the words and answers with one response, or leaves a failure in the status.

void parseSaveCustomerCommand(CommandContext &context, QStringList &args, SaveCommandMode mode);
void parseFindCustomersCommand(CommandContext &context, QStringList &args, FindCommandMode mode);

#endif

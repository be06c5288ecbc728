#ifndef CUSTOMERCOMMANDS_H
#define CUSTOMERCOMMANDS_H

#include "commandcontext.h"

#include <QStringList>

// Each takes its parameters off the words and answers with one response, or leaves a failure in the status.

/** A customer added without a number gets the next one. The customer as saved is the answer. */
void parseSaveCustomerCommand(CommandContext &context, QStringList &args, SaveCommandMode mode);
/** Answers with the customers, or with the number of those removed. Without keys all are meant. */
void parseFindCustomersCommand(CommandContext &context, QStringList &args, FindCommandMode mode);

#endif

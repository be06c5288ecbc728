#ifndef PAYMENTCOMMANDS_H
#define PAYMENTCOMMANDS_H

#include "commandcontext.h"

#include <QStringList>

// Each takes its parameters off the words and answers with one response, or leaves a failure in the status.

void parseSavePaymentCommand(CommandContext &context, QStringList &args, SaveCommandMode mode);
void parseFindPaymentsCommand(CommandContext &context, QStringList &args, FindCommandMode mode);

#endif

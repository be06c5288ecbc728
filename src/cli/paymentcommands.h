#ifndef PAYMENTCOMMANDS_H
#define PAYMENTCOMMANDS_H

#include "commandcontext.h"

#include <QStringList>

// Each takes its parameters off the words and answers with one response, or leaves a failure in the status.

/**
 * In one transaction with the invoice's balance; of today unless the date is given. A payment whose invoice is gone
 * stays saved, with a failure.
 */
void parseSavePaymentCommand(CommandContext &context, QStringList &args, SaveCommandMode mode);
/**
 * Removing leaves the balances of invoices as they are. Keys that restrict nothing are refused, no keys at all mean
 * all.
 */
void parseFindPaymentsCommand(CommandContext &context, QStringList &args, FindCommandMode mode);

#endif

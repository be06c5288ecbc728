#ifndef INVOICEITEMCOMMANDS_H
#define INVOICEITEMCOMMANDS_H

#include "commandcontext.h"

#include <QStringList>

// Each takes its parameters off the words and answers with one response, or leaves a failure in the status.

/**
 * In one transaction with the invoice's total. A total beyond 32 bits of cents leaves nothing saved; a row whose
 * invoice is gone stays saved, with a failure.
 */
void parseSaveInvoiceItemCommand(CommandContext &context, QStringList &args, SaveCommandMode mode);
/** --remove-invoice-items; the invoice's totals are brought up to date by its next row or payment command. */
void parseRemoveInvoiceItemCommand(CommandContext &context, QStringList &args);

#endif

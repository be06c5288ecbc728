#ifndef IMPORTCOMMANDS_H
#define IMPORTCOMMANDS_H

#include "commandcontext.h"

#include <QStringList>

/**
 * Reads a bank's payment file and saves the payments of invoices, all or none, answering with one `importedPayment`
 * record for each payment of the file. With the flag dryRun nothing is saved. The exit code is 3 when a record of the
 * file was damaged.
 */
void parseImportPaymentsCommand(CommandContext &context, QStringList &args);

#endif

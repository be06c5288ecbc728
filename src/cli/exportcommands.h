#ifndef EXPORTCOMMANDS_H
#define EXPORTCOMMANDS_H

#include "commandcontext.h"

#include <QStringList>

// Each takes its parameters off the words and answers with one response of `file` records, or leaves a failure in the
// status.

/** Invoices, one PDF or Finvoice file each, or all in one CSV file. */
void parseExportInvoicesCommand(CommandContext &context, QStringList &args);

enum class ListKind { invoices = 0, customers = 1, products = 2, payments = 3 };

/** A list as one PDF or CSV file. */
void parseExportPrintCommand(CommandContext &context, QStringList &args, ListKind kind);

#endif

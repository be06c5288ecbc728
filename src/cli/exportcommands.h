#ifndef EXPORTCOMMANDS_H
#define EXPORTCOMMANDS_H

#include "commandcontext.h"
#include "exportlist.h"

#include <QStringList>

// Each takes its parameters off the words and answers with one response of `file` records, or leaves a failure in the
// status.

/** Invoices, one PDF or Finvoice file each, or all in one CSV file. */
void parseExportInvoicesCommand(CommandContext &context, QStringList &args);

/** A list as one PDF or CSV file. */
void parseExportPrintCommand(CommandContext &context, QStringList &args, ExportList::Kind kind);

#endif

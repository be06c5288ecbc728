#ifndef EXPORTCOMMANDS_H
#define EXPORTCOMMANDS_H

#include "commandcontext.h"

#include <QStringList>

/** Writes invoices to files, one each. Takes its parameters off the words and answers with one response. */
void parseExportInvoicesCommand(CommandContext &context, QStringList &args);

#endif

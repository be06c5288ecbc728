#ifndef PRODUCTCOMMANDS_H
#define PRODUCTCOMMANDS_H

#include "commandcontext.h"

#include <QStringList>

// Each takes its parameters off the words and answers with one response, or leaves a failure in the status.

void parseSaveProductCommand(CommandContext &context, QStringList &args, SaveCommandMode mode);
void parseFindProductsCommand(CommandContext &context, QStringList &args, FindCommandMode mode);

#endif

#ifndef PRODUCTCOMMANDS_H
#define PRODUCTCOMMANDS_H

#include "commandcontext.h"

#include <QStringList>

// Each takes its parameters off the words and answers with one response, or leaves a failure in the status.

/** Prices are as typed, with or without VAT by the key; the product as saved is the answer. */
void parseSaveProductCommand(CommandContext &context, QStringList &args, SaveCommandMode mode);
/** Answers with the products, or with the number of those removed. Without keys all are meant. */
void parseFindProductsCommand(CommandContext &context, QStringList &args, FindCommandMode mode);

#endif

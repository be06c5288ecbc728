#ifndef BANKACCOUNTCOMMANDS_H
#define BANKACCOUNTCOMMANDS_H

#include "commandcontext.h"

#include <QStringList>

// Each takes its parameters off the words and answers with one response, or leaves a failure in the status.

void parseSaveBankAccountCommand(CommandContext &context, QStringList &args, SaveCommandMode mode);
void parseFindBankAccountsCommand(CommandContext &context, QStringList &args, FindCommandMode mode);

#endif

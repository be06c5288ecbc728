#ifndef BANKACCOUNTCOMMANDS_H
#define BANKACCOUNTCOMMANDS_H

#include "commandcontext.h"

#include <QStringList>

// Each takes its parameters off the words and answers with one response, or leaves a failure in the status.

/** Add needs a name; edit looks the account up by id or name. The account as saved is the answer. */
void parseSaveBankAccountCommand(CommandContext &context, QStringList &args, SaveCommandMode mode);
/** Answers with the accounts, or with the number of those removed. Without keys all are meant. */
void parseFindBankAccountsCommand(CommandContext &context, QStringList &args, FindCommandMode mode);

#endif

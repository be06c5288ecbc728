#ifndef MAINTENANCECOMMANDS_H
#define MAINTENANCECOMMANDS_H

#include "commandcontext.h"

#include <QStringList>

// Each takes its parameters off the words and answers with one response, or leaves a failure in the status.

/**
 * Looks database and books over and answers with one `finding` record each. The exit code is 2 when something is
 * found. With the flag repairTotals wrong totals and balances are set right.
 */
void parseCheckDatabaseCommand(CommandContext &context, QStringList &args);
/** Adds missing indexes (one `index` record each) and refreshes the planner's statistics. */
void parseOptimizeDatabaseCommand(CommandContext &context, QStringList &args);
/** Copies an SQLite database to a new file while others may write. */
void parseBackupDatabaseCommand(CommandContext &context, QStringList &args);

#endif

#ifndef COMMANDGROUPS_H
#define COMMANDGROUPS_H

#include "command.h"

#include <QVector>

// The commands of each noun are a table in a file of its own.

CommandGroup wholeCompanyCommands(); ///< init, status, check, backup, optimize: no noun of their own
CommandGroup archiveCommands();      ///< archive
/** Tables with static lifetime, each in the order in which help lists them. */
CommandGroup invoiceCommands();
CommandGroup invoiceDocumentCommands(); ///< invoice check, invoice export
CommandGroup rowCommands();
CommandGroup customerCommands();
CommandGroup productCommands();
CommandGroup accountCommands();
CommandGroup paymentCommands();
CommandGroup reportCommands();
CommandGroup journalCommands();
CommandGroup layoutCommands();
CommandGroup companyCommands();
CommandGroup settingsCommands();
CommandGroup programCommands(); ///< completion, help

/** All of them, in the order of the help. */
QVector<CommandGroup> commandGroups();

#endif

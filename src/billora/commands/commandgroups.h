#ifndef COMMANDGROUPS_H
#define COMMANDGROUPS_H

#include "command.h"

#include <QVector>

// The commands of each noun are a table in a file of its own.

CommandGroup wholeCompanyCommands(); ///< init, status, check, backup, optimize
CommandGroup invoiceCommands();
CommandGroup rowCommands();
CommandGroup customerCommands();
CommandGroup productCommands();
CommandGroup accountCommands();
CommandGroup paymentCommands();
CommandGroup reportCommands();
CommandGroup layoutCommands();
CommandGroup companyCommands();
CommandGroup settingsCommands();
CommandGroup programCommands(); ///< completion, help

QVector<CommandGroup> commandGroups();

#endif

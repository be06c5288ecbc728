#include "commandgroups.h"

QVector<CommandGroup> commandGroups() { return {invoiceCommands(), customerCommands(), programCommands()}; }

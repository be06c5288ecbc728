#include "commandgroups.h"

QVector<CommandGroup> commandGroups() { return {invoiceCommands(), customerCommands(), productCommands(), accountCommands(), paymentCommands(), programCommands()}; }

#include "commandgroups.h"

QVector<CommandGroup> commandGroups()
{
    return {wholeCompanyCommands(), archiveCommands(), invoiceCommands(),  rowCommands(),    customerCommands(),
            productCommands(),      accountCommands(), paymentCommands(),  reportCommands(), journalCommands(),
            layoutCommands(),       companyCommands(), settingsCommands(), programCommands()};
}

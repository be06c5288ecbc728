#include "commandgroups.h"

QVector<CommandGroup> commandGroups()
{
    return {wholeCompanyCommands(), archiveCommands(), invoiceCommands(), invoiceDocumentCommands(), rowCommands(),
            customerCommands(),     productCommands(), accountCommands(), paymentCommands(),         reportCommands(),
            journalCommands(),      layoutCommands(),  companyCommands(), settingsCommands(),        programCommands()};
}

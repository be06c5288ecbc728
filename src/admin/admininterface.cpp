#include "admininterface.h"

#include "databasecommands.h"
#include "importcommands.h"
#include "maintenancecommands.h"
#include "printscriptcommands.h"
#include "settingscommands.h"

// A resource in a static library is linked only when it is named; the macro does not work inside a namespace or class.
static void initAdminHelpResource() { Q_INIT_RESOURCE(adminhelp); }

namespace {

constexpr Command commands[] = {
    {"--create-database", "create-database", call<parseCreateDatabaseCommand>},
    {"--find-databases", "find-databases", call<parseFindDatabasesCommand>},
    {"--select-database", "select-database", call<parseSelectDatabaseCommand>},
    {"--forget-database", "forget-database", call<parseForgetDatabaseCommand>},
    {"--find-settings", "find-settings", call<parseFindSettingsCommand>},
    {"--edit-settings", "edit-settings", call<parseEditSettingsCommand>},
    {"--find-print-scripts", "find-print-scripts", call<parseFindPrintScriptsCommand>},
    {"--add-print-script", "add-print-script", call<parseSavePrintScriptCommand, SaveCommandMode::add>},
    {"--edit-print-script", "edit-print-script", call<parseSavePrintScriptCommand, SaveCommandMode::edit>},
    {"--export-print-script", "export-print-script", call<parseExportPrintScriptCommand>},
    {"--remove-print-scripts", "remove-print-scripts", call<parseRemovePrintScriptsCommand>},
    {"--select-invoice-script", "select-invoice-script", call<parseSelectInvoiceScriptCommand>},
    {"--import-payments", "import-payments", call<parseImportPaymentsCommand>},
    {"--check-database", "check-database", call<parseCheckDatabaseCommand>},
    {"--optimize-database", "optimize-database", call<parseOptimizeDatabaseCommand>},
    {"--backup-database", "backup-database", call<parseBackupDatabaseCommand>},
};

} // namespace

AdminInterface::AdminInterface(QObject *parent)
    : CommandInterface(QStringLiteral("Billora Admin"), QStringLiteral(":/admin-help.txt"), parent)
{
    initAdminHelpResource();
}

const Command *AdminInterface::findCommand(const QString &word) const { return findIn(commands, word); }

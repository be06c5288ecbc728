#include "admininterface.h"

#include "databasecommands.h"
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
};

} // namespace

AdminInterface::AdminInterface(QObject *parent)
    : CommandInterface(QStringLiteral("Billora Admin"), QStringLiteral(":/admin-help.txt"), parent)
{
    initAdminHelpResource();
}

const Command *AdminInterface::findCommand(const QString &word) const { return findIn(commands, word); }

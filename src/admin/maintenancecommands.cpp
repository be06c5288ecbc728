#include "maintenancecommands.h"

#include "database.h"
#include "databasecheck.h"
#include "parametertable.h"
#include "writetransaction.h"

#include <QDir>
#include <QFileInfo>

namespace {

struct Options {
    bool repairTotals = false;
    QString fileName;
};

bool repairTotals(CommandContext &, const QString &, const QString &, Options &options)
{
    options.repairTotals = true;
    return true;
}

bool fileName(CommandContext &, const QString &, const QString &value, Options &options)
{
    options.fileName = QDir::fromNativeSeparators(value);
    return true;
}

constexpr Parameter<Options> checkParameters[] = {{"repairTotals", repairTotals}};
constexpr Parameter<Options> backupParameters[] = {{"filename", fileName}};

bool runCheck(CommandContext &context, DatabaseCheck &check, bool repair)
{
    if (!repair)
        return check.run() || context.status.fail(ExitCode::databaseFailure, check.lastError());
    WriteTransaction transaction(context.session);
    if (!transaction.hasBegun())
        return false;
    if (!check.run() || !check.repairTotals())
        return context.status.fail(ExitCode::databaseFailure, check.lastError());
    return transaction.commit();
}

} // namespace

void parseCheckDatabaseCommand(CommandContext &context, QStringList &args)
{
    if (!context.session.ensureOpen())
        return;
    Options options;
    if (!applyParameters(context, parseParameters(args), checkParameters, SaveCommandMode::edit, options))
        return;
    DatabaseCheck check = context.session.database()->check();
    if (!runCheck(context, check, options.repairTotals))
        return;
    context.response.startResponse(QStringLiteral("OK"));
    for (const Finding &finding : check.findings()) {
        context.response.startRecord(QStringLiteral("finding"));
        context.response.printProperty("check", QString::fromLatin1(finding.check));
        context.response.printProperty("table", finding.table);
        context.response.printProperty("id", finding.id);
        context.response.printProperty("message", finding.message);
        context.response.endRecord();
    }
    context.response.endResponse();
    if (check.openCount() > 0)
        context.status.endAnswered(ExitCode::databaseFailure);
}

void parseOptimizeDatabaseCommand(CommandContext &context, QStringList &args)
{
    if (!context.session.ensureOpen())
        return;
    const ParameterList words = parseParameters(args);
    if (!words.isEmpty()) {
        context.status.failUnknownParameter(words.first().first);
        return;
    }
    QStringList added;
    if (!context.session.database()->optimize(added)) {
        context.session.failDatabase();
        return;
    }
    context.response.startResponse(QStringLiteral("OK"));
    for (const QString &name : qAsConst(added)) {
        context.response.startRecord(QStringLiteral("index"));
        context.response.printProperty("name", name);
        context.response.endRecord();
    }
    context.response.endResponse();
}

void parseBackupDatabaseCommand(CommandContext &context, QStringList &args)
{
    if (!context.session.ensureOpen())
        return;
    Options options;
    if (!applyParameters(context, parseParameters(args), backupParameters, SaveCommandMode::edit, options))
        return;
    if (options.fileName.isEmpty()) {
        context.status.fail(ExitCode::badData, CommandContext::tr("Parametri filename on pakollinen"));
        return;
    }
    if (!context.session.database()->backupTo(options.fileName)) {
        context.session.failDatabase();
        return;
    }
    context.response.startResponse(QStringLiteral("OK"));
    context.response.startRecord(QStringLiteral("file"));
    context.response.printProperty("filename", QDir::toNativeSeparators(options.fileName));
    context.response.endRecord();
    context.response.endResponse();
}

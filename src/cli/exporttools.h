#ifndef EXPORTTOOLS_H
#define EXPORTTOOLS_H

#include "commandcontext.h"

class PrintModel;

/** What the exports of invoices and of lists share. */
namespace ExportTools {

/** The uncaught exception of a script host, with its line. */
template <class Host> QString exceptionText(const Host &host)
{
    return CommandContext::tr("%1 (rivi %2)").arg(host.exception(), QString::number(host.exceptionLineNumber()));
}

/** Checks what a load left in the host. @param loaded  whether the script could be read */
template <class Host> bool checkLoaded(CommandContext &context, const Host &host, bool loaded)
{
    if (!loaded)
        return context.status.fail(ExitCode::databaseFailure, CommandContext::tr("Tulostuspohjaa ei voi lukea"));
    if (host.hasException())
        return context.status.fail(ExitCode::badData, exceptionText(host));
    return host.isRunnable() ||
           context.status.fail(ExitCode::badData, CommandContext::tr("Tulostuspohjassa ei ole tulostavaa funktiota"));
}

/** Gathers the model's data, all of one moment. */
[[nodiscard]] bool runModel(CommandContext &context, PrintModel &model);

bool failWriting(CommandContext &context, const QString &fileName, const QString &reason);

/** Begins a `file` record; the caller ends it. */
void startFileRecord(ResponseWriter &response, const QString &fileName);

/** The answer of an export to one file. */
void answerFile(ResponseWriter &response, const QString &fileName);

} // namespace ExportTools

#endif

#ifndef EXPORTTOOLS_H
#define EXPORTTOOLS_H

#include "printformat.h"
#include "usecasecontext.h"

class PrintModel;

/** What the exports of invoices and of lists share. */
namespace ExportTools {

/** The arguments of Failure::scriptException. */
template <class Host> QStringList exception(const Host &host)
{
    return {host.exception(), QString::number(host.exceptionLineNumber())};
}

/** Checks what a load left in the host. @param loaded  whether the script could be read */
template <class Host> bool checkLoaded(UseCaseContext &context, const Host &host, bool loaded)
{
    if (!loaded)
        return context.listener.fail(Failure::scriptUnreadable);
    if (host.hasException())
        return context.listener.fail(Failure::scriptException, exception(host));
    return host.isRunnable() || context.listener.fail(Failure::scriptWithoutFunction);
}

/** Gathers the model's data, all of one moment. */
[[nodiscard]] bool runModel(UseCaseContext &context, PrintModel &model);

/** Tells that a file cannot be written. @return false */
bool failWriting(UseCaseContext &context, const QString &fileName, const QString &reason);

/** By the name's suffix; PDF for any other. */
PrintFormat guessFormat(const QString &fileName, bool allowFinvoice);

} // namespace ExportTools

#endif

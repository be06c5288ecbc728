#include "exporttools.h"

#include "printmodel.h"
#include "readtransaction.h"
#include "scripthost.h"

#include <QDir>

QStringList ExportTools::exception(const ScriptHost &host)
{
    return {host.exception(), QString::number(host.exceptionLineNumber())};
}

std::optional<ExportTools::LoadFailure> ExportTools::loadFailure(const ScriptHost &host, bool isLoaded)
{
    if (!isLoaded)
        return LoadFailure{Failure::scriptUnreadable, {}};
    if (host.hasException())
        return LoadFailure{Failure::scriptException, exception(host)};
    if (!host.isRunnable())
        return LoadFailure{Failure::scriptWithoutFunction, {}};
    return std::nullopt;
}

bool ExportTools::checkLoaded(UseCaseContext &context, const ScriptHost &host, bool isLoaded)
{
    const std::optional<LoadFailure> failure = loadFailure(host, isLoaded);
    return !failure || context.listener.fail(failure->code, failure->arguments);
}

bool ExportTools::runModel(UseCaseContext &context, PrintModel &model)
{
    const ReadTransaction transaction(context.session);
    return transaction.hasBegun() && (model.run() || context.session.failDatabase(model.lastError()));
}

bool ExportTools::failWriting(UseCaseContext &context, const QString &fileName, const QString &reason)
{
    return context.listener.fail(Failure::fileUnwritable, {QDir::toNativeSeparators(fileName), reason});
}

PrintFormat ExportTools::guessFormat(const QString &fileName, bool allowFinvoice)
{
    if (fileName.endsWith(QLatin1String(".csv"), Qt::CaseInsensitive))
        return csvFormat;
    if (allowFinvoice && fileName.endsWith(QLatin1String(".xml"), Qt::CaseInsensitive))
        return finvoiceFormat;
    return pdfFormat;
}

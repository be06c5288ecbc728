#include "exporttools.h"

#include "printmodel.h"
#include "readtransaction.h"

#include <QDir>

bool ExportTools::runModel(CommandContext &context, PrintModel &model)
{
    const ReadTransaction transaction(context.session);
    return transaction.hasBegun() && (model.run() || context.status.fail(ExitCode::databaseFailure, model.lastError()));
}

bool ExportTools::failWriting(CommandContext &context, const QString &fileName, const QString &reason)
{
    return context.status.fail(
        ExitCode::databaseFailure,
        CommandContext::tr("Tiedostoa %1 ei voi kirjoittaa: %2").arg(QDir::toNativeSeparators(fileName), reason));
}

void ExportTools::startFileRecord(ResponseWriter &response, const QString &fileName)
{
    response.startRecord(QStringLiteral("file"));
    response.printProperty("filename", QDir::toNativeSeparators(fileName));
}

void ExportTools::answerFile(ResponseWriter &response, const QString &fileName)
{
    response.startResponse(QStringLiteral("OK"));
    startFileRecord(response, fileName);
    response.endRecord();
    response.endResponse();
}

#include "exporttools.h"

#include "printmodel.h"
#include "readtransaction.h"

#include <QDir>

bool ExportTools::runModel(UseCaseContext &context, PrintModel &model)
{
    const ReadTransaction transaction(context.session);
    return transaction.hasBegun() && (model.run() || context.listener.fail(Failure::database, {model.lastError()}));
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

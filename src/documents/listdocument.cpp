#include "listdocument.h"

#include "customerlistprintmodel.h"
#include "exporttools.h"
#include "invoicelistprintmodel.h"
#include "paymentprintmodel.h"
#include "pdfprinter.h"
#include "printscriptmanager.h"
#include "productlistprintmodel.h"
#include "scriptloader.h"

#include <QDir>
#include <QFileInfo>

#include <limits>

namespace {

using ExportList::Request;

/** A list of any length is one document: 50,000 lines take ten seconds. */
constexpr int listTimeLimitMs = 30 * ScriptRunner::timeLimitMs;

/** What a list is made of. */
struct ListRow {
    const char *baseName;
    const char *script;
    /** Fetches what the list needs; null, with the failure told, when that fails. */
    std::unique_ptr<PrintModel> (*makeModel)(UseCaseContext &, const Request &);
};

/** Sets columns and order as asked for. */
template <class Model> void arrange(Model &model, const Request &request)
{
    if (request.columnFlags != 0)
        model.setColumnFlags(request.columnFlags);
    if (request.sort)
        model.sort(*request.sort);
}

std::unique_ptr<PrintModel> invoiceList(UseCaseContext &context, const Request &request)
{
    if (!context.session.fetch(CachedList::customers))
        return nullptr;
    auto model = std::make_unique<InvoiceListPrintModel>(&context.session.registry());
    request.invoices.copy(model->criteria());
    arrange(*model, request);
    return model;
}

std::unique_ptr<PrintModel> paymentList(UseCaseContext &context, const Request &request)
{
    if (!context.session.fetch(CachedList::bankAccounts) || !context.session.fetch(CachedList::customers))
        return nullptr;
    auto model = std::make_unique<PaymentPrintModel>(&context.session.registry());
    request.invoices.copy(model->invoiceCriteria());
    request.payments.copy(model->paymentCriteria());
    arrange(*model, request);
    return model;
}

std::unique_ptr<PrintModel> customerList(UseCaseContext &context, const Request &request)
{
    if (!context.session.fetch(CachedList::customers))
        return nullptr;
    auto model = std::make_unique<CustomerListPrintModel>(&context.session.registry());
    model->copyCustomersFromRegistry();
    if (request.sort)
        model->sort(*request.sort);
    return model;
}

std::unique_ptr<PrintModel> productList(UseCaseContext &context, const Request &request)
{
    if (!context.session.fetch(CachedList::products))
        return nullptr;
    auto model = std::make_unique<ProductListPrintModel>(&context.session.registry());
    model->copyProductsFromRegistry();
    if (request.sort)
        model->sort(*request.sort);
    return model;
}

// In the order of Kind.
constexpr ListRow lists[] = {
    {"laskuluettelo", "invoice-list", invoiceList},
    {"asiakasluettelo", "customer-list", customerList},
    {"tuoteluettelo", "product-list", productList},
    {"suorituspaivakirja", "payment-list", paymentList},
};

bool printList(UseCaseContext &context, const ListRow &list, const Request &request, const QString &fileName,
               PrintModel &model)
{
    PrintScriptManager manager;
    manager.script().setTimeLimit(listTimeLimitMs);
    if (!ExportTools::checkLoaded(context, manager, ScriptSource::builtIn(list.script).load(manager)))
        return false;
    manager.setOrientation(request.landscape ? QPrinter::Landscape : QPrinter::Portrait);
    const std::unique_ptr<QPrinter> printer = PdfPrinter::create(fileName);
    manager.print(printer.get(), &model, 0, std::numeric_limits<int>::max(), false);
    if (!manager.lastError().isEmpty())
        return ExportTools::failWriting(context, fileName, manager.lastError());
    return !manager.hasException() || context.listener.fail(Failure::scriptException, ExportTools::exception(manager));
}

} // namespace

bool ListDocument::make(UseCaseContext &context, ExportList::Kind kind, const Request &request, QString &fileName)
{
    const ListRow &list = lists[kind];
    if (!context.session.fetch(CachedList::settings))
        return false;
    const std::unique_ptr<PrintModel> model = list.makeModel(context, request);
    if (!model || !ExportTools::runModel(context, *model))
        return false;
    model->setToday(request.day);
    const bool csv = request.format.value_or(ExportTools::guessFormat(request.fileName, false)) == csvFormat;
    fileName = request.fileName;
    if (fileName.isEmpty())
        fileName = QLatin1String(list.baseName) + QLatin1String(csv ? ".csv" : ".pdf");
    if (request.keepsFiles && QFileInfo::exists(fileName))
        return context.listener.fail(Failure::fileExists, {fileName});
    if (request.isTrial)
        return true;
    if (request.makesFolders)
        QDir().mkpath(QFileInfo(fileName).path());
    if (csv && !model->exportToCSV(fileName, request.csvDelimiter))
        return ExportTools::failWriting(context, fileName, model->lastError());
    return csv || printList(context, list, request, fileName, *model);
}

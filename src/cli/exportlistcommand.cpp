#include "customerlistprintmodel.h"
#include "exportcommands.h"
#include "exporttools.h"
#include "invoicelistprintmodel.h"
#include "parameterlist.h"
#include "paymentprintmodel.h"
#include "pdfprinter.h"
#include "printscriptmanager.h"
#include "productlistprintmodel.h"
#include "scriptloader.h"

#include <QDir>

#include <limits>

namespace {

/** A list of any length is one document: 50,000 lines take ten seconds. */
constexpr int listTimeLimitMs = 30 * ScriptRunner::timeLimitMs;

struct ListExport;

struct Request {
    explicit Request(const ListExport &wanted) : list(wanted) {}

    const ListExport &list;
    InvoiceCriteria invoices;
    PaymentCriteria payments;
    int columnFlags = 0; ///< 0: no known column was given
    int sort = -1;
    bool landscape = false;
    QString fileName;
    int format = -1; ///< -1: guessed from the file name
    QString csvDelimiter = QStringLiteral(",");
};

/** What a list is made of; the place of a column's name is its number, for the flags and for sorting. */
struct ListExport {
    const char *baseName;
    const char *columns; ///< comma-separated
    bool takesInvoiceCriteria;
    bool takesPaymentCriteria;
    bool (ScriptLoader::*loadScript)(PrintScriptManager *) const;
    /** Fetches what the list needs; null, with the failure in the status, when that fails. */
    std::unique_ptr<PrintModel> (*makeModel)(CommandContext &, const Request &);
};

/** Sets columns and order as asked for. */
template <class Model> void arrange(Model &model, const Request &request)
{
    if (request.columnFlags != 0)
        model.setColumnFlags(request.columnFlags);
    if (request.sort >= 0)
        model.sort(request.sort);
}

std::unique_ptr<PrintModel> invoiceList(CommandContext &context, const Request &request)
{
    if (!context.session.fetch(CachedList::customers))
        return nullptr;
    auto model = std::make_unique<InvoiceListPrintModel>(&context.session.registry());
    request.invoices.copy(model->criteria());
    arrange(*model, request);
    return model;
}

std::unique_ptr<PrintModel> paymentList(CommandContext &context, const Request &request)
{
    if (!context.session.fetch(CachedList::bankAccounts) || !context.session.fetch(CachedList::customers))
        return nullptr;
    auto model = std::make_unique<PaymentPrintModel>(&context.session.registry());
    request.invoices.copy(model->invoiceCriteria());
    request.payments.copy(model->paymentCriteria());
    arrange(*model, request);
    return model;
}

std::unique_ptr<PrintModel> customerList(CommandContext &context, const Request &request)
{
    if (!context.session.fetch(CachedList::customers))
        return nullptr;
    auto model = std::make_unique<CustomerListPrintModel>(&context.session.registry());
    model->copyCustomersFromRegistry();
    if (request.sort >= 0)
        model->sort(request.sort);
    return model;
}

std::unique_ptr<PrintModel> productList(CommandContext &context, const Request &request)
{
    if (!context.session.fetch(CachedList::products))
        return nullptr;
    auto model = std::make_unique<ProductListPrintModel>(&context.session.registry());
    model->copyProductsFromRegistry();
    if (request.sort >= 0)
        model->sort(request.sort);
    return model;
}

// In the order of ListKind.
constexpr ListExport lists[] = {
    {"laskuluettelo",
     "number,date,dueDate,deliveryDate,customerNumber,customerName,totalAmountVatExcluded,totalVatAmount,"
     "totalAmountVatIncluded,balance",
     true, false, &ScriptLoader::loadInvoiceListScript, invoiceList},
    {"asiakasluettelo", "number,name,streetName,postCode,townName,country,contact", false, false,
     &ScriptLoader::loadCustomerListScript, customerList},
    {"tuoteluettelo", "number,name,unitCode,amount,category", false, false, &ScriptLoader::loadProductListScript,
     productList},
    {"suorituspaivakirja",
     "number,date,dueDate,deliveryDate,customerNumber,customerName,totalAmountVatIncluded,paymentAmount,paymentDate,"
     "bankAccount",
     true, true, &ScriptLoader::loadPaymentListScript, paymentList},
};

int columnNumber(const Request &request, const QString &name)
{
    return QString::fromLatin1(request.list.columns).split(QLatin1Char(',')).indexOf(name);
}

bool columns(CommandContext &, const QString &, const QString &value, Request &request)
{
    const QStringList names = value.split(QLatin1Char(','), Qt::SkipEmptyParts);
    for (const QString &name : names) {
        const int number = columnNumber(request, name);
        if (number >= 0)
            request.columnFlags |= 1 << number;
    }
    return true;
}

bool sort(CommandContext &, const QString &, const QString &value, Request &request)
{
    request.sort = columnNumber(request, value); // an unknown name leaves the list's own order
    return true;
}

bool landscape(CommandContext &, const QString &, const QString &, Request &request)
{
    request.landscape = true;
    return true;
}

bool fileName(CommandContext &, const QString &, const QString &value, Request &request)
{
    request.fileName = QDir::fromNativeSeparators(value);
    return true;
}

bool format(CommandContext &context, const QString &key, const QString &value, Request &request)
{
    return context.values.parsePrintFormat(key, value, request.format, false);
}

bool csvDelimiter(CommandContext &context, const QString &key, const QString &value, Request &request)
{
    return context.values.parseCsvDelimiter(key, value, request.csvDelimiter);
}

constexpr struct {
    const char *key;
    bool (*parse)(CommandContext &, const QString &key, const QString &value, Request &);
} parameters[] = {
    {"columns", columns},   {"sort", sort},     {"landscape", landscape},
    {"filename", fileName}, {"format", format}, {"csvDelimiter", csvDelimiter},
};

bool applyParameter(CommandContext &context, const QString &key, const QString &value, Request &request)
{
    for (const auto &parameter : parameters) {
        if (key == QLatin1String(parameter.key))
            return parameter.parse(context, key, value, request);
    }
    int applied = 0;
    if (request.list.takesPaymentCriteria)
        applied = context.criteria.parsePaymentCriteriaParam(key, value, &request.payments);
    if (applied == 0 && request.list.takesInvoiceCriteria)
        applied = context.criteria.parseInvoiceCriteriaParam(key, value, &request.invoices);
    return applied == 0 ? context.status.failUnknownParameter(key) : applied > 0;
}

bool printList(CommandContext &context, const Request &request, PrintModel &model)
{
    PrintScriptManager manager;
    manager.script().setTimeLimit(listTimeLimitMs);
    const ScriptLoader loader(&context.session.registry());
    if (!ExportTools::checkLoaded(context, manager, (loader.*request.list.loadScript)(&manager)))
        return false;
    manager.setOrientation(request.landscape ? QPrinter::Landscape : QPrinter::Portrait);
    const std::unique_ptr<QPrinter> printer = PdfPrinter::create(request.fileName);
    manager.print(printer.get(), &model, 0, std::numeric_limits<int>::max(), false);
    if (!manager.lastError().isEmpty())
        return ExportTools::failWriting(context, request.fileName, manager.lastError());
    return !manager.hasException() || context.status.fail(ExitCode::badData, ExportTools::exceptionText(manager));
}

} // namespace

void parseExportPrintCommand(CommandContext &context, QStringList &args, ListKind kind)
{
    if (!context.session.ensureOpen() || !context.session.fetch(CachedList::settings))
        return;
    Request request(lists[static_cast<int>(kind)]);
    const ParameterList words = parseParameters(args);
    for (const auto &[key, value] : words) {
        if (!applyParameter(context, key, value, request))
            return;
    }
    const std::unique_ptr<PrintModel> model = request.list.makeModel(context, request);
    if (!model)
        return;
    if (!ExportTools::runModel(context, *model))
        return;
    if (request.format < 0)
        request.format = ValueParser::guessPrintFormat(request.fileName, false);
    const bool csv = request.format == csvFormat;
    if (request.fileName.isEmpty())
        request.fileName = QLatin1String(request.list.baseName) + QLatin1String(csv ? ".csv" : ".pdf");
    if (csv && !model->exportToCSV(request.fileName, request.csvDelimiter)) {
        ExportTools::failWriting(context, request.fileName, model->lastError());
        return;
    }
    if (csv || printList(context, request, *model))
        ExportTools::answerFile(context.response, request.fileName);
}

#include "customer.h"
#include "exportcommands.h"
#include "exportfilename.h"
#include "exporttools.h"
#include "parameterlist.h"
#include "pdfprinter.h"
#include "printscript.h"
#include "printscriptmanager.h"
#include "progressline.h"
#include "scriptloader.h"
#include "xmlscriptmanager.h"
#include "xmlscriptmodel.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QVector>

#include <limits>

namespace {

constexpr int allPages = std::numeric_limits<int>::max();

struct Request {
    QString fileName;
    QString script;
    int format = -1; ///< -1: guessed from the file name
    QString csvDelimiter = QStringLiteral(",");
    bool writeSoap = false;
    int printType = InvoicePrintModel::ownType;
};

/** One file of the answer. */
struct ExportedFile {
    QString fileName;
    int invoiceId;
    QString error; ///< of the script, empty for none
};

using ParseParameter = bool (*)(CommandContext &, const QString &key, const QString &value, Request &);

bool fileName(CommandContext &, const QString &, const QString &value, Request &request)
{
    request.fileName = QDir::fromNativeSeparators(value);
    return true;
}

bool format(CommandContext &context, const QString &key, const QString &value, Request &request)
{
    return context.values.parsePrintFormat(key, value, request.format, true);
}

bool csvDelimiter(CommandContext &context, const QString &key, const QString &value, Request &request)
{
    return context.values.parseCsvDelimiter(key, value, request.csvDelimiter);
}

bool writeSoap(CommandContext &, const QString &, const QString &, Request &request)
{
    request.writeSoap = true;
    return true;
}

bool script(CommandContext &, const QString &, const QString &value, Request &request)
{
    request.script = value;
    return true;
}

/** Another kind of document than the invoice's own; any other word leaves the kind. */
bool type(CommandContext &, const QString &, const QString &value, Request &request)
{
    constexpr struct {
        const char *name;
        int printType;
    } types[] = {
        {"reminder", InvoicePrintModel::reminder},
        {"receipt", InvoicePrintModel::receipt},
        {"deliveryNote", InvoicePrintModel::deliveryNote},
    };
    for (const auto &known : types) {
        if (value == QLatin1String(known.name))
            request.printType = known.printType;
    }
    return true;
}

constexpr struct {
    const char *key;
    ParseParameter parse;
} parameters[] = {
    {"filename", fileName},   {"format", format}, {"csvDelimiter", csvDelimiter},
    {"writeSoap", writeSoap}, {"script", script}, {"type", type},
};

bool applyParameter(CommandContext &context, const QString &key, const QString &value, Request &request,
                    InvoiceCriteria *criteria)
{
    const int applied = context.criteria.parseInvoiceCriteriaParam(key, value, criteria);
    if (applied != 0)
        return applied > 0;
    for (const auto &parameter : parameters) {
        if (key == QLatin1String(parameter.key))
            return parameter.parse(context, key, value, request);
    }
    return context.status.failUnknownParameter(key);
}

/** Loads the script by its name: a built-in one, or a stored one for invoices. */
bool loadNamedScript(CommandContext &context, const QString &name, PrintScriptManager &manager)
{
    Registry &registry = context.session.registry();
    const ScriptLoader loader(&registry);
    const int builtIn = Registry::builtInPrintScriptNames().indexOf(name);
    if (builtIn >= 0)
        return loader.loadInvoiceScript(&manager, Registry::builtInPrintScriptIds().at(builtIn));
    for (int i = 0; i < registry.printScriptCount(); ++i) {
        const PrintScript *stored = registry.printScript(i);
        if (stored->type == QLatin1String("invoice") && stored->name == name)
            return loader.loadInvoiceScript(&manager, stored->id);
    }
    return context.status.fail(ExitCode::badCommandLine,
                               CommandContext::tr("Laskupohjaa ei löytynyt nimellä %1").arg(name));
}

bool loadInvoiceScript(CommandContext &context, const QString &name, PrintScriptManager &manager)
{
    if (!context.session.fetch(CachedList::printScripts))
        return false;
    const bool loaded = name.isNull() ? ScriptLoader(&context.session.registry()).loadInvoiceScript(&manager)
                                      : loadNamedScript(context, name, manager);
    return !context.status.hasFailed() && ExportTools::checkLoaded(context, manager, loaded);
}

/**
 * Writes each invoice into a file of its own. The answer is given afterwards: a file that cannot be written fails the
 * command, and there is no saying so once an answer has begun.
 * @param write  writes the model's one invoice to a file through the host
 */
template <class Model, class Host, class Write>
bool writeInvoices(CommandContext &context, const Request &request, InvoicePrintModel &all, Host &host, Write write,
                   QVector<ExportedFile> &files)
{
    Model single(&context.session.registry());
    single.setPrintType(request.printType);
    ProgressLine progress(all.invoiceCount());
    for (int i = 0; i < all.invoiceCount(); ++i) {
        const Invoice &invoice = *all.invoice(i);
        const QString name = ExportFileName::make(request.fileName, invoice, all.customer(invoice), request.printType);
        single.clear();
        single.copyInvoice(&all, i);
        write(name, single);
        if (!host.lastError().isEmpty())
            return ExportTools::failWriting(context, name, host.lastError());
        files.append({name, invoice.id, host.hasException() ? ExportTools::exceptionText(host) : QString()});
        progress.show(i + 1);
    }
    return true;
}

bool printInvoices(CommandContext &context, const Request &request, InvoicePrintModel &all,
                   QVector<ExportedFile> &files)
{
    PrintScriptManager manager;
    if (!loadInvoiceScript(context, request.script, manager))
        return false;
    const std::unique_ptr<QPrinter> printer = PdfPrinter::create();
    const auto print = [&](const QString &name, InvoicePrintModel &model) {
        printer->setOutputFileName(name);
        manager.print(printer.get(), &model, 0, allPages, false);
    };
    return writeInvoices<InvoicePrintModel>(context, request, all, manager, print, files);
}

/** A script that refuses an invoice before its first element leaves a document that is none. */
void removeEmptyDocument(const QString &name)
{
    QFile file(name);
    static const QRegularExpression element(QStringLiteral("<[A-Za-z]"));
    const bool isEmpty =
        file.open(QIODevice::ReadOnly) && !element.match(QString::fromLatin1(file.readAll())).hasMatch();
    file.close();
    if (isEmpty)
        file.remove();
}

bool writeFinvoices(CommandContext &context, const Request &request, InvoicePrintModel &all,
                    QVector<ExportedFile> &files)
{
    if (!context.session.fetch(CachedList::printScripts))
        return false;
    XmlScriptManager manager;
    manager.setSoapEnvEnabled(request.writeSoap);
    const bool loaded = ScriptLoader(&context.session.registry()).loadFinvoiceScript(&manager);
    if (!ExportTools::checkLoaded(context, manager, loaded))
        return false;
    const auto write = [&](const QString &name, XmlScriptModel &model) {
        manager.write(name, false, &model);
        if (manager.hasException())
            removeEmptyDocument(name);
    };
    return writeInvoices<XmlScriptModel>(context, request, all, manager, write, files);
}

void answerFiles(ResponseWriter &response, const QVector<ExportedFile> &files)
{
    response.startResponse(QStringLiteral("OK"));
    for (const ExportedFile &file : files) {
        ExportTools::startFileRecord(response, file.fileName);
        response.printProperty("invoiceId", file.invoiceId);
        if (!file.error.isEmpty())
            response.printProperty("error", file.error);
        response.endRecord();
    }
    response.endResponse();
}

void exportCsv(CommandContext &context, const Request &request, InvoicePrintModel &model)
{
    const QString name = request.fileName.isEmpty() ? QStringLiteral("laskut.csv") : request.fileName;
    if (model.exportToCSV(name, request.csvDelimiter))
        ExportTools::answerFile(context.response, name);
    else
        ExportTools::failWriting(context, name, model.lastError());
}

} // namespace

void parseExportInvoicesCommand(CommandContext &context, QStringList &args)
{
    if (!context.session.ensureOpen() || !context.session.fetch(CachedList::settings))
        return;
    const ParameterList words = parseParameters(args);
    Request request;
    InvoiceCriteria criteria;
    for (const auto &[key, value] : words) {
        if (!applyParameter(context, key, value, request, &criteria))
            return;
    }
    if (!context.session.fetch(CachedList::bankAccounts))
        return;
    InvoicePrintModel model(&context.session.registry());
    criteria.copy(model.criteria());
    model.setPrintType(request.printType);
    if (!ExportTools::runModel(context, model))
        return;
    QSet<int> customers;
    for (int i = 0; i < model.invoiceCount(); ++i)
        customers.insert(model.invoice(i)->customerId);
    if (!context.session.fetchCustomers(customers))
        return;
    if (request.format < 0)
        request.format = ValueParser::guessPrintFormat(request.fileName, true);
    if (request.format == csvFormat) {
        exportCsv(context, request, model);
        return;
    }
    const bool finvoice = request.format == finvoiceFormat;
    if (request.fileName.isEmpty())
        request.fileName = finvoice ? QStringLiteral("lasku-$i.xml") : QStringLiteral("lasku-$i.pdf");
    QVector<ExportedFile> files;
    const bool written =
        finvoice ? writeFinvoices(context, request, model, files) : printInvoices(context, request, model, files);
    if (written)
        answerFiles(context.response, files);
}

#include "exportcommands.h"

#include "customer.h"
#include "invoiceprintmodel.h"
#include "partfile.h"
#include "parameterlist.h"
#include "printscript.h"
#include "printscriptmanager.h"
#include "scriptloader.h"
#include "templatestringhelper.h"

#include <QDir>
#include <QFileInfo>
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
};

/** One file of the answer. */
struct ExportedFile {
    QString fileName;
    int invoiceId;
    QString error; ///< of the script, empty for none
};

constexpr struct {
    const char *name;
    int printType;
} printTypes[] = {
    {"reminder", InvoicePrintModel::reminder},
    {"receipt", InvoicePrintModel::receipt},
    {"deliveryNote", InvoicePrintModel::deliveryNote},
};

bool applyParameter(CommandContext &context, const QString &key, const QString &value, Request &request,
                    InvoicePrintModel &model)
{
    const int applied = context.criteria.parseInvoiceCriteriaParam(key, value, model.criteria());
    if (applied != 0)
        return applied > 0;
    if (key == QLatin1String("filename")) {
        request.fileName = QDir::fromNativeSeparators(value);
    } else if (key == QLatin1String("format")) {
        return context.values.parsePrintFormat(key, value, request.format, true);
    } else if (key == QLatin1String("csvDelimiter")) {
        return context.values.parseCsvDelimiter(key, value, request.csvDelimiter);
    } else if (key == QLatin1String("writeSoap")) {
        request.writeSoap = true;
    } else if (key == QLatin1String("script")) {
        request.script = value;
    } else if (key == QLatin1String("type")) {
        for (const auto &known : printTypes) {
            if (value == QLatin1String(known.name))
                model.setPrintType(known.printType);
        }
    } else {
        return context.status.failUnknownParameter(key);
    }
    return true;
}

template <class Host> QString exceptionText(const Host &host)
{
    return CommandContext::tr("%1 (rivi %2)").arg(host.exception(), QString::number(host.exceptionLineNumber()));
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
        const PrintScript *script = registry.printScript(i);
        if (script->type == QLatin1String("invoice") && script->name == name)
            return loader.loadInvoiceScript(&manager, script->id);
    }
    return context.status.fail(ExitCode::badCommandLine,
                               CommandContext::tr("Laskupohjaa ei löytynyt nimellä %1").arg(name));
}

bool loadInvoiceScript(CommandContext &context, const QString &name, PrintScriptManager &manager)
{
    if (!context.session.fetch(CachedList::printScripts))
        return false;
    const bool loaded = name.isEmpty() ? ScriptLoader(&context.session.registry()).loadInvoiceScript(&manager)
                                       : loadNamedScript(context, name, manager);
    if (context.status.hasFailed())
        return false;
    if (!loaded)
        return context.status.fail(ExitCode::databaseFailure, CommandContext::tr("Laskupohjaa ei voi lukea"));
    if (manager.hasException())
        return context.status.fail(ExitCode::badData, exceptionText(manager));
    return true;
}

/** The name of an invoice's file; one that exists already is never overwritten. */
QString fileNameFor(CommandContext &context, const QString &form, const Invoice &invoice, int printType)
{
    bool found = false;
    const Customer *customer = context.session.registry().customerById(invoice.customerId, found);
    const QString name = TemplateStringHelper::substituteShortVariables(form, &invoice, customer, printType);
    const QFileInfo info(name);
    return info.exists() ? TemplateStringHelper::addSuffixToFilename(info).filePath() : name;
}

bool printInvoices(CommandContext &context, const Request &request, InvoicePrintModel &all,
                   QVector<ExportedFile> &files)
{
    PrintScriptManager manager;
    if (!loadInvoiceScript(context, request.script, manager))
        return false;
    const QString form = request.fileName.isEmpty() ? QStringLiteral("lasku-$i.pdf") : request.fileName;
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    InvoicePrintModel single(&context.session.registry());
    single.setPrintType(all.printType());
    for (int i = 0; i < all.invoiceCount(); ++i) {
        const Invoice &invoice = *all.invoice(i);
        const QString name = fileNameFor(context, form, invoice, all.printType());
        PartFile file(name);
        if (!file.create())
            return context.status.fail(ExitCode::databaseFailure, file.lastError());
        single.clear();
        single.copyInvoice(&all, i);
        printer.setPartFileName(file.partName());
        manager.print(&printer, &single, 0, allPages, false);
        if (!file.commit("%%EOF"))
            return context.status.fail(ExitCode::databaseFailure, file.lastError());
        files.append({name, invoice.id, manager.hasException() ? exceptionText(manager) : QString()});
    }
    return true;
}

} // namespace

void parseExportInvoicesCommand(CommandContext &context, QStringList &args)
{
    if (!context.session.ensureOpen() || !context.session.fetch(CachedList::settings))
        return;
    if (!context.session.fetch(CachedList::bankAccounts))
        return;
    const ParameterList words = parseParameters(args);
    Request request;
    InvoicePrintModel model(&context.session.registry());
    for (const auto &[key, value] : words) {
        if (!applyParameter(context, key, value, request, model))
            return;
    }
    if (!context.session.fetch(CachedList::customers))
        return;
    if (!model.run()) {
        context.status.fail(ExitCode::databaseFailure, model.lastError());
        return;
    }
    QVector<ExportedFile> files;
    if (!printInvoices(context, request, model, files))
        return;
    context.response.startResponse(QStringLiteral("OK"));
    for (const ExportedFile &file : qAsConst(files)) {
        context.response.startRecord(QStringLiteral("file"));
        context.response.printProperty("filename", QDir::toNativeSeparators(file.fileName));
        context.response.printProperty("invoiceId", file.invoiceId);
        if (!file.error.isEmpty())
            context.response.printProperty("error", file.error);
        context.response.endRecord();
    }
    context.response.endResponse();
}

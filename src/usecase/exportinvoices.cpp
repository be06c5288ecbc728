#include "exportinvoices.h"

#include "customer.h"
#include "einvoicebuilder.h"
#include "exportfilename.h"
#include "exporttools.h"
#include "finvoice3writer.h"
#include "outputfile.h"
#include "pdfprinter.h"
#include "printscript.h"
#include "printscriptmanager.h"
#include "scriptloader.h"
#include "settings.h"
#include "soapenvelope.h"
#include "ublwriter.h"
#include "xmlscriptmanager.h"
#include "xmlscriptmodel.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <limits>

namespace {

using ExportInvoices::File;
using ExportInvoices::Request;

constexpr int allPages = std::numeric_limits<int>::max();

/** Loads the script by its name: a built-in one, or a stored one for invoices. @return false with the failure told */
bool loadNamedScript(UseCaseContext &context, const QString &name, PrintScriptManager &manager, bool &loaded)
{
    Registry &registry = context.session.registry();
    const ScriptLoader loader(&registry);
    const int builtIn = Registry::builtInPrintScriptNames().indexOf(name);
    if (builtIn >= 0) {
        loaded = loader.loadInvoiceScript(&manager, Registry::builtInPrintScriptIds().at(builtIn));
        return true;
    }
    for (int i = 0; i < registry.printScriptCount(); ++i) {
        const PrintScript *stored = registry.printScript(i);
        if (stored->type == QLatin1String("invoice") && stored->name == name) {
            loaded = loader.loadInvoiceScript(&manager, stored->id);
            return true;
        }
    }
    return context.listener.fail(Failure::layoutUnknown, {name});
}

bool loadInvoiceScript(UseCaseContext &context, const std::optional<QString> &name, PrintScriptManager &manager)
{
    if (!context.session.fetch(CachedList::printScripts))
        return false;
    bool loaded = false;
    if (!name)
        loaded = ScriptLoader(&context.session.registry()).loadInvoiceScript(&manager);
    else if (!loadNamedScript(context, *name, manager, loaded))
        return false;
    return ExportTools::checkLoaded(context, manager, loaded);
}

/**
 * A file name that nobody has: the empty file of the name is made at once, so that two exports to one name do not
 * overwrite each other. Empty files go again.
 */
class ReservedName {
public:
    ReservedName(const QString &form, const Invoice &invoice, const Customer *customer, int kind)
    {
        do {
            m_name = ExportFileName::make(form, invoice, customer, kind);
            QFile file(m_name);
            m_isMade = file.open(QIODevice::WriteOnly | QIODevice::NewOnly);
        } while (!m_isMade && QFile::exists(m_name) && --m_triesLeft > 0);
    }
    ~ReservedName()
    {
        if (m_isMade && QFileInfo(m_name).size() == 0)
            QFile::remove(m_name);
    }
    ReservedName(const ReservedName &) = delete;
    ReservedName &operator=(const ReservedName &) = delete;

    const QString &name() const { return m_name; }

    /** Writes the file at once: one that was just made has no earlier content to keep until the new one is whole. */
    bool write(const QByteArray &bytes, QString &error)
    {
        if (!m_isMade) {
            OutputFile output(m_name);
            const bool isWritten = output.open() && output.device()->write(bytes) == bytes.size() && output.commit();
            error = output.errorString();
            return isWritten;
        }
        QFile file(m_name);
        const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
        if (!isWritten) {
            error = file.errorString();
            file.remove();
        }
        return isWritten;
    }

private:
    QString m_name;
    bool m_isMade = false;
    int m_triesLeft = 1000;
};

/**
 * Writes each invoice into a file of its own. The answer is given afterwards: a file that cannot be written fails the
 * command, and there is no saying so once an answer has begun.
 * @param write  writes the model's one invoice to a file through the host
 */
template <class Model, class Host, class Write>
bool writeInvoices(UseCaseContext &context, const Request &request, const QString &form, InvoicePrintModel &all,
                   Host &host, Write write, QVector<File> &files)
{
    Model single(&context.session.registry());
    single.setPrintType(request.printType);
    for (int i = 0; i < all.invoiceCount(); ++i) {
        const Invoice &invoice = *all.invoice(i);
        const Customer *customer = all.customer(invoice);
        if (request.isTrial || request.makesFolders) {
            const QString name = ExportFileName::make(form, invoice, customer, request.printType);
            if (request.isTrial) {
                files.append({name, invoice.id, invoice.number, {}, {}});
                continue;
            }
            QDir().mkpath(QFileInfo(name).path());
        }
        const ReservedName reserved(form, invoice, customer, request.printType);
        const QString &name = reserved.name();
        single.clear();
        single.copyInvoice(&all, i);
        write(name, single);
        if (!host.lastError().isEmpty())
            return ExportTools::failWriting(context, name, host.lastError());
        files.append(
            {name, invoice.id, invoice.number, host.hasException() ? ExportTools::exception(host) : QStringList(), {}});
        if (request.progress)
            request.progress(i + 1, all.invoiceCount());
    }
    return true;
}

bool printInvoices(UseCaseContext &context, const Request &request, const QString &form, InvoicePrintModel &all,
                   QVector<File> &files)
{
    PrintScriptManager manager;
    if (!loadInvoiceScript(context, request.script, manager))
        return false;
    const std::unique_ptr<QPrinter> printer = PdfPrinter::create();
    const auto print = [&](const QString &name, InvoicePrintModel &model) {
        printer->setOutputFileName(name);
        manager.print(printer.get(), &model, 0, allPages, false);
    };
    return writeInvoices<InvoicePrintModel>(context, request, form, all, manager, print, files);
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

bool writeFinvoices(UseCaseContext &context, const Request &request, const QString &form, InvoicePrintModel &all,
                    QVector<File> &files)
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
    return writeInvoices<XmlScriptModel>(context, request, form, all, manager, write, files);
}

constexpr struct {
    const char *name;
    PrintFormat format;
} einvoiceFormats[] = {{"finvoice", finvoiceFormat}, {"finvoice3", finvoice3Format}, {"peppol", peppolFormat}};

/** The e-invoice format of an invoice: the customer's, else the company's, else Finvoice 3.0. */
PrintFormat formatOf(const Settings &settings, const Customer &customer)
{
    QString name = customer.property(QStringLiteral("bt-format")).toString();
    if (name.isEmpty())
        name = settings.property(QStringLiteral("einvoice/format")).toString();
    for (const auto &known : einvoiceFormats) {
        if (name == QLatin1String(known.name))
            return known.format;
    }
    return finvoice3Format;
}

EInvoice::Document documentOf(const InvoicePrintModel &model, const Invoice &invoice, int printType)
{
    static const Customer unknown;
    const Customer *customer = model.customer(invoice);
    const QString kind = printType == InvoicePrintModel::reminder       ? QStringLiteral("maksumuistutus")
                         : printType == InvoicePrintModel::receipt      ? QStringLiteral("kuitti")
                         : printType == InvoicePrintModel::deliveryNote ? QStringLiteral("lähetyslista")
                                                                        : QString();
    return EInvoice::build({invoice, model.items(invoice), customer ? *customer : unknown, *model.settings(),
                            model.visibleBankAccounts(), kind});
}

bool writeEInvoices(UseCaseContext &context, const Request &request, PrintFormat format, InvoicePrintModel &all,
                    QVector<File> &files)
{
    XmlScriptModel single(&context.session.registry()); // for the envelope, and for Finvoice 1.3
    std::unique_ptr<XmlScriptManager> script;
    for (int i = 0; i < all.invoiceCount(); ++i) {
        const Invoice &invoice = *all.invoice(i);
        const Customer *customer = all.customer(invoice);
        const PrintFormat own =
            format == einvoiceFormat ? formatOf(*all.settings(), customer ? *customer : Customer()) : format;
        const EInvoice::Document document = documentOf(all, invoice, request.printType);
        File file;
        file.invoiceId = invoice.id;
        file.invoiceNumber = invoice.number;
        if (own == finvoiceFormat && !script) {
            script = std::make_unique<XmlScriptManager>();
            script->setSoapEnvEnabled(request.writeSoap);
            if (!context.session.fetch(CachedList::printScripts) ||
                !ExportTools::checkLoaded(context, *script,
                                          ScriptLoader(&context.session.registry()).loadFinvoiceScript(script.get())))
                return false;
        }
        if (own != finvoiceFormat)
            file.findings = EInvoice::check(document, own == peppolFormat ? EInvoice::peppol : EInvoice::finvoice3);
        if (EInvoice::hasError(file.findings)) {
            files.append(file);
            continue;
        }
        const QString form = request.fileName.isEmpty() ? QStringLiteral("lasku-$i.xml") : request.fileName;
        file.fileName = ExportFileName::make(form, invoice, customer, request.printType);
        if (!request.isTrial) {
            if (request.makesFolders)
                QDir().mkpath(QFileInfo(file.fileName).path());
            ReservedName reserved(form, invoice, customer, request.printType);
            file.fileName = reserved.name();
            if (own == finvoiceFormat) {
                single.clear();
                single.copyInvoice(&all, i);
                script->write(file.fileName, false, &single);
                if (!script->lastError().isEmpty())
                    return ExportTools::failWriting(context, file.fileName, script->lastError());
                if (script->hasException()) {
                    removeEmptyDocument(file.fileName);
                    file.exception = ExportTools::exception(*script);
                }
                files.append(file);
                continue;
            }
            QByteArray bytes = own == peppolFormat ? EInvoice::writeUbl(document) : EInvoice::writeFinvoice3(document);
            if (own == finvoice3Format && request.writeSoap) {
                single.clear();
                single.copyInvoice(&all, i);
                bytes.prepend(SoapEnvelope::create(&single));
            }
            QString error;
            if (!reserved.write(bytes, error))
                return ExportTools::failWriting(context, file.fileName, error);
        }
        files.append(file);
        if (request.progress)
            request.progress(i + 1, all.invoiceCount());
    }
    return true;
}

bool writeCsv(UseCaseContext &context, const Request &request, const QString &name, InvoicePrintModel &model,
              QVector<File> &files)
{
    if (!request.isTrial) {
        if (request.makesFolders)
            QDir().mkpath(QFileInfo(name).path());
        if (!model.exportToCSV(name, request.csvDelimiter))
            return ExportTools::failWriting(context, name, model.lastError());
    }
    files.append({name, -1, 0, {}, {}});
    return true;
}

} // namespace

namespace {

/** Reads the invoices of the criteria with all that documents show. */
bool load(UseCaseContext &context, const InvoiceCriteria &criteria, InvoicePrintModel &model)
{
    criteria.copy(model.criteria());
    if (!ExportTools::runModel(context, model))
        return false;
    QSet<int> customers;
    for (int i = 0; i < model.invoiceCount(); ++i)
        customers.insert(model.invoice(i)->customerId);
    return context.session.fetchCustomers(customers);
}

} // namespace

bool ExportInvoices::check(UseCaseContext &context, const InvoiceCriteria &criteria, std::optional<PrintFormat> format,
                           QVector<Checked> &checked)
{
    if (!context.session.fetch(CachedList::settings) || !context.session.fetch(CachedList::bankAccounts))
        return false;
    InvoicePrintModel model(&context.session.registry());
    if (!load(context, criteria, model))
        return false;
    for (int i = 0; i < model.invoiceCount(); ++i) {
        const Invoice &invoice = *model.invoice(i);
        const Customer *customer = model.customer(invoice);
        Checked one;
        one.invoiceNumber = invoice.number;
        one.customerNumber = customer ? customer->number : 0;
        one.format = format.value_or(formatOf(*model.settings(), customer ? *customer : Customer()));
        const EInvoice::Document document = documentOf(model, invoice, InvoicePrintModel::ownType);
        one.findings = EInvoice::check(document, one.format == peppolFormat ? EInvoice::peppol : EInvoice::finvoice3);
        checked.append(one);
    }
    return true;
}

bool ExportInvoices::run(UseCaseContext &context, const Request &request, QVector<File> &files)
{
    if (!context.session.fetch(CachedList::settings) || !context.session.fetch(CachedList::bankAccounts))
        return false;
    InvoicePrintModel model(&context.session.registry());
    model.setPrintType(request.printType);
    if (!load(context, request.criteria, model))
        return false;
    const PrintFormat format = request.format.value_or(ExportTools::guessFormat(request.fileName, true));
    const auto form = [&request](const char *usual) {
        return request.fileName.isEmpty() ? QString::fromLatin1(usual) : request.fileName;
    };
    switch (format) {
    case csvFormat:
        return writeCsv(context, request, form("laskut.csv"), model, files);
    case finvoiceFormat:
        return writeFinvoices(context, request, form("lasku-$i.xml"), model, files);
    case finvoice3Format:
    case peppolFormat:
    case einvoiceFormat:
        return writeEInvoices(context, request, format, model, files);
    default:
        return printInvoices(context, request, form("lasku-$i.pdf"), model, files);
    }
}

#include "invoicedocuments.h"

#include "customer.h"
#include "einvoicebuilder.h"
#include "exportfilename.h"
#include "exporttools.h"
#include "finvoice3writer.h"
#include "invoiceprintmodel.h"
#include "pdfprinter.h"
#include "printscript.h"
#include "printscriptmanager.h"
#include "scripteddocuments.h"
#include "scriptloader.h"
#include "settings.h"
#include "soapenvelope.h"
#include "ublwriter.h"
#include "xmlscriptmanager.h"
#include "xmlscriptmodel.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <limits>

namespace {

using ExportInvoices::File;
using ExportInvoices::Request;

constexpr int allPages = std::numeric_limits<int>::max();

/** The layout that was asked for by its name, else the one of the settings. @return false with the failure told */
bool findInvoiceScript(UseCaseContext &context, const std::optional<QString> &name, ScriptSource &source)
{
    if (!context.session.fetch(CachedList::printScripts))
        return false;
    Registry &registry = context.session.registry();
    const ScriptLoader loader(&registry);
    if (!name) {
        source = loader.invoiceScript();
        return true;
    }
    const int builtIn = Registry::builtInPrintScriptNames().indexOf(*name);
    if (builtIn >= 0) {
        source = loader.invoiceScript(Registry::builtInPrintScriptIds().at(builtIn));
        return true;
    }
    for (int i = 0; i < registry.printScriptCount(); ++i) {
        const PrintScript *stored = registry.printScript(i);
        if (stored->type == QLatin1String("invoice") && stored->name == *name) {
            source = loader.invoiceScript(stored->id);
            return true;
        }
    }
    return context.listener.fail(Failure::layoutUnknown, {*name});
}

/** The invoices of one export, each for a file of its own. */
class Documents {
public:
    Documents(const Request &request, PrintFormat format, const QString &form, InvoicePrintModel &all)
        : m_request(request), m_format(format), m_form(form), m_all(all)
    {
    }

    /** One that nobody has at the moment. */
    QString name(int i) const
    {
        const Invoice &invoice = *m_all.invoice(i);
        return ExportFileName::make(m_form, invoice, m_all.customer(invoice), m_request.printType);
    }
    ReservedName reserve(int i) const
    {
        return ReservedName([this, i] { return name(i); }, m_request.makesFolders);
    }
    File file(int i, const QString &fileName, const QStringList &exception = {}) const
    {
        const Invoice &invoice = *m_all.invoice(i);
        return {fileName, invoice.id, invoice.number, exception, {}, m_format, m_all.typeCode(invoice)};
    }
    void tellProgress(int i) const
    {
        if (m_request.progress)
            m_request.progress(i + 1, m_all.invoiceCount());
    }
    /** Lets the model have one of the invoices. */
    void single(int i, InvoicePrintModel &model) const
    {
        model.setPrintType(m_request.printType);
        model.clear();
        model.copyInvoice(&m_all, i);
    }

    /**
     * Makes them all by a script. The answer is given afterwards: a file that cannot be written fails the command, and
     * there is no saying so once an answer has begun.
     */
    bool make(ScriptedDocuments &scripted, QVector<File> &files) const
    {
        if (!m_request.isTrial)
            return make(scripted, 0, m_all.invoiceCount(), files);
        for (int i = 0; i < m_all.invoiceCount(); ++i)
            files.append(file(i, name(i)));
        return true;
    }
    bool make(ScriptedDocuments &scripted, int from, int to, QVector<File> &files) const
    {
        return scripted.make(from, to, [&](int i, const QString &fileName, const QStringList &exception) {
            files.append(file(i, fileName, exception));
            tellProgress(i);
        });
    }

private:
    const Request &m_request;
    const PrintFormat m_format; ///< of file()
    const QString m_form;
    InvoicePrintModel &m_all;
};

bool printInvoices(UseCaseContext &context, const Request &request, const Documents &documents, QVector<File> &files)
{
    ScriptSource source;
    if (!findInvoiceScript(context, request.script, source))
        return false;
    InvoicePrintModel single(&context.session.registry());
    std::unique_ptr<QPrinter> printer;
    ScriptedDocuments::Work work;
    work.makeHost = [] { return std::make_unique<PrintScriptManager>(); };
    work.reserve = [&](int i) { return documents.reserve(i); };
    work.write = [&](ScriptHost &host, const QString &name, int i) {
        if (!printer)
            printer = PdfPrinter::create();
        documents.single(i, single);
        printer->setOutputFileName(name);
        static_cast<PrintScriptManager &>(host).print(printer.get(), &single, 0, allPages, false);
    };
    ScriptedDocuments scripted(context, source, work);
    return documents.make(scripted, files);
}

/** Documents of Finvoice 1.3. @param single  for one invoice at a time; outlives the result */
ScriptedDocuments finvoices(UseCaseContext &context, bool writeSoap, const Documents &documents, XmlScriptModel &single)
{
    ScriptedDocuments::Work work;
    work.makeHost = [writeSoap] {
        auto host = std::make_unique<XmlScriptManager>();
        host->setSoapEnvEnabled(writeSoap);
        return host;
    };
    work.reserve = [&documents](int i) { return documents.reserve(i); };
    work.write = [&documents, &single](ScriptHost &host, const QString &name, int i) {
        auto &manager = static_cast<XmlScriptManager &>(host);
        documents.single(i, single);
        manager.write(name, false, &single);
        if (manager.hasException() && !manager.hasElement())
            QFile::remove(name); // refused before its first element
    };
    return ScriptedDocuments(context, ScriptLoader(&context.session.registry()).finvoiceScript(), work);
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

bool writeEInvoices(UseCaseContext &context, const Request &request, PrintFormat format, const Documents &documents,
                    InvoicePrintModel &all, QVector<File> &files)
{
    XmlScriptModel single(&context.session.registry()); // for the envelope, and for Finvoice 1.3
    std::optional<ScriptedDocuments> scripted;
    for (int i = 0; i < all.invoiceCount(); ++i) {
        const Invoice &invoice = *all.invoice(i);
        const Customer *customer = all.customer(invoice);
        const PrintFormat own =
            format == einvoiceFormat ? formatOf(*all.settings(), customer ? *customer : Customer()) : format;
        if (own == finvoiceFormat && !request.isTrial) {
            if (!scripted && !context.session.fetch(CachedList::printScripts))
                return false;
            if (!scripted)
                scripted.emplace(finvoices(context, request.writeSoap, documents, single));
            if (!documents.make(*scripted, i, i + 1, files))
                return false;
            files.last().format = own;
            continue;
        }
        File file = documents.file(i, QString());
        file.format = own;
        const EInvoice::Document document = documentOf(all, invoice, request.printType);
        if (own != finvoiceFormat)
            file.findings = EInvoice::check(document, own == peppolFormat ? EInvoice::peppol : EInvoice::finvoice3);
        if (EInvoice::hasError(file.findings)) {
            files.append(file);
            continue;
        }
        if (request.isTrial) {
            file.fileName = documents.name(i);
        } else {
            ReservedName reserved = documents.reserve(i);
            file.fileName = reserved.name();
            QByteArray bytes = own == peppolFormat ? EInvoice::writeUbl(document) : EInvoice::writeFinvoice3(document);
            if (own == finvoice3Format && request.writeSoap) {
                documents.single(i, single);
                bytes.prepend(SoapEnvelope::create(&single));
            }
            QString error;
            if (!reserved.write(bytes, error))
                return ExportTools::failWriting(context, file.fileName, error);
        }
        files.append(file);
        documents.tellProgress(i);
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
    files.append({name, -1, 0, {}, {}, csvFormat, 0});
    return true;
}

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

bool InvoiceDocuments::check(UseCaseContext &context, const InvoiceCriteria &criteria,
                             std::optional<PrintFormat> format, QVector<ExportInvoices::Checked> &checked)
{
    if (!context.session.fetch(CachedList::settings) || !context.session.fetch(CachedList::bankAccounts))
        return false;
    InvoicePrintModel model(&context.session.registry());
    if (!load(context, criteria, model))
        return false;
    for (int i = 0; i < model.invoiceCount(); ++i) {
        const Invoice &invoice = *model.invoice(i);
        const Customer *customer = model.customer(invoice);
        ExportInvoices::Checked one;
        one.invoiceNumber = invoice.number;
        one.customerNumber = customer ? customer->number : 0;
        one.format = format.value_or(formatOf(*model.settings(), customer ? *customer : Customer()));
        const EInvoice::Document document = documentOf(model, invoice, 0);
        one.findings = EInvoice::check(document, one.format == peppolFormat ? EInvoice::peppol : EInvoice::finvoice3);
        checked.append(one);
    }
    return true;
}

bool InvoiceDocuments::make(UseCaseContext &context, const Request &request, QVector<File> &files)
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
    if (format == csvFormat)
        return writeCsv(context, request, form("laskut.csv"), model, files);
    const Documents documents(request, format, form(format == pdfFormat ? "lasku-$i.pdf" : "lasku-$i.xml"), model);
    if (format == pdfFormat)
        return printInvoices(context, request, documents, files);
    if (format != finvoiceFormat)
        return writeEInvoices(context, request, format, documents, model, files);
    if (!context.session.fetch(CachedList::printScripts))
        return false;
    XmlScriptModel single(&context.session.registry());
    ScriptedDocuments scripted = finvoices(context, request.writeSoap, documents, single);
    return documents.make(scripted, files);
}

#include "commandgroups.h"

#include "commandtable.h"
#include "exportinvoices.h"
#include "findingtexts.h"
#include "invoicereader.h"
#include "printscript.h"
#include "progressbar.h"
#include "records.h"
#include "references.h"
#include "selection.h"
#include "sentdocuments.h"
#include "task.h"
#include "templatestringhelper.h"
#include "terminal.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <memory>

namespace {

constexpr Choice documentKinds[] = {{"reminder", TEXT("maksumuistutus")},
                                    {"receipt", TEXT("kuitti")},
                                    {"delivery-note", TEXT("lähetyslista")},
                                    {nullptr, nullptr}};
constexpr int printTypes[] = {TemplateStringHelper::reminder, TemplateStringHelper::receipt,
                              TemplateStringHelper::deliveryNote};

constexpr Choice checkFormats[] = {
    {"finvoice3", TEXT("Finvoice 3.0, EN 16931")}, {"peppol", TEXT("Peppol BIS Billing 3")}, {nullptr, nullptr}};
constexpr Option checkOptions[] = {
    {"for", ValueType::word, TEXT("muoto, johon lasku aiotaan viedä; muuten asiakkaan tai yrityksen oma"), 0,
     checkFormats},
};

constexpr Choice severities[] = {{"error", TEXT("virhe"), "31"},
                                 {"warning", TEXT("varoitus"), "33"},
                                 {"note", TEXT("huomautus")},
                                 {nullptr, nullptr}};

constexpr struct {
    const char *record, *command; ///< "%1" is the record's number, "%2" the field
} mendings[] = {
    {"settings", "billora settings set %2=…"},
    {"customer", "billora customer edit %1 --%2 …"},
    {"account", "billora account edit ACCOUNT --%2 …"},
    {"rows", "billora row edit %1 ROW --%2 …"},
    {"", "billora invoice edit %1 --%2 …"},
};

/** How to set the field that a rule is about; empty where no field mends it. */
QString mendingOf(const ExportInvoices::Checked &invoice, const EInvoice::Finding &finding)
{
    const QString place = QLatin1String(finding.field);
    const QString record = place.contains(QLatin1Char('.')) ? place.section(QLatin1Char('.'), 0, 0) : QString();
    const QString field = place.section(QLatin1Char('.'), -1);
    const bool isField = !field.isEmpty() && field != QLatin1String("total") && field != QLatin1String("rows");
    for (const auto &mending : mendings) {
        if (!isField || record != QLatin1String(mending.record))
            continue;
        const bool isCustomers = record == QLatin1String("customer");
        return QString::fromUtf8(mending.command)
            .replace(QLatin1String("%1"), QString::number(isCustomers ? invoice.customerNumber : invoice.invoiceNumber))
            .replace(QLatin1String("ROW"), finding.row > 0 ? QString::number(finding.row) : QStringLiteral("ROW"))
            .replace(QLatin1String("%2"),
                     record == QLatin1String("settings") ? field : CommandTable::hyphenated(field));
    }
    return QString();
}

CheckRecord recordOf(const ExportInvoices::Checked &invoice, const EInvoice::Finding &finding)
{
    CheckRecord record;
    record.invoiceNumber = invoice.invoiceNumber;
    record.command = mendingOf(invoice, finding);
    record.rule = QLatin1String(finding.rule);
    record.severity = QLatin1String(severities[static_cast<int>(finding.severity)].word);
    record.term = QLatin1String(finding.term);
    record.field = QLatin1String(finding.field);
    record.message = FindingTexts::sentence(finding);
    return record;
}

/** A finding in a line of its own, what mends it in the next. */
void tell(Task &task, const CheckRecord &record, const EInvoice::Finding &finding)
{
    task.answer.line(text(TEXT("Lasku %1, %2 %3: %4"))
                         .arg(QString::number(record.invoiceNumber),
                              text(severities[static_cast<int>(finding.severity)].text), record.rule, record.message));
    if (!record.command.isEmpty())
        task.answer.line(QStringLiteral("  ") + record.command);
}

bool checkInvoices(Task &task)
{
    auto selection = std::make_shared<InvoiceSelection>();
    int format = -1;
    if (!Selection::readInvoices(task, *selection, false) || !Selection::readChoice(task, "for", checkFormats, format))
        return false;
    InvoiceCriteria criteria;
    criteria.selection = selection;
    std::optional<PrintFormat> wanted;
    if (format >= 0)
        wanted = format == 0 ? finvoice3Format : peppolFormat;
    QVector<ExportInvoices::Checked> checked;
    // Sentences are too long for the columns of a terminal.
    const bool isProse = task.answer.options().isTerminal && task.answer.wantsSentences();
    if (!ExportInvoices::check(task.context(), criteria, wanted, checked) ||
        (!isProse && !task.answer.beginList(checkTable, task.session)))
        return false;
    int count = 0;
    for (const ExportInvoices::Checked &one : qAsConst(checked)) {
        for (const EInvoice::Finding &finding : one.findings) {
            const CheckRecord record = recordOf(one, finding);
            if (isProse)
                tell(task, record, finding);
            else
                task.answer.add(&record);
            ++count;
            if (finding.severity == EInvoice::Severity::error)
                task.exitCode = exitNeedsLook;
        }
    }
    if (!isProse)
        task.answer.endList();
    if (checked.isEmpty())
        return task.fail(Problem::notFound, text(TEXT("yhtään laskua ei löytynyt")), QStringLiteral("invoices"));
    if (count == 0 && isProse)
        task.answer.line(text(TEXT("Laskut ovat valmiita lähetettäviksi.")));
    return true;
}

constexpr Choice formats[] = {{"pdf", TEXT("PDF")},
                              {"csv", TEXT("CSV, kaikki yhteen tiedostoon")},
                              {"finvoice", TEXT("Finvoice 1.3")},
                              {"finvoice3", TEXT("Finvoice 3.0, EN 16931")},
                              {"peppol", TEXT("Peppol BIS Billing 3")},
                              {"einvoice", TEXT("asiakkaan tai yrityksen oma verkkolaskumuoto")},
                              {nullptr, nullptr}};

constexpr Option exportOptions[] = {
    {"all", ValueType::flag, TEXT("kaikki")},
    {"as", ValueType::word, TEXT("asiakirjan laji, jos muu kuin laskun oma"), 0, documentKinds},
    {"format", ValueType::word, TEXT("tiedoston muoto; muuten nimen mukaan"), 0, formats},
    {"layout", ValueType::layout, TEXT("laskupohja, jos muu kuin valittu")},
    {"soap", ValueType::flag, TEXT("Finvoice välitysotsikoineen")},
    {"output", ValueType::file, TEXT("tiedoston nimi; $i on laskun ja $n asiakkaan nimi tai numero, - on vakiotuloste"),
     0, nullptr, 'o', "PATTERN"},
    {"csvDelimiter", ValueType::text, TEXT("CSV-tiedoston erotin")},
    {"noJournal", ValueType::flag, TEXT("ei merkitä lähetetyksi päiväkirjaan")},
};

/** A single document onto standard output, by way of a folder of its own. @param sent  null: not told to the journal */
bool exportToOutput(Task &task, ExportInvoices::Request request, SentDocuments *sent)
{
    QTemporaryDir folder;
    if (!folder.isValid())
        return task.fail(Problem::file, folder.errorString());
    const char *suffix = request.format == csvFormat                            ? "csv"
                         : request.format.value_or(pdfFormat) >= finvoiceFormat ? "xml"
                                                                                : "pdf";
    request.fileName = folder.filePath(QLatin1String("document.") + QLatin1String(suffix));
    QVector<ExportInvoices::File> files;
    if (!ExportInvoices::run(task.context(), request, files))
        return false;
    if (files.size() != 1)
        return task.fail(Problem::rule, text(TEXT("vakiotulosteeseen mahtuu yksi asiakirja, ei %1")).arg(files.size()),
                         QStringLiteral("output"));
    for (const EInvoice::Finding &finding : qAsConst(files.first().findings)) {
        if (finding.severity == EInvoice::Severity::error)
            return task.fail(Problem::rule, FindingTexts::reason(finding), QLatin1String(finding.field));
    }
    if (!files.first().exception.isEmpty())
        return task.session.fail(Failure::scriptException, files.first().exception);
    return (!sent || sent->record(files, QStringLiteral("-"))) && task.answerWithFile(files.first().fileName);
}

bool exportDocuments(Task &task)
{
    auto selection = std::make_shared<InvoiceSelection>();
    ExportInvoices::Request request;
    int kind = -1, format = -1;
    if (!Selection::readInvoices(task, *selection, true) || !Selection::readChoice(task, "as", documentKinds, kind) ||
        !Selection::readChoice(task, "format", formats, format))
        return false;
    if (kind >= 0)
        request.printType = printTypes[kind];
    if (format >= 0)
        request.format = static_cast<PrintFormat>(format);
    if (task.arguments.has("layout")) {
        PrintScript layout;
        const QString name = task.arguments.text("layout");
        if (!Registry::builtInPrintScriptNames().contains(name) &&
            !References::layout(task, QStringLiteral("layout"), name, layout))
            return false;
        request.script = layout.name.isEmpty() ? name : layout.name;
    }
    request.criteria.selection = selection;
    request.criteria.limit = -1;
    request.writeSoap = task.flag("soap");
    request.makesFolders = true;
    request.isTrial = task.manners.isDryRun;
    if (task.arguments.has("csvDelimiter")) {
        request.csvDelimiter = task.arguments.text("csvDelimiter");
        if (request.csvDelimiter.size() != 1)
            return task.reader.failValue(QStringLiteral("csvDelimiter"), request.csvDelimiter,
                                         text(TEXT("erotin on yksi merkki")));
    }
    request.fileName = QDir::fromNativeSeparators(task.arguments.text("output"));
    const bool isCsv = request.format == csvFormat ||
                       (!request.format && request.fileName.endsWith(QLatin1String(".csv"), Qt::CaseInsensitive));
    const bool isForSending = !isCsv && !request.isTrial && !task.flag("noJournal");
    SentDocuments sent(task);
    bool isAny = false;
    if (isForSending ? !sent.prepare(*selection)
                     : !InvoiceReader::read(task, *selection, false, [&isAny](const InvoiceRecord &) {
                           isAny = true;
                           return false;
                       }))
        return false;
    if (!isAny && sent.isEmpty())
        return task.fail(Problem::notFound, text(TEXT("yhtään laskua ei löytynyt")), QStringLiteral("invoices"));
    if (request.fileName == QLatin1String("-") && !request.isTrial)
        return exportToOutput(task, request, isForSending ? &sent : nullptr);
    const QFileInfo place(request.fileName);
    if (place.exists() && !place.isDir() && (!place.isFile() || place.absolutePath() == QLatin1String("/dev")))
        return task.session.fail(Failure::fileUnwritable,
                                 {request.fileName, text(TEXT("se ei ole tavallinen tiedosto"))});
    const QString csvName = request.fileName.isEmpty() ? QStringLiteral("laskut.csv") : request.fileName;
    if (isCsv && QFileInfo::exists(csvName))
        return task.session.fail(Failure::fileExists, {csvName});
    std::unique_ptr<ProgressBar> bar;
    if (task.manners.isInteractive || Terminal::isError())
        request.progress = [&bar](int done, int total) {
            if (!bar)
                bar = std::make_unique<ProgressBar>(total);
            bar->show(done);
        };
    QVector<ExportInvoices::File> files;
    const bool written = ExportInvoices::run(task.context(), request, files);
    bar.reset();
    // Also of a run that broke off: the files that it wrote stay.
    const bool isTold = !isForSending || sent.record(files);
    if (!written || !isTold)
        return false;
    const bool isPlain = task.answer.wantsSentences();
    if (!isPlain && !task.answer.beginList(fileTable, task.session))
        return false;
    for (const ExportInvoices::File &file : qAsConst(files)) {
        FileRecord record;
        record.fileName = file.fileName;
        record.invoiceNumber = file.invoiceId < 0 ? -1 : file.invoiceNumber;
        const QStringList reasons = FindingTexts::errors(file.findings);
        if (!reasons.isEmpty()) {
            record.error = reasons.join(QLatin1String("; "));
            task.exitCode = exitNeedsLook;
        }
        if (!file.exception.isEmpty()) {
            record.error = text(TEXT("%1 (rivi %2)")).arg(file.exception.at(0), file.exception.at(1));
            task.exitCode = exitNeedsLook;
        }
        if (isPlain)
            task.answer.doneLine(
                record.fileName.isEmpty()
                    ? text(TEXT("Laskua %1 ei viety: %2")).arg(QString::number(record.invoiceNumber), record.error)
                : record.error.isEmpty() ? record.fileName
                                         : record.fileName + QLatin1String("  ") + record.error);
        else
            task.answer.add(&record);
    }
    if (!isPlain)
        task.answer.endList();
    return true;
}

constexpr Command commands[] = {
    {"invoice check",
     TEXT("tarkistaa, voiko laskut lähettää verkkolaskuina"),
     checkInvoices,
     Command::lists | Command::companies,
     &checkTable,
     nullptr,
     {group(Selection::invoiceWords), group(Selection::invoiceFilters), group(checkOptions)},
     "invoice check 1001\n"
     "invoice check --open --for peppol"},
    {"invoice export",
     TEXT("laskut tiedostoiksi: PDF, Finvoice tai CSV"),
     exportDocuments,
     Command::paints | Command::eachOnly | Command::lists,
     &fileTable,
     nullptr,
     {group(Selection::invoiceWords), group(Selection::invoiceFilters), group(exportOptions)},
     "invoice export 1001\n"
     "invoice export --overdue --as reminder -o 'muistutukset/$n-$i.pdf'\n"
     "invoice export 1001 --format finvoice --soap"},
};

} // namespace

CommandGroup invoiceDocumentCommands() { return commandGroup(commands); }

#include "commandgroups.h"

#include "archivefile.h"
#include "exportinvoices.h"
#include "exportlist.h"
#include "findingtexts.h"
#include "invoicereader.h"
#include "journal.h"
#include "jsonwriter.h"
#include "monthpage.h"
#include "query.h"
#include "selection.h"
#include "settings.h"
#include "task.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

namespace {

/** What the archive is made of, on its way. */
struct Month {
    MonthPage::Content page;
    InvoiceSelection invoices;
    PaymentCriteria payments;
    QTemporaryDir folder; ///< of documents
    ArchiveFile archive;
    int journalLines = 0;
};

bool addFile(Task &task, Month &month, const QString &path, const QString &name)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return task.session.fail(Failure::fileUnreadable, {path, file.errorString()});
    month.archive.add(name, file.readAll());
    return true;
}

bool readRecords(Task &task, Month &month)
{
    QByteArray payments;
    Query *query = task.context().session.query();
    InvoiceSelection all;
    all.today = task.reader.today();
    const auto take = [&month](const InvoiceRecord &record) {
        month.page.invoices.append(record);
        return true;
    };
    if (!task.context().session.fetch(CachedList::settings) || !InvoiceReader::read(task, month.invoices, true, take))
        return false;
    if (!query->fetchPaymentList(month.payments, all, QString(), false, -1))
        return task.context().session.failQuery();
    while (query->next()) {
        PaymentRecord record;
        query->paymentListRow(&record.payment, &record.invoiceNumber, &record.accountName);
        month.page.payments.append(record);
        JsonWriter(payments).record(paymentTable, &record);
        payments += '\n';
    }
    if (query->hasReadError())
        return task.context().session.failQuery();
    query->finish();
    month.archive.add(QStringLiteral("payments.jsonl"), payments);
    month.page.company = task.session.registry().settings()->sellerName;
    return true;
}

/** The documents of all invoices in one format, each in a file named by its number. */
bool addDocuments(Task &task, Month &month, PrintFormat format, const char *folder)
{
    if (month.page.invoices.isEmpty())
        return true;
    const bool isPaper = format == pdfFormat;
    ExportInvoices::Request request;
    request.criteria.selection = std::make_shared<InvoiceSelection>(month.invoices);
    request.format = format;
    request.makesFolders = true;
    const QString suffix = QLatin1String(isPaper ? ".pdf" : ".xml");
    request.fileName = month.folder.filePath(QLatin1String(folder) + QLatin1String("/$i") + suffix);
    QVector<ExportInvoices::File> files;
    if (!ExportInvoices::run(task.context(), request, files))
        return false;
    for (const ExportInvoices::File &file : qAsConst(files)) {
        const QStringList reasons = file.exception.mid(0, 1) + FindingTexts::errors(file.findings);
        if (!reasons.isEmpty())
            month.page.remarks[file.invoiceId] = reasons.join(QLatin1String("; "));
        if (!file.exception.isEmpty() && isPaper)
            task.exitCode = exitNeedsLook;
        if (file.fileName.isEmpty() || (!isPaper && !reasons.isEmpty()) || !QFileInfo::exists(file.fileName))
            continue;
        const QString name = QLatin1String(folder) + QLatin1Char('/') + QFileInfo(file.fileName).fileName();
        (isPaper ? month.page.papers : month.page.eInvoices).insert(file.invoiceId, name);
        if (!addFile(task, month, file.fileName, name))
            return false;
    }
    return true;
}

bool addLists(Task &task, Month &month)
{
    constexpr struct {
        ExportList::Kind kind;
        const char *name;
    } lists[] = {{ExportList::invoices, "laskuluettelo.pdf"},
                 {ExportList::invoices, "laskuluettelo.csv"},
                 {ExportList::payments, "suorituspaivakirja.pdf"},
                 {ExportList::payments, "suorituspaivakirja.csv"}};
    for (const auto &list : lists) {
        ExportList::Request request;
        request.day = month.page.to;
        if (list.kind == ExportList::invoices) {
            request.invoices.selection = std::make_shared<InvoiceSelection>(month.invoices);
            request.invoices.balanceDate = month.page.to;
        }
        request.payments = month.payments;
        request.fileName = month.folder.filePath(QLatin1String(list.name));
        QString fileName;
        if (!ExportList::run(task.context(), list.kind, request, fileName) ||
            !addFile(task, month, fileName, QLatin1String(list.name)))
            return false;
    }
    return true;
}

bool addJournal(Task &task, Month &month)
{
    Journal::Filter filter;
    filter.from = month.page.from;
    filter.to = month.page.to;
    QByteArray lines;
    const bool done = Journal::read(task, [&](const JournalRecord &line, bool isLine) {
        if (isLine && filter.matches(line)) {
            lines += Journal::text(line) + '\n';
            ++month.journalLines;
        }
        return true;
    });
    month.archive.add(QStringLiteral("journal.jsonl"), lines);
    return done;
}

void addPageAndSums(Month &month)
{
    month.page.files = month.archive.files().keys();
    for (const auto &named : {month.page.papers, month.page.eInvoices}) {
        for (const QString &name : named)
            month.page.files.removeOne(name);
    }
    month.page.files.append(QStringLiteral("SHA256SUMS"));
    month.archive.add(QStringLiteral("index.html"), MonthPage::make(month.page));
    QByteArray sums;
    const QMap<QString, QByteArray> &files = month.archive.files();
    for (auto file = files.cbegin(); file != files.cend(); ++file)
        sums += QCryptographicHash::hash(file.value(), QCryptographicHash::Sha256).toHex() + "  " +
                file.key().toLatin1() + '\n';
    month.archive.add(QStringLiteral("SHA256SUMS"), sums);
}

constexpr Option words[] = {
    {"file", ValueType::file, TEXT("uusi tiedosto, .zip tai .tar.zst"),
     Option::plainWord | Option::required | Option::onlyWord},
    {"date", ValueType::period, TEXT("laskujen, suoritusten ja lähetysten ajanjakso, tavallisesti kuukausi"),
     Option::required},
};

bool make(Task &task)
{
    const QString name = QDir::fromNativeSeparators(task.arguments.text("file"));
    Month month;
    MonthPage::Content &page = month.page;
    if (!Selection::readDays(task, "date", page.from, page.to))
        return false;
    if (!page.from.isValid() || !page.to.isValid())
        return task.reader.failValue(QStringLiteral("date"), task.arguments.text("date"),
                                     text(TEXT("ajanjaksolla pitää olla alku ja loppu")));
    if (!ArchiveFile::isKnown(name))
        return task.reader.failValue(QStringLiteral("file"), name,
                                     text(TEXT("tiedoston nimen lopussa pitää olla .zip tai .tar.zst")));
    if (QFileInfo::exists(name))
        return task.session.fail(Failure::fileExists, {name});
    if (!month.folder.isValid())
        return task.fail(Problem::file, month.folder.errorString());
    month.invoices.today = month.invoices.asOf = page.to;
    month.invoices.dateFrom = month.payments.dateFrom = page.from;
    month.invoices.dateTo = month.payments.dateTo = page.to;
    if (!readRecords(task, month) || !addDocuments(task, month, pdfFormat, "laskut") ||
        !addDocuments(task, month, einvoiceFormat, "verkkolaskut") || !addLists(task, month) ||
        !addJournal(task, month))
        return false;
    addPageAndSums(month);
    const qint64 day = QDateTime(page.to, QTime(0, 0), Qt::UTC).toSecsSinceEpoch();
    if (!task.manners.isDryRun && !month.archive.write(name, day))
        return task.session.fail(Failure::fileUnwritable, {name, month.archive.lastError()});
    task.answer.object(
        [&](JsonWriter &json) {
            json.member("file", name);
            json.name("bytes");
            json.number(QFileInfo(name).size());
            json.member("files", static_cast<int>(month.archive.files().size()));
            json.member("invoices", static_cast<int>(page.invoices.size()));
            json.member("payments", static_cast<int>(page.payments.size()));
            json.member("journalLines", month.journalLines);
        },
        text(TEXT("Arkisto %1: laskuja %2, suorituksia %3, lähetyksiä %4"))
            .arg(name, QString::number(page.invoices.size()), QString::number(page.payments.size()),
                 QString::number(month.journalLines)));
    return true;
}

constexpr Command commands[] = {
    {"archive",
     TEXT("kuukausi kirjanpitäjälle yhtenä tiedostona"),
     make,
     Command::paints | Command::eachOnly,
     nullptr,
     nullptr,
     {group(words)},
     "archive marraskuu.zip --date 2026-11\n"
     "archive edellinen.tar.zst --date last-month",
     TEXT("Laskut PDF-tiedostoina ja verkkolaskuina, luettelot, suoritukset, lähetettyjen päiväkirja, tarkistussummat "
          "ja "
          "sivu index.html. Sama kuukausi samoista tiedoista on tavulleen sama.")},
};

} // namespace

CommandGroup archiveCommands() { return commandGroup(commands); }

#include "sentdocuments.h"

#include "invoicereader.h"
#include "journal.h"
#include "jsonwriter.h"
#include "task.h"
#include "templatestringhelper.h"
#include "texts.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QFile>

#include <algorithm>

namespace {

/** Of PrintFormat. */
constexpr const char *formatWords[] = {"pdf", "csv", "finvoice", "finvoice3", "peppol"};

/** What follows from payments and from the day; it changes without the invoice being another one. */
constexpr const char *passing[] = {"balance", "state", "paid", "payments"};

const JsonMembers &lastingMembers()
{
    static const JsonMembers members = [] {
        QVector<const Field *> fields;
        for (const Field &field : invoiceTable) {
            const bool passes = std::any_of(std::begin(passing), std::end(passing),
                                            [&field](const char *name) { return qstrcmp(name, field.name) == 0; });
            if (!passes)
                fields.append(&field);
        }
        return JsonMembers(fields);
    }();
    return members;
}

/**
 * Leaves out the members without a value, which a later version may have more of: the hash of an invoice stays.
 * A quote within a text stands behind a backslash, so that what is searched for is always a member.
 */
QByteArray withoutEmpty(const QByteArray &json)
{
    QByteArray kept;
    kept.reserve(json.size());
    int from = 0;
    for (int at = json.indexOf("\":"); at >= 0; at = json.indexOf("\":", at + 2)) {
        const int value = at + 2;
        const bool isNull = qstrncmp(json.constData() + value, "null", 4) == 0;
        if (!isNull && qstrncmp(json.constData() + value, "\"\"", 2) != 0)
            continue;
        const int begin = json.lastIndexOf('"', at - 1);
        if (begin < 1 || (json.at(begin - 1) != ',' && json.at(begin - 1) != '{'))
            continue;
        kept.append(json.constData() + from, begin - from);
        from = value + (isNull ? 4 : 2);
    }
    return kept.append(json.constData() + from, json.size() - from);
}

QString hex(const QByteArray &hash) { return QString::fromLatin1(hash.toHex()); }

} // namespace

QString SentDocuments::hashOf(const InvoiceRecord &record)
{
    QByteArray json = "{";
    lastingMembers().append(json, &record);
    return hex(QCryptographicHash::hash(withoutEmpty(json), QCryptographicHash::Sha256));
}

bool SentDocuments::prepare(const InvoiceSelection &selection)
{
    return InvoiceReader::read(m_task, selection, true,
                               [this](const InvoiceRecord &record) {
                                   m_records.insert(record.invoice.id, hashOf(record));
                                   return true;
                               }) &&
           Journal::append(m_task, {});
}

bool SentDocuments::record(const QVector<ExportInvoices::File> &files, const QString &shownName)
{
    QVector<JournalRecord> lines;
    const QString now = QDateTime::currentDateTimeUtc().toString(Qt::ISODate);
    for (const ExportInvoices::File &file : files) {
        QFile document(file.fileName);
        if (file.fileName.isEmpty() || !file.exception.isEmpty() || !document.open(QIODevice::ReadOnly))
            continue; // refused, or its script did not come to its end
        QCryptographicHash hash(QCryptographicHash::Sha256);
        if (!hash.addData(&document))
            return m_task.session.fail(Failure::fileUnreadable, {file.fileName, document.errorString()});
        JournalRecord line;
        line.time = now;
        line.invoiceNumber = file.invoiceNumber;
        line.invoiceId = file.invoiceId;
        line.kind = QLatin1String(journalKinds[qBound(0, file.typeCode, TemplateStringHelper::deliveryNote + 0)].word);
        line.format = QLatin1String(formatWords[file.format]);
        line.file = shownName.isNull() ? file.fileName : shownName;
        line.sha256 = hex(hash.result());
        line.record = m_records.value(file.invoiceId);
        lines.append(line);
    }
    return lines.isEmpty() || Journal::append(m_task, lines);
}

bool SentDocuments::find(Task &task, const QSet<int> &ids, QSet<int> &sent)
{
    const auto take = [&](const JournalRecord &line, bool isLine) {
        if (isLine && ids.contains(line.invoiceId))
            sent.insert(line.invoiceId);
        return sent.size() < ids.size();
    };
    return Journal::read(task, take, ids.size() == 1 ? *ids.begin() : -1);
}

bool SentDocuments::remarkOf(Task &task, const QVector<Invoice> &invoices, QString &remark)
{
    QSet<int> ids, sent;
    for (const Invoice &invoice : invoices)
        ids.insert(invoice.id);
    if (!find(task, ids, sent))
        return false;
    for (const Invoice &invoice : invoices) {
        if (sent.contains(invoice.id)) {
            remark = text(TEXT("Lasku %1 on lähetetty.")).arg(invoice.number) + QLatin1Char(' ');
            break;
        }
    }
    return true;
}

bool SentDocuments::agreesToChange(Task &task, const Invoice &invoice)
{
    if (task.manners.agreesToAll || task.manners.isDryRun)
        return true;
    QSet<int> sent;
    if (!find(task, {invoice.id}, sent))
        return false;
    const bool wasSent = !sent.isEmpty();
    if (wasSent && !task.manners.isInteractive)
        return task.fail(Problem::needsConfirmation,
                         text(TEXT("lasku %1 on lähetetty; muutos vaatii valinnan --yes")).arg(invoice.number));
    return !wasSent || task.confirm(text(TEXT("Lasku %1 on lähetetty. Muutetaanko?")).arg(invoice.number), 1, false);
}

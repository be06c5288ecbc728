#include "commandgroups.h"

#include "invoicereader.h"
#include "query.h"
#include "recordediting.h"
#include "recordfields.h"
#include "records.h"
#include "references.h"
#include "selection.h"
#include "sentdocuments.h"
#include "task.h"
#include "texts.h"
#include "valuewriter.h"
#include "writetransaction.h"

namespace {

constexpr Option invoiceWord = {"invoice", ValueType::invoice, TEXT("lasku"),
                                Option::plainWord | Option::required | Option::onlyWord};
constexpr Option rowWord = {"row", ValueType::position, TEXT("rivin paikka laskulla, ensimmäinen on 1"),
                            Option::plainWord | Option::required | Option::onlyWord};
constexpr Option addWords[] = {
    invoiceWord,
    {"product", ValueType::product, TEXT("tuote; - on rivi ilman tuotetta"), Option::plainWord | Option::required},
    {"quantity", ValueType::quantity, TEXT("määrä; 1, jos sitä ei anneta"), Option::plainWord},
};
constexpr Option editWords[] = {
    invoiceWord,
    rowWord,
    {"product", ValueType::product, TEXT("toinen tuote")},
};
constexpr Option removeWords[] = {invoiceWord,
                                  {"row", ValueType::position, TEXT("rivien paikat laskulla"),
                                   Option::plainWord | Option::required | Option::onlyWord | Option::list}};

/** Ends the change of an invoice's rows: answers with the invoice. */
bool finish(Task &task, int invoiceId, const QString &position, WriteTransaction &transaction, const char *sentence)
{
    InvoiceRecord record;
    if (!InvoiceReader::readWhole(task, invoiceId, record))
        return false;
    const QString place = position.isNull() ? QString::number(record.rows.size()) : position;
    return transaction.commit() && task.answer.saved(invoiceTable, &record,
                                                     text(sentence).arg(QString::number(record.invoice.number), place,
                                                                        ValueWriter::money(record.invoice.totalAmount)),
                                                     task.session);
}

bool findInvoice(Task &task, Invoice &invoice)
{
    return References::invoice(task, QStringLiteral("invoice"), task.arguments.text("invoice"), invoice);
}

/** Before the transaction: while a person thinks, others can write. */
bool agreesToChange(Task &task)
{
    Invoice invoice;
    return findInvoice(task, invoice) && SentDocuments::agreesToChange(task, invoice);
}

bool add(Task &task)
{
    if (!agreesToChange(task))
        return false;
    WriteTransaction transaction(task.context().session);
    Invoice invoice;
    InvoiceItem item;
    if (!transaction.hasBegun() || !findInvoice(task, invoice) ||
        !RecordFields::applyRow(task, task.arguments, true, item))
        return false;
    item.invoiceId = invoice.id;
    return RecordEditing::saveRow(task.context(), item, -1) == InvoiceTotals::Outcome::updated &&
           finish(task, invoice.id, QString(), transaction, TEXT("Lasku %1: rivi %2 lisätty, summa %3"));
}

bool edit(Task &task)
{
    if (!RecordFields::hasAny(rowTable, task.arguments) && !task.arguments.has("product"))
        return task.fail(Problem::missingOption, text(TEXT("mitä muutetaan? Anna kenttiä valintoina")));
    if (!agreesToChange(task))
        return false;
    WriteTransaction transaction(task.context().session);
    Invoice invoice;
    InvoiceItem item;
    const QString position = task.arguments.text("row");
    return transaction.hasBegun() && findInvoice(task, invoice) &&
           References::row(task, QStringLiteral("row"), position, invoice.id, item) &&
           RecordFields::applyRow(task, task.arguments, false, item) &&
           RecordEditing::saveRow(task.context(), item, invoice.id) == InvoiceTotals::Outcome::updated &&
           finish(task, invoice.id, position, transaction, TEXT("Lasku %1: rivi %2 muutettu, summa %3"));
}

bool remove(Task &task)
{
    Invoice invoice;
    if (!findInvoice(task, invoice))
        return false;
    QVector<int> ids;
    const QStringList words = task.arguments.texts("row");
    for (const QString &word : words) {
        InvoiceItem item;
        if (!References::row(task, QStringLiteral("row"), word, invoice.id, item))
            return false;
        if (!ids.contains(item.id))
            ids.append(item.id);
    }
    const QString places = words.join(QLatin1String(", "));
    QString remark;
    if (task.manners.isInteractive && !SentDocuments::remarkOf(task, {invoice}, remark))
        return false;
    if (!task.confirm(remark +
                          text(TEXT("Poistetaanko laskulta %1 rivi %2?")).arg(QString::number(invoice.number), places),
                      ids.size(), false))
        return false;
    WriteTransaction transaction(task.context().session); // not before: while a person thinks, others can write
    if (!transaction.hasBegun())
        return false;
    for (const int id : qAsConst(ids)) {
        if (!task.context().session.query()->deleteInvoiceItem(id))
            return task.context().session.failQuery();
    }
    return InvoiceTotals::updateInvoice(task.context(), invoice.id) == InvoiceTotals::Outcome::updated &&
           finish(task, invoice.id, places, transaction, TEXT("Lasku %1: rivi %2 poistettu, summa %3"));
}

constexpr Command commands[] = {
    {"row add",
     TEXT("uusi rivi laskulle"),
     add,
     Command::writes | Command::adds | Command::keyed,
     &invoiceTable,
     &rowTable,
     {group(addWords)},
     "row add 1001 S1 120 --discount 10"},
    {"row edit",
     TEXT("muuttaa laskun riviä"),
     edit,
     Command::writes,
     &invoiceTable,
     &rowTable,
     {group(editWords)},
     "row edit 1001 2 --quantity 3"},
    {"row remove",
     TEXT("poistaa laskun rivejä"),
     remove,
     Command::writes | Command::destructive,
     &invoiceTable,
     nullptr,
     {group(removeWords)},
     "row remove 1001 2 --yes"},
};

} // namespace

CommandGroup rowCommands() { return commandGroup(commands); }

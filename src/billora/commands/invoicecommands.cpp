#include "commandgroups.h"

#include "editorfile.h"
#include "einvoiceterms.h"
#include "exportinvoices.h"
#include "integer.h"
#include "invoicereader.h"
#include "invoicewriter.h"
#include "jsonarguments.h"
#include "jsonwriter.h"
#include "optionparser.h"
#include "prompt.h"
#include "query.h"
#include "recordediting.h"
#include "recordfields.h"
#include "records.h"
#include "references.h"
#include "rowwords.h"
#include "selection.h"
#include "sentdocuments.h"
#include "sharedoptions.h"
#include "task.h"
#include "terminal.h"
#include "valuewriter.h"
#include "writetransaction.h"

#include <QFile>

namespace {

bool list(Task &task)
{
    InvoiceSelection selection;
    task.answer.setFull(task.flag("full"));
    if (!Selection::readInvoices(task, selection, false) || !task.answer.beginList(invoiceTable, task.session))
        return false;
    const bool read = InvoiceReader::read(task, selection, task.answer.shows(Field::detail),
                                          [&task](const InvoiceRecord &record) { return task.answer.add(&record); });
    if (read)
        task.answer.endList();
    return read;
}

constexpr Option showWords[] = {
    {"invoice", ValueType::invoice, TEXT("lasku"), Option::plainWord | Option::required | Option::onlyWord},
};

bool show(Task &task)
{
    Invoice invoice;
    InvoiceRecord record;
    return References::invoice(task, QStringLiteral("invoice"), task.arguments.text("invoice"), invoice) &&
           InvoiceReader::readWhole(task, invoice.id, record) && task.answer.show(invoiceTable, &record, task.session);
}

/** What the commands that make or change an invoice answer with; the sentence's "%1" to "%5" are the invoice's. */
bool answer(Task &task, const InvoiceRecord &record, const char *sentence)
{
    const Invoice &invoice = record.invoice;
    if (!task.answer.wantsSentences())
        return task.answer.saved(invoiceTable, &record, QString(), task.session);
    const QString line = text(sentence).arg(QString::number(invoice.number), record.customerName,
                                            ValueWriter::money(invoice.totalAmount), ValueWriter::date(invoice.dueDate),
                                            Invoice::formatReferenceNumber(invoice.referenceNumber));
    return task.answer.saved(invoiceTable, &record, line, task.session);
}

constexpr char savedSentence[] = TEXT("Lasku %1 lisätty: %2, %3, eräpäivä %4, viite %5");
constexpr char changedSentence[] = TEXT("Lasku %1 muutettu: %2, %3, eräpäivä %4, viite %5");
constexpr char creditedSentence[] = TEXT("Hyvityslasku %1 lisätty: %2, %3, eräpäivä %4, viite %5");

/**
 * The PDF of an invoice that was just made. Within its transaction: without the document the invoice is not made
 * either.
 */
bool exportNew(Task &task, int id, SentDocuments &sent, QVector<ExportInvoices::File> &files)
{
    ExportInvoices::Request request;
    request.criteria.id = id;
    request.isTrial = task.manners.isDryRun;
    InvoiceSelection selection;
    selection.ids.append(id);
    selection.today = task.reader.today();
    DatabaseSession &session = task.context().session;
    const bool wasEnclosed = session.isEnclosed();
    session.setEnclosed(true);
    const bool isMade =
        (request.isTrial || sent.prepare(selection)) && ExportInvoices::run(task.context(), request, files);
    session.setEnclosed(wasEnclosed);
    if (!isMade || files.first().exception.isEmpty())
        return isMade;
    QFile::remove(files.first().fileName);
    return task.session.fail(Failure::scriptException, files.first().exception);
}

/** Ends the making of an invoice: its rows, its document, the answer, and the commit between them. */
bool finish(Task &task, InvoiceEditor &editor, QVector<InvoiceItem> &rows, WriteTransaction &transaction,
            const char *sentence)
{
    if (!RecordEditing::addInvoice(task.context(), editor, rows))
        return false;
    const InvoiceRecord record = InvoiceReader::ofSaved(task, editor.invoice(), editor.customer(), rows);
    SentDocuments sent(task);
    QVector<ExportInvoices::File> files;
    const bool isExported = task.flag("export");
    if (isExported && !exportNew(task, record.invoice.id, sent, files))
        return false;
    if (!transaction.commit()) {
        for (const ExportInvoices::File &file : qAsConst(files))
            QFile::remove(file.fileName);
        return false;
    }
    if ((isExported && !task.manners.isDryRun && !sent.record(files)) || !answer(task, record, sentence))
        return false;
    for (const ExportInvoices::File &file : qAsConst(files)) {
        if (task.answer.wantsSentences())
            task.answer.doneLine(file.fileName);
    }
    if (!isExported)
        task.answer.hint(text(TEXT("Seuraavaksi: ")) +
                         QStringLiteral("billora invoice export %1").arg(record.invoice.number));
    return true;
}

constexpr Option addOptions[] = {
    {"customer", ValueType::customer, TEXT("asiakas"), Option::plainWord | Option::required},
    {"row", ValueType::row, TEXT("rivi: \"TUOTE [MÄÄRÄ] [KENTTÄ=ARVO]…\"; - on rivi ilman tuotetta"), Option::list},
    {"from", ValueType::file, TEXT("kentät ja rivit JSON-tiedostosta; - on vakiosyöte")},
    {"export", ValueType::flag, TEXT("kirjoittaa myös PDF-tiedoston")},
};

/** Joins the fields of a file with those of the line. */
bool readFrom(Task &task, Arguments &given)
{
    if (!given.has("from"))
        return true;
    const QString name = given.text("from");
    QFile file(name);
    const bool isOpen =
        name == QLatin1String("-") ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly);
    if (!isOpen)
        return task.fail(Problem::file, text(TEXT("tiedostoa %1 ei voi lukea: %2")).arg(name, file.errorString()),
                         QStringLiteral("from"), name);
    Arguments read;
    if (!JsonArguments::readObject(task.reader, file.readAll(), read))
        return false;
    const QStringList names = read.names();
    for (const QString &field : names) {
        const bool isKnown = field == QLatin1String("customer") ||
                             (invoiceTable.find(field) && invoiceTable.find(field)->is(Field::editable));
        if (!isKnown)
            return task.fail(Problem::unknownField, text(TEXT("kenttää ei ole: %1")).arg(field), field);
        if (given.has(field))
            return task.fail(Problem::conflict, text(TEXT("kenttä on kahdesti: %1")).arg(field), field);
        given.add(field, read.text(field));
    }
    given.rows += read.rows;
    return true;
}

/** Asks a person for what a new invoice needs. @return false when they gave up */
bool ask(Task &task, Arguments &given)
{
    QString customer, row;
    if (Prompt::ask(text(TEXT("Asiakas")), QString(), customer) != Prompt::answered || customer.isEmpty())
        return task.fail(Problem::declined, text(TEXT("mitään ei tehty")));
    Customer found;
    if (!References::customer(task, QStringLiteral("customer"), customer, found))
        return false;
    given.add(QStringLiteral("customer"), QStringLiteral("id:%1").arg(found.id));
    while (given.rows.isEmpty() || !row.isEmpty()) {
        row.clear();
        if (Prompt::ask(text(TEXT("Rivi (TUOTE MÄÄRÄ, tyhjä lopettaa)")), QString(), row) != Prompt::answered)
            return task.fail(Problem::declined, text(TEXT("mitään ei tehty")));
        if (row.isEmpty())
            break;
        Arguments words;
        InvoiceItem item;
        if (RowWords::parse(task.reader, QStringLiteral("row"), row, words) &&
            RecordFields::applyRow(task, words, true, item)) {
            given.rows.append(words);
            continue;
        }
        Terminal::writeError(task.session.problem().message);
        task.session.clearProblem();
    }
    return true;
}

bool add(Task &task)
{
    Arguments given = task.arguments;
    if (!readFrom(task, given) || !InvoiceWriter::takeRowWords(task, given))
        return false;
    const bool asked = !given.has("customer");
    if (asked) {
        if (!task.manners.isInteractive)
            return task.fail(OptionParser::missing(task.command, task.arguments));
        if (!ask(task, given))
            return false;
    }
    WriteTransaction transaction(task.context().session);
    if (!transaction.hasBegun())
        return false;
    InvoiceEditor editor(task.context());
    QVector<InvoiceItem> rows;
    if (!editor.begin() || !InvoiceWriter::applyFields(task, given, editor) ||
        !InvoiceWriter::readRows(task, given.rows, rows))
        return false;
    if (asked) {
        long long total = 0;
        for (const InvoiceItem &row : qAsConst(rows))
            total += row.totalAmountVatIncluded();
        if (!task.manners.agreesToAll && !Prompt::agrees(text(TEXT("Lasku %1: %2, %3. Tallennetaanko?"))
                                                             .arg(QString::number(editor.invoice().number),
                                                                  editor.customer().name, ValueWriter::money(total))))
            return task.fail(Problem::declined, text(TEXT("mitään ei tehty")));
    }
    return finish(task, editor, rows, transaction, savedSentence);
}

constexpr Option editWords[] = {
    {"invoice", ValueType::invoice, TEXT("lasku"), Option::plainWord | Option::required | Option::onlyWord},
    {"customer", ValueType::customer, TEXT("asiakas")},
};

/** @param seen  what was shown to a person who edited it; null when nothing was */
bool change(Task &task, const QString &word, const Arguments &given, const InvoiceRecord *seen)
{
    WriteTransaction transaction(task.context().session);
    if (!transaction.hasBegun())
        return false;
    Invoice stored;
    InvoiceEditor editor(task.context());
    InvoiceRecord record;
    if (!References::invoice(task, QStringLiteral("invoice"), word, stored) || !editor.begin())
        return false;
    if (seen) {
        const auto json = [](const InvoiceRecord &shown) {
            QByteArray bytes;
            JsonWriter(bytes).record(invoiceTable, &shown);
            return bytes;
        };
        if (!InvoiceReader::readWhole(task, stored.id, record))
            return false;
        if (json(record) != json(*seen))
            return task.fail(Problem::changedMeanwhile, text(TEXT("joku muu on muuttanut tietoja sillä välin")));
    }
    if (!editor.edit(stored) || !InvoiceWriter::applyFields(task, given, editor) || !editor.save())
        return false;
    if (given.hasRows) {
        QVector<InvoiceItem> rows;
        if (!InvoiceWriter::readRows(task, given.rows, rows))
            return false;
        if (!task.context().session.query()->deleteInvoiceItems(stored.id))
            return task.context().session.failQuery();
        if (!RecordEditing::addRows(task.context(), stored.id, rows))
            return false;
    }
    task.context().lastSaved.invoice = stored.id;
    return InvoiceReader::readWhole(task, stored.id, record) && transaction.commit() &&
           answer(task, record, changedSentence);
}

bool edit(Task &task)
{
    const QString word = task.arguments.text("invoice");
    const bool hasFields =
        task.arguments.has("customer") || task.arguments.hasRows || RecordFields::hasAny(invoiceTable, task.arguments);
    if (!hasFields && !task.manners.isInteractive)
        return task.fail(Problem::missingOption, text(TEXT("mitä muutetaan? Anna kenttiä valintoina")));
    Invoice invoice;
    InvoiceRecord seen;
    if (!References::invoice(task, QStringLiteral("invoice"), word, invoice) ||
        !SentDocuments::agreesToChange(task, invoice))
        return false;
    if (hasFields)
        return change(task, word, task.arguments, nullptr);
    if (!InvoiceReader::readWhole(task, invoice.id, seen))
        return false;
    const QStringList rows = InvoiceWriter::rowLines(seen);
    bool isUnchanged = false;
    const bool edited = EditorFile::edit(
        task, invoiceTable, &seen, &rows,
        [&](const Arguments &changed) { return change(task, QStringLiteral("id:%1").arg(invoice.id), changed, &seen); },
        isUnchanged);
    return edited && (!isUnchanged || answer(task, seen, TEXT("Mitään ei muutettu: lasku %1")));
}

bool remove(Task &task)
{
    InvoiceSelection selection;
    if (!Selection::readInvoices(task, selection, true))
        return false;
    QVector<InvoiceRecord> records;
    QVector<Invoice> invoices;
    if (!InvoiceReader::read(task, selection, false, [&](const InvoiceRecord &record) {
            records.append(record);
            invoices.append(record.invoice);
            return true;
        }))
        return false;
    if (records.isEmpty())
        return task.fail(Problem::notFound, text(TEXT("yhtään laskua ei löytynyt")), QStringLiteral("invoices"));
    QStringList handles, lines;
    for (const InvoiceRecord &record : qAsConst(records)) {
        handles.append(QString::number(record.invoice.number));
        if (lines.size() < 10)
            lines.append(QStringLiteral("  %1  %2  %3  %4")
                             .arg(QString::number(record.invoice.number), ValueWriter::date(record.invoice.date),
                                  record.customerName, ValueWriter::money(record.invoice.totalAmount)));
    }
    QString remark;
    if (task.manners.isInteractive && !SentDocuments::remarkOf(task, invoices, remark))
        return false;
    const QString all = records.size() == 1
                            ? text(TEXT("Poistetaanko lasku riveineen ja suorituksineen?"))
                            : text(TEXT("Poistetaanko %1 laskua riveineen ja suorituksineen?")).arg(records.size());
    const QString question = lines.join(QLatin1Char('\n')) + QLatin1Char('\n') + remark + all;
    if (!task.confirm(question, records.size(), task.flag("all")))
        return false;
    WriteTransaction transaction(task.context().session); // not before: while a person thinks, others can write
    if (!transaction.hasBegun())
        return false;
    for (const Invoice &invoice : qAsConst(invoices)) {
        if (!RecordEditing::removeInvoice(task.context(), invoice.id))
            return false;
    }
    if (!transaction.commit())
        return false;
    task.answer.removed(handles);
    return true;
}

constexpr Option copyWords[] = {
    {"invoice", ValueType::invoice, TEXT("lasku"), Option::plainWord | Option::required | Option::onlyWord},
    {"customer", ValueType::customer, TEXT("asiakas, jos toinen")},
    {"export", ValueType::flag, TEXT("kirjoittaa myös PDF-tiedoston")},
};

/** A new invoice of today for the same customer with the values of another. */
bool startCopy(Task &task, const Invoice &original, InvoiceEditor &editor)
{
    if (!editor.begin())
        return false;
    Customer customer;
    if (!task.context().finder.findCustomerById(original.customerId, &customer) && !task.arguments.has("customer"))
        return false;
    task.session.clearProblem();
    Invoice &invoice = editor.invoice();
    invoice.delivery = original.delivery;
    invoice.buyerRef = original.buyerRef;
    invoice.sellerRef = original.sellerRef;
    invoice.interestOnArrears = original.interestOnArrears;
    for (const char *key : EInvoiceTerms::copied)
        invoice.setPropertyIfNotEmpty(QLatin1String(key), original.property(QLatin1String(key)).toString());
    if (customer.id >= 0)
        editor.useCustomer(customer);
    return editor.setPaymentTerms(original.paymentTerms);
}

bool copy(Task &task)
{
    WriteTransaction transaction(task.context().session);
    Invoice stored;
    InvoiceRecord original;
    InvoiceEditor editor(task.context());
    if (!transaction.hasBegun() ||
        !References::invoice(task, QStringLiteral("invoice"), task.arguments.text("invoice"), stored) ||
        !InvoiceReader::readWhole(task, stored.id, original) || !startCopy(task, stored, editor))
        return false;
    editor.invoice().type = stored.type;
    Arguments given = task.arguments;
    if (!given.has("paymentTerms"))
        given.add(QStringLiteral("paymentTerms"), stored.paymentTerms);
    if (!InvoiceWriter::applyFields(task, given, editor))
        return false;
    QVector<InvoiceItem> rows;
    for (const RowRecord &row : qAsConst(original.rows)) {
        rows.append(row.item);
        rows.last().id = -1;
    }
    return finish(task, editor, rows, transaction, savedSentence);
}

constexpr Option creditWords[] = {
    {"invoice", ValueType::invoice, TEXT("hyvitettävä lasku"), Option::plainWord | Option::required | Option::onlyWord},
    {"only", ValueType::text, TEXT("vain nämä rivit, pilkuin erotettuina: 1,3"), 0, nullptr, 0, "ROWS"},
    {"export", ValueType::flag, TEXT("kirjoittaa myös PDF-tiedoston")},
};

/** The positions that `only` names, all when it is not given. */
bool readOnly(Task &task, int count, QVector<int> &positions)
{
    if (!task.arguments.has("only")) {
        for (int i = 0; i < count; ++i)
            positions.append(i);
        return true;
    }
    const QString value = task.arguments.text("only");
    const QStringList words = value.split(QLatin1Char(','));
    for (const QString &word : words) {
        bool isNumber = false;
        const int position = Integer::parse(word.trimmed(), isNumber);
        if (!isNumber || position < 1 || position > count || positions.contains(position - 1))
            return task.reader.failValue(QStringLiteral("only"), value,
                                         text(TEXT("laskun rivejä 1–%1, kukin kerran")).arg(count));
        positions.append(position - 1);
    }
    return true;
}

bool credit(Task &task)
{
    WriteTransaction transaction(task.context().session);
    Invoice stored;
    InvoiceRecord original;
    InvoiceEditor editor(task.context());
    QVector<int> positions;
    if (!transaction.hasBegun() ||
        !References::invoice(task, QStringLiteral("invoice"), task.arguments.text("invoice"), stored))
        return false;
    if (stored.type == Invoice::creditNote)
        return task.fail(Problem::rule, text(TEXT("lasku %1 on jo hyvityslasku")).arg(stored.number),
                         QStringLiteral("invoice"), task.arguments.text("invoice"));
    if (!InvoiceReader::readWhole(task, stored.id, original) || !readOnly(task, original.rows.size(), positions) ||
        !startCopy(task, stored, editor))
        return false;
    Invoice &invoice = editor.invoice();
    invoice.type = Invoice::creditNote;
    invoice.buyerRef = QStringLiteral("Lasku %1").arg(stored.number); // of the document, not of the program
    invoice.setProperty(QLatin1String(EInvoiceTerms::creditedInvoice), QString::number(stored.number));
    invoice.setProperty(QLatin1String(EInvoiceTerms::creditedDate), stored.date.toString(Qt::ISODate));
    Arguments given = task.arguments;
    if (!given.has("paymentTerms"))
        given.add(QStringLiteral("paymentTerms"), stored.paymentTerms);
    if (!InvoiceWriter::applyFields(task, given, editor))
        return false;
    QVector<InvoiceItem> rows;
    for (const int position : qAsConst(positions)) {
        rows.append(original.rows.at(position).item);
        rows.last().id = -1;
        rows.last().quantity = -rows.last().quantity;
    }
    return finish(task, editor, rows, transaction, creditedSentence);
}

constexpr Command commands[] = {
    {"invoice list",
     TEXT("luettelo laskuista"),
     list,
     Command::lists | Command::companies,
     &invoiceTable,
     nullptr,
     {group(Selection::invoiceWords), group(Selection::invoiceFilters), group(fullOption)},
     "invoice list --open\n"
     "invoice list --overdue --sort -balance\n"
     "invoice list --customer 10 --date 2026\n"
     "invoice list 1001-1010 --jsonl"},
    {"invoice show",
     TEXT("koko lasku: rivit, verot, suoritukset"),
     show,
     0,
     &invoiceTable,
     nullptr,
     {group(showWords)},
     "invoice show 1001\n"
     "invoice show @last --json"},
    {"invoice add",
     TEXT("uusi lasku; seuraava numero ja viite"),
     add,
     Command::writes | Command::adds | Command::keyed | Command::paints | Command::asks,
     &invoiceTable,
     &invoiceTable,
     {group(addOptions)},
     "invoice add aallotar --row \"S1 120\"\n"
     "invoice add 10 --row \"T1 6,5 discount=10 text=Pitäjänkartta 1786\"\n"
     "invoice add 10 --row \"- 1 name='Painotyö' price=80 vatRate=25.5\""},
    {"invoice edit",
     TEXT("muuttaa laskua; ilman kenttiä muokkaimessa riveineen"),
     edit,
     Command::writes,
     &invoiceTable,
     &invoiceTable,
     {group(editWords)},
     "invoice edit 1001 --due-date +14d\n"
     "invoice edit 1001"},
    {"invoice remove",
     TEXT("poistaa laskuja riveineen ja suorituksineen"),
     remove,
     Command::writes | Command::destructive,
     nullptr,
     nullptr,
     {group(Selection::invoiceWords), group(Selection::invoiceFilters), group(Selection::allOption)},
     "invoice remove 1001 --yes"},
    {"invoice copy",
     TEXT("uusi lasku samoin rivein"),
     copy,
     Command::writes | Command::keyed | Command::paints,
     &invoiceTable,
     &invoiceTable,
     {group(copyWords)},
     "invoice copy @last --date +7d"},
    {"invoice credit",
     TEXT("hyvityslasku, joka viittaa alkuperäiseen"),
     credit,
     Command::writes | Command::keyed | Command::paints,
     &invoiceTable,
     &invoiceTable,
     {group(creditWords)},
     "invoice credit 1001\n"
     "invoice credit 1001 --only 1,3"},
};

} // namespace

CommandGroup invoiceCommands() { return commandGroup(commands); }

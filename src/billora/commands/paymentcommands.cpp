#include "commandgroups.h"

#include "customer.h"
#include "importpayments.h"
#include "paymentcriteria.h"
#include "query.h"
#include "recordediting.h"
#include "recordfields.h"
#include "records.h"
#include "references.h"
#include "selection.h"
#include "sharedoptions.h"
#include "task.h"
#include "valuewriter.h"
#include "writetransaction.h"

namespace {

constexpr Option listOptions[] = {
    {"invoice", ValueType::invoices, TEXT("laskujen numeroita ja välejä"), Option::list},
    {"customer", ValueType::customer, TEXT("asiakkaan suoritukset")},
    {"account", ValueType::account, TEXT("pankkitilin suoritukset")},
    {"date", ValueType::period, TEXT("suorituksen päivä tai ajanjakso")},
    {"since", ValueType::date, TEXT("tästä päivästä alkaen")},
    {"until", ValueType::date, TEXT("tähän päivään asti")},
    {"sort", ValueType::text, TEXT("kenttä, jonka mukaan järjestetään; - edessä laskevasti"), 0, nullptr, 0, "FIELD"},
    {"limit", ValueType::integer, TEXT("enintään näin monta, järjestämisen jälkeen")},
};

bool list(Task &task)
{
    PaymentCriteria payments;
    InvoiceSelection invoices;
    invoices.today = task.reader.today();
    QString sort;
    bool descending = false;
    int limit = -1;
    if (!Selection::readInvoiceWords(task, "invoice", invoices) ||
        !Selection::readDays(task, "date", payments.dateFrom, payments.dateTo) ||
        !Selection::readSort(task, Query::paymentSortKeys(), sort, descending) || !Selection::readLimit(task, limit))
        return false;
    if (task.arguments.has("customer")) {
        Customer customer;
        if (!References::customer(task, QStringLiteral("customer"), task.arguments.text("customer"), customer))
            return false;
        invoices.customerId = customer.id;
    }
    if (task.arguments.has("account")) {
        BankAccount account;
        if (!References::account(task, QStringLiteral("account"), task.arguments.text("account"), account))
            return false;
        payments.bankAccountId = account.id;
    }
    Query *query = task.context().session.query();
    task.answer.setFull(task.flag("full"));
    if (!task.answer.beginList(paymentTable, task.session))
        return false;
    if (!query->fetchPaymentList(payments, invoices, sort, descending, limit))
        return task.context().session.failQuery();
    bool isWanted = true;
    while (isWanted && query->next()) {
        PaymentRecord record;
        query->paymentListRow(&record.payment, &record.invoiceNumber, &record.accountName);
        isWanted = task.answer.add(&record);
    }
    if (isWanted && query->hasReadError())
        return task.context().session.failQuery();
    query->finish();
    task.answer.endList();
    return true;
}

constexpr Option words[] = {
    {"payment", ValueType::payment, TEXT("suoritus"), Option::plainWord | Option::required | Option::onlyWord},
};

/** Adds what people see of the neighbours. */
bool complete(Task &task, PaymentRecord &record)
{
    Invoice invoice;
    if (!task.context().finder.findInvoiceById(record.payment.invoiceId, &invoice))
        return false;
    record.invoiceNumber = invoice.number;
    if (record.payment.bankAccountId < 0)
        return true;
    if (!task.context().session.fetch(CachedList::bankAccounts))
        return false;
    bool isKnown = false;
    const BankAccount *account = task.session.registry().bankAccountById(record.payment.bankAccountId, isKnown);
    if (isKnown)
        record.accountName = account->name;
    return true;
}

bool show(Task &task)
{
    PaymentRecord record;
    return References::payment(task, QStringLiteral("payment"), task.arguments.text("payment"), record.payment) &&
           complete(task, record) && task.answer.show(paymentTable, &record, task.session);
}

constexpr Option addWords[] = {
    {"invoice", ValueType::invoice, TEXT("lasku"), Option::plainWord | Option::required},
    {"amount", ValueType::money, TEXT("suorituksen summa; koko avoin summa, jos sitä ei anneta"), Option::plainWord},
    {"account", ValueType::account, TEXT("pankkitili, jolle suoritus tuli")},
};
constexpr Option editOptions[] = {
    {"invoice", ValueType::invoice, TEXT("lasku")},
    {"account", ValueType::account, TEXT("pankkitili, jolle suoritus tuli")},
};

/** What is given of the payment, besides the invoice. */
bool applyFields(Task &task, Payment &payment)
{
    if (task.arguments.has("account")) {
        const QString word = task.arguments.text("account");
        BankAccount account;
        if (!word.isEmpty() && !References::account(task, QStringLiteral("account"), word, account))
            return false;
        payment.bankAccountId = word.isEmpty() ? -1 : account.id;
    }
    return RecordFields::apply(task.reader, paymentTable, task.arguments, &payment);
}

bool save(Task &task, PaymentRecord &record, int earlierInvoiceId, const char *sentence)
{
    WriteTransaction transaction(task.context().session);
    if (!transaction.hasBegun())
        return false;
    Invoice invoice;
    const bool hasInvoice = task.arguments.has("invoice");
    if (hasInvoice && !References::invoice(task, QStringLiteral("invoice"), task.arguments.text("invoice"), invoice))
        return false;
    Payment &payment = record.payment;
    if (earlierInvoiceId < 0) {
        payment.date = task.reader.today();
        payment.amount = invoice.balance;
    }
    if (hasInvoice)
        payment.invoiceId = invoice.id;
    if (!applyFields(task, payment))
        return false;
    if (payment.amount == 0)
        return task.fail(Problem::rule, text(TEXT("suorituksen summa on nolla")), QStringLiteral("amount"));
    if (RecordEditing::savePayment(task.context(), payment, earlierInvoiceId) != InvoiceTotals::Outcome::updated)
        return false;
    if (!complete(task, record) || !task.context().finder.findInvoiceById(payment.invoiceId, &invoice) ||
        !transaction.commit())
        return false;
    return task.answer.saved(paymentTable, &record,
                             text(sentence).arg(QString::number(invoice.number), ValueWriter::money(payment.amount),
                                                ValueWriter::money(invoice.balance)),
                             task.session);
}

bool add(Task &task)
{
    PaymentRecord record;
    return save(task, record, -1, TEXT("Lasku %1: suoritus %2 tallennettu, avoinna %3"));
}

bool edit(Task &task)
{
    PaymentRecord record;
    const bool hasFields = RecordFields::hasAny(paymentTable, task.arguments) || task.arguments.has("invoice") ||
                           task.arguments.has("account");
    if (!hasFields)
        return task.fail(Problem::missingOption, text(TEXT("mitä muutetaan? Anna kenttiä valintoina")));
    return References::payment(task, QStringLiteral("payment"), task.arguments.text("payment"), record.payment) &&
           save(task, record, record.payment.invoiceId, TEXT("Lasku %1: suoritus %2 muutettu, avoinna %3"));
}

constexpr Option removeWords[] = {
    {"payment", ValueType::payment, TEXT("suoritukset"),
     Option::plainWord | Option::required | Option::onlyWord | Option::list},
};

bool remove(Task &task)
{
    QVector<PaymentRecord> records;
    QStringList names, handles;
    const QStringList given = task.arguments.texts("payment");
    for (const QString &word : given) {
        PaymentRecord record;
        if (!References::payment(task, QStringLiteral("payment"), word, record.payment) || !complete(task, record))
            return false;
        const QString handle = QString::number(record.payment.id);
        if (handles.contains(handle))
            continue;
        handles.append(handle);
        names.append(
            text(TEXT("%1 (lasku %2, %3)"))
                .arg(handle, QString::number(record.invoiceNumber), ValueWriter::money(record.payment.amount)));
        records.append(record);
    }
    if (!task.confirm(text(TEXT("Poistetaanko suoritus %1?")).arg(names.join(QLatin1String(", "))), records.size(),
                      false))
        return false;
    WriteTransaction transaction(task.context().session);
    if (!transaction.hasBegun())
        return false;
    for (const PaymentRecord &record : qAsConst(records)) {
        if (!task.context().session.query()->deletePayment(record.payment.id))
            return task.context().session.failQuery();
        if (InvoiceTotals::updateInvoice(task.context(), record.payment.invoiceId) != InvoiceTotals::Outcome::updated)
            return false;
    }
    if (!transaction.commit())
        return false;
    task.answer.removed(handles);
    return true;
}

constexpr Option importWords[] = {
    {"file", ValueType::file, TEXT("pankin tiedostoja: tiliote, viitemaksut, CSV tai camt"),
     Option::plainWord | Option::required | Option::onlyWord | Option::list},
};

bool importFiles(Task &task)
{
    QVector<ImportedPayment> payments;
    const QStringList files = task.arguments.texts("file");
    for (const QString &file : files) {
        if (!ImportPayments::readFile(task.context(), file, payments))
            return false;
    }
    WriteTransaction transaction(task.context().session);
    if (!transaction.hasBegun() || !ImportPayments::save(task.context(), payments) || !transaction.commit() ||
        !task.answer.beginList(importTable, task.session))
        return false;
    int saved = 0, open = 0;
    long long sum = 0;
    for (const ImportedPayment &payment : qAsConst(payments)) {
        task.answer.add(&payment);
        if (payment.result == ImportResult::saved) {
            ++saved;
            sum += payment.amount;
        } else if (payment.result != ImportResult::alreadyImported) {
            ++open;
        }
        if (payment.result == ImportResult::error || payment.result == ImportResult::ambiguous)
            task.exitCode = exitNeedsLook;
    }
    task.answer.endList();
    if (task.answer.options().isTerminal && task.answer.wantsSentences())
        task.answer.doneLine(text(TEXT("Tallennettu %1 (%2), kohdistamatta %3."))
                                 .arg(QString::number(saved), ValueWriter::money(sum), QString::number(open)));
    return true;
}

constexpr Command commands[] = {
    {"payment list",
     TEXT("luettelo suorituksista"),
     list,
     Command::lists | Command::companies,
     &paymentTable,
     nullptr,
     {group(listOptions), group(fullOption)},
     "payment list --date this-month\n"
     "payment list --invoice 1001"},
    {"payment show", TEXT("suorituksen tiedot"), show, 0, &paymentTable, nullptr, {group(words)}, "payment show 1"},
    {"payment add",
     TEXT("suoritus laskulle"),
     add,
     Command::writes | Command::adds | Command::keyed,
     &paymentTable,
     &paymentTable,
     {group(addWords)},
     "payment add 1001\n"
     "payment add 1001 100,00 --date yesterday"},
    {"payment edit",
     TEXT("muuttaa suoritusta"),
     edit,
     Command::writes,
     &paymentTable,
     &paymentTable,
     {group(words), group(editOptions)},
     "payment edit 1 --amount 120"},
    {"payment remove",
     TEXT("poistaa suorituksia; laskut avautuvat"),
     remove,
     Command::writes | Command::destructive,
     nullptr,
     nullptr,
     {group(removeWords)},
     "payment remove 1 --yes"},
    {"payment import",
     TEXT("suoritukset pankin tiedostoista, kukin kerran"),
     importFiles,
     Command::writes | Command::lists | Command::keyed,
     &importTable,
     nullptr,
     {group(importWords)},
     "payment import tiliote.xml"},
};

} // namespace

CommandGroup paymentCommands() { return commandGroup(commands); }

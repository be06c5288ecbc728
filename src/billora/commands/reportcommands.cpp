#include "commandgroups.h"

#include "exportlist.h"
#include "records.h"
#include "references.h"
#include "selection.h"
#include "suggestions.h"
#include "task.h"

#include <QDir>
#include <QTemporaryDir>

namespace {

constexpr Option fileOptions[] = {
    {"output", ValueType::file, TEXT("tiedoston nimi; sen pääte on muoto, .pdf tai .csv; - on vakiotuloste"), 0,
     nullptr, 'o', "FILE"},
    {"columns", ValueType::text, TEXT("sarakkeet, pilkuin erotettuina"), 0, nullptr, 0, "COLUMNS"},
    {"landscape", ValueType::flag, TEXT("sivu vaakaan")},
    {"csvDelimiter", ValueType::text, TEXT("CSV-tiedoston erotin")},
};
constexpr Option sortOption[] = {
    {"sort", ValueType::text, TEXT("sarake, jonka mukaan järjestetään"), 0, nullptr, 0, "COLUMN"},
};
constexpr Option paymentFilters[] = {
    {"invoice", ValueType::invoices, TEXT("laskujen numeroita ja välejä"), Option::list},
    {"customer", ValueType::customer, TEXT("asiakkaan suoritukset")},
    {"account", ValueType::account, TEXT("pankkitilin suoritukset")},
    {"date", ValueType::period, TEXT("suorituksen päivä tai ajanjakso")},
    {"since", ValueType::date, TEXT("tästä päivästä alkaen")},
    {"until", ValueType::date, TEXT("tähän päivään asti")},
};

/** The number of a column. @return -1 with the problem told */
int columnOf(Task &task, ExportList::Kind kind, const char *option, const QString &name)
{
    const QStringList known = ExportList::columns(kind);
    const int number = known.indexOf(name);
    if (number >= 0)
        return number;
    Problem problem;
    problem.code = Problem::unknownField;
    problem.message = text(TEXT("saraketta ei ole: %1")).arg(name);
    problem.option = QLatin1String(option);
    problem.value = name;
    const QStringList near = Suggestions::nearest(name, known);
    for (const QString &column : near.isEmpty() ? known : near)
        problem.suggestions.append({column, QString()});
    task.fail(problem);
    return -1;
}

/** By way of a folder of its own. */
bool writeToOutput(Task &task, ExportList::Kind kind, ExportList::Request &request)
{
    const QTemporaryDir folder;
    if (!folder.isValid())
        return task.fail(Problem::file, folder.errorString());
    request.fileName = folder.filePath(QLatin1String("list.pdf"));
    QString fileName;
    return ExportList::run(task.context(), kind, request, fileName) && task.answerWithFile(fileName);
}

bool run(Task &task, ExportList::Kind kind, ExportList::Request &request)
{
    if (task.arguments.has("sort")) {
        const int column = columnOf(task, kind, "sort", task.arguments.text("sort"));
        if (column < 0)
            return false;
        request.sort = column;
    }
    const QStringList columns = task.arguments.text("columns").split(QLatin1Char(','), Qt::SkipEmptyParts);
    for (const QString &name : columns) {
        const int column = columnOf(task, kind, "columns", name.trimmed());
        if (column < 0)
            return false;
        request.columnFlags |= 1 << column;
    }
    if (task.arguments.has("csvDelimiter")) {
        request.csvDelimiter = task.arguments.text("csvDelimiter");
        if (request.csvDelimiter.size() != 1)
            return task.reader.failValue(QStringLiteral("csvDelimiter"), request.csvDelimiter,
                                         text(TEXT("erotin on yksi merkki")));
    }
    request.landscape = task.flag("landscape");
    request.fileName = QDir::fromNativeSeparators(task.arguments.text("output"));
    request.keepsFiles = true;
    request.makesFolders = true;
    request.isTrial = task.manners.isDryRun;
    FileRecord record;
    if (request.fileName == QLatin1String("-") && !request.isTrial)
        return writeToOutput(task, kind, request);
    if (!ExportList::run(task.context(), kind, request, record.fileName))
        return false;
    if (task.answer.wantsSentences()) {
        task.answer.doneLine(record.fileName);
        return true;
    }
    if (!task.answer.beginList(fileTable, task.session))
        return false;
    task.answer.add(&record);
    task.answer.endList();
    return true;
}

bool invoices(Task &task)
{
    auto selection = std::make_shared<InvoiceSelection>();
    ExportList::Request request;
    Arguments given = task.arguments; // the order is that of the list's columns
    given.remove("sort");
    Task filters(task.session, task.command, given, task.answer, task.manners);
    if (!Selection::readInvoices(filters, *selection, false))
        return false;
    request.invoices.balanceDate = selection->asOf;
    if (selection->restricts() || selection->limit >= 0)
        request.invoices.selection = selection;
    return run(task, ExportList::invoices, request);
}

bool payments(Task &task)
{
    auto selection = std::make_shared<InvoiceSelection>();
    selection->today = task.reader.today();
    ExportList::Request request;
    if (!Selection::readInvoiceWords(task, "invoice", *selection) ||
        !Selection::readDays(task, "date", request.payments.dateFrom, request.payments.dateTo))
        return false;
    if (task.arguments.has("customer")) {
        Customer customer;
        if (!References::customer(task, QStringLiteral("customer"), task.arguments.text("customer"), customer))
            return false;
        selection->customerId = customer.id;
    }
    if (task.arguments.has("account")) {
        BankAccount account;
        if (!References::account(task, QStringLiteral("account"), task.arguments.text("account"), account))
            return false;
        request.payments.bankAccountId = account.id;
    }
    if (selection->restricts())
        request.invoices.selection = selection;
    return run(task, ExportList::payments, request);
}

template <ExportList::Kind kind> bool simple(Task &task)
{
    ExportList::Request request;
    return run(task, kind, request);
}

constexpr unsigned flags = Command::paints | Command::eachOnly | Command::lists;

constexpr Command commands[] = {
    {"report invoices",
     TEXT("laskuluettelo, PDF tai CSV"),
     invoices,
     flags,
     &fileTable,
     nullptr,
     {group(Selection::invoiceWords), group(Selection::invoiceFilters), group(fileOptions)},
     "report invoices --date last-month\n"
     "report invoices --open --as-of 2026-03-31 -o avoimet.pdf"},
    {"report payments",
     TEXT("suorituspäiväkirja, PDF tai CSV"),
     payments,
     flags,
     &fileTable,
     nullptr,
     {group(paymentFilters), group(sortOption), group(fileOptions)},
     "report payments --date this-month"},
    {"report customers",
     TEXT("asiakasluettelo, PDF tai CSV"),
     simple<ExportList::customers>,
     flags,
     &fileTable,
     nullptr,
     {group(sortOption), group(fileOptions)},
     "report customers -o asiakkaat.csv"},
    {"report products",
     TEXT("tuoteluettelo, PDF tai CSV"),
     simple<ExportList::products>,
     flags,
     &fileTable,
     nullptr,
     {group(sortOption), group(fileOptions)},
     "report products"},
};

} // namespace

CommandGroup reportCommands() { return commandGroup(commands); }

#include "commandgroups.h"

#include "invoicereader.h"
#include "query.h"
#include "records.h"
#include "references.h"
#include "selection.h"
#include "sharedoptions.h"
#include "task.h"

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

constexpr Command commands[] = {
    {"invoice list",
     TEXT("luettelo laskuista"),
     list,
     Command::lists,
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
};

} // namespace

CommandGroup invoiceCommands() { return commandGroup(commands); }

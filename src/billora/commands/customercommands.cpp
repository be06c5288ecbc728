#include "commandgroups.h"

#include "query.h"
#include "recordlist.h"
#include "records.h"
#include "references.h"
#include "sharedoptions.h"

#include <QHash>

namespace {

/** Adds what customers owe. @param only  a customer's id, -1 for all */
bool addBalances(Task &task, QVector<CustomerRecord> &records)
{
    Query *query = task.context().session.query();
    if (!query->fetchOpenBalances())
        return task.context().session.failQuery();
    QHash<int, QPair<int, long long>> balances;
    while (query->next()) {
        int customerId = 0, count = 0;
        long long balance = 0;
        query->openBalance(&customerId, &count, &balance);
        balances.insert(customerId, {count, balance});
    }
    if (query->hasReadError())
        return task.context().session.failQuery();
    for (CustomerRecord &record : records) {
        const QPair<int, long long> balance = balances.value(record.customer.id);
        record.openCount = balance.first;
        record.openBalance = balance.second;
    }
    return true;
}

bool list(Task &task)
{
    if (!task.context().session.fetch(CachedList::customers))
        return false;
    QVector<CustomerRecord> records;
    const QList<Customer *> &customers = task.session.registry().customers();
    for (const Customer *customer : customers)
        records.append({*customer});
    return addBalances(task, records) && RecordList::answer(task, customerTable, records);
}

constexpr Option words[] = {
    {"customer", ValueType::customer, TEXT("asiakas"), Option::plainWord | Option::required | Option::onlyWord},
};

bool show(Task &task)
{
    QVector<CustomerRecord> records(1);
    return References::customer(task, QStringLiteral("customer"), task.arguments.text("customer"),
                                records[0].customer) &&
           addBalances(task, records) && task.answer.show(customerTable, &records.at(0), task.session);
}

constexpr Command commands[] = {
    {"customer list",
     TEXT("luettelo asiakkaista"),
     list,
     Command::lists,
     &customerTable,
     nullptr,
     {group(searchOptions), group(fullOption)},
     "customer list\n"
     "customer list --search kirja --fields number,name,openBalance"},
    {"customer show",
     TEXT("asiakkaan tiedot ja avoimet"),
     show,
     0,
     &customerTable,
     nullptr,
     {group(words)},
     "customer show 10\n"
     "customer show aallotar"},
};

} // namespace

CommandGroup customerCommands() { return commandGroup(commands); }

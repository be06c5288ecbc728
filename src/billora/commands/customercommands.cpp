#include "commandgroups.h"

#include "query.h"
#include "recordcommands.h"
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

struct Kind {
    using Record = CustomerRecord;
    static constexpr auto part = &CustomerRecord::customer;
    static constexpr const RecordTable &table = customerTable;
    static constexpr char word[] = "customer";
    static constexpr auto find = &References::customer;
    static constexpr char added[] = TEXT("Asiakas %1 lisätty: %2");
    static constexpr char changed[] = TEXT("Asiakas %1 muutettu: %2");
    static constexpr char removing[] = TEXT("Poistetaanko asiakas %1?");

    static bool check(Task &task, const Customer &customer, const Customer *earlier)
    {
        const bool isNewId = !earlier || earlier->vatNumber != customer.vatNumber;
        if (isNewId && !customer.vatNumber.isEmpty() && !Customer::isValidVatNumberOrBusinessId(customer.vatNumber))
            return task.reader.failValue(QStringLiteral("vatNumber"), customer.vatNumber,
                                         text(TEXT("Y-tunnus tai ALV-numero ei ole oikein")));
        if (customer.number < 0 || (earlier && earlier->number == customer.number))
            return true;
        Query *query = task.context().session.query();
        if (!query->fetchCustomersByNumber(customer.number))
            return task.context().session.failQuery();
        bool isTaken = false;
        const bool isWhole = query->readAll([&] {
            Customer other;
            query->customer(&other);
            isTaken = isTaken || (!other.deleted && other.id != customer.id);
        });
        if (!isWhole)
            return task.context().session.failQuery();
        return !isTaken ||
               task.fail(Problem::exists, text(TEXT("asiakasnumero on jo käytössä: %1")).arg(customer.number),
                         QStringLiteral("number"), QString::number(customer.number));
    }

    static bool findKnown(Task &task, const Arguments &fields, Customer &customer, bool &isKnown)
    {
        int number = 0;
        if (!fields.has("number"))
            return true;
        if (!task.reader.number(QStringLiteral("number"), ValueType::integer, fields.text("number"), number))
            return false;
        Query *query = task.context().session.query();
        const auto take = [&] {
            Customer other;
            query->customer(&other);
            if (!other.deleted) {
                customer = other;
                isKnown = true;
            }
        };
        return (query->fetchCustomersByNumber(number) && query->readAll(take)) || task.context().session.failQuery();
    }

    static bool complete(Task &task, CustomerRecord &record)
    {
        QVector<CustomerRecord> records = {record};
        if (!addBalances(task, records))
            return false;
        record = records.first();
        return true;
    }

    static QString nextStep(const Customer &customer)
    {
        return QStringLiteral("billora invoice add %1 --row \"...\"").arg(customer.number);
    }

    static bool remark(Task &task, QVector<CustomerRecord> &records, QString &remark)
    {
        if (!addBalances(task, records))
            return false;
        int count = 0;
        for (const CustomerRecord &record : qAsConst(records))
            count += record.openCount;
        if (count > 0)
            remark = QLatin1Char(' ') + text(TEXT("Avoimia laskuja on %1.")).arg(count);
        return true;
    }
};

constexpr Option removeWords[] = {
    {"customer", ValueType::customer, TEXT("asiakkaat"),
     Option::plainWord | Option::required | Option::onlyWord | Option::list},
};

constexpr Command commands[] = {
    {"customer list",
     TEXT("luettelo asiakkaista"),
     list,
     Command::lists | Command::companies,
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
    {"customer add",
     TEXT("uusi asiakas"),
     RecordCommands::add<Kind>,
     Command::writes | Command::adds | Command::keyed,
     &customerTable,
     &customerTable,
     {},
     "customer add \"Kirjakauppa Kuukkeli\" --town Joensuu --email ostot@kuukkeli.example"},
    {"customer edit",
     TEXT("muuttaa asiakkaan tietoja; ilman kenttiä muokkaimessa"),
     RecordCommands::edit<Kind>,
     Command::writes,
     &customerTable,
     &customerTable,
     {group(words)},
     "customer edit 10 --payment-terms \"21 pv netto\""},
    {"customer remove",
     TEXT("poistaa asiakkaita; laskut jäävät"),
     RecordCommands::remove<Kind>,
     Command::writes | Command::destructive,
     nullptr,
     nullptr,
     {group(removeWords)},
     "customer remove 10 --yes"},
    {"customer import",
     TEXT("asiakkaat CSV-tiedostosta, kaikki tai ei mitään"),
     RecordCommands::importFile<Kind>,
     Command::writes | Command::keyed,
     nullptr,
     nullptr,
     {group(importWords)},
     "customer import asiakkaat.csv --map \"Y-tunnus=vatNumber\""},
};

} // namespace

CommandGroup customerCommands() { return commandGroup(commands); }

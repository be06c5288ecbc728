#include "customercommands.h"

#include "customer.h"
#include "listcommands.h"
#include "recordediting.h"
#include "recordprinter.h"

#include <algorithm>
#include <limits>
#include <optional>

namespace {

struct CustomerKind {
    using Record = Customer;

    struct State {
        Customer record;
        bool found = false;
    };

    struct Search {
        std::optional<int> id;
        std::optional<int> number;
        QString name; ///< lower case
    };

    static constexpr CachedList list = CachedList::customers;
    static constexpr auto print = &RecordPrinter::printCustomer;

    static bool findById(CommandContext &context, const QString &key, const QString &value, State &state)
    {
        int id = 0;
        state.found =
            context.values.parseIntValue(key, value, id) && context.finder.findCustomerById(id, &state.record);
        return state.found;
    }

    static bool findByNumber(CommandContext &context, const QString &key, const QString &value, State &state)
    {
        int number = 0;
        state.found = context.values.parseIntValue(key, value, number) &&
                      context.finder.findCustomerByNumber(number, &state.record);
        return state.found;
    }

    static bool findByName(CommandContext &context, const QString &, const QString &value, State &state)
    {
        state.found = context.finder.findCustomerByName(value, &state.record);
        return state.found;
    }

    template <char digit> static bool custom(CommandContext &, const QString &, const QString &value, State &state)
    {
        state.record.setPropertyIfNotEmpty(QLatin1Char('c') + QString(QLatin1Char(digit)), value);
        return true;
    }

    static constexpr Parameter<State> parameters[] = {
        {"number", Parameters::integer<&Customer::number>},
        {"name", Parameters::text<&Customer::name>},
        {"streetName", Parameters::text<&Customer::streetName>},
        {"postCode", Parameters::text<&Customer::postCode>},
        {"townName", Parameters::text<&Customer::townName>},
        {"country", Parameters::text<&Customer::country>},
        {"contact", Parameters::text<&Customer::contact>},
        {"vatNumber", Parameters::text<&Customer::vatNumber>},
        {"referenceNumber", Parameters::referenceNumber<&Customer::referenceNumber>},
        {"emailAddress", Parameters::text<&Customer::emailAddress>},
        {"phoneNumber", Parameters::text<&Customer::phoneNumber>},
        {"paymentTerms", Parameters::text<&Customer::paymentTerms>},
        {"custom1", custom<'1'>},
        {"custom2", custom<'2'>},
        {"findByCustomerId", findById, true},
        {"findByNumber", findByNumber, true},
        {"findByName", findByName, true},
    };

    static bool searchId(CommandContext &context, const QString &key, const QString &value, Search &search)
    {
        return context.values.parseIdValue(key, value, context.lastSaved.customer, search.id.emplace());
    }

    static bool searchNumber(CommandContext &context, const QString &key, const QString &value, Search &search)
    {
        return context.values.parseIntValue(key, value, search.number.emplace());
    }

    static bool searchName(CommandContext &, const QString &, const QString &value, Search &search)
    {
        search.name = value.toLower();
        return true;
    }

    static constexpr Parameter<Search> searchKeys[] = {
        {"findByCustomerId", searchId},
        {"findByNumber", searchNumber},
        {"findByName", searchName},
    };

    static const QList<Customer *> &records(const Registry &registry) { return registry.customers(); }

    static bool matches(const Customer &customer, const Search &search)
    {
        return (!search.id || customer.id == *search.id) && (!search.number || customer.number == *search.number) &&
               (search.name.isEmpty() || customer.name.toLower().contains(search.name));
    }

    static QString lookupMissing()
    {
        return CommandContext::tr("Jokin parametreista findByCustomerId, findByNumber tai findByName on pakollinen");
    }

    static QString requiredMissing(const Customer &customer)
    {
        return customer.name.isEmpty() ? CommandContext::tr("Nimi puuttuu") : QString();
    }

    static QString savingMessage(const Customer &customer)
    {
        return CommandContext::tr("Tallennetaan asiakkaan %1 tiedot").arg(customer.name);
    }

    static bool complete(CommandContext &context, Customer &customer)
    {
        return RecordEditing::giveNumber(context, customer);
    }

    static bool removeRecord(CommandContext &context, Customer &customer)
    {
        return RecordEditing::remove(context, customer);
    }
};

} // namespace

void parseSaveCustomerCommand(CommandContext &context, QStringList &args, SaveCommandMode mode)
{
    saveListRecord<CustomerKind>(context, args, mode);
}

void parseFindCustomersCommand(CommandContext &context, QStringList &args, FindCommandMode mode)
{
    findListRecords<CustomerKind>(context, args, mode);
}

#include "bankaccountcommands.h"

#include "bankaccount.h"
#include "listcommands.h"
#include "recordediting.h"
#include "recordprinter.h"

#include <optional>

namespace {

struct BankAccountKind {
    using Record = BankAccount;

    struct State {
        BankAccount record;
        bool found = false;
    };

    struct Search {
        std::optional<int> id;
        QString name; ///< lower case
    };

    static constexpr CachedList list = CachedList::bankAccounts;
    static constexpr auto print = &RecordPrinter::printBankAccount;

    static bool findById(CommandContext &context, const QString &key, const QString &value, State &state)
    {
        int id = 0;
        state.found =
            context.values.parseIntValue(key, value, id) && context.finder.findBankAccountById(id, &state.record);
        return state.found;
    }

    static bool findByName(CommandContext &context, const QString &, const QString &value, State &state)
    {
        state.found = context.finder.findBankAccountByName(value, &state.record);
        return state.found;
    }

    /** Banks print the codes in groups; they are stored as they are compared and drawn. */
    template <auto member> static bool bankCode(CommandContext &, const QString &, const QString &value, State &state)
    {
        state.record.*member = BankAccount::normalizedCode(value);
        return true;
    }

    static constexpr Parameter<State> parameters[] = {
        {"name", Parameters::text<&BankAccount::name>},
        {"shortName", Parameters::text<&BankAccount::shortName>},
        {"iban", bankCode<&BankAccount::iban>},
        {"bic", bankCode<&BankAccount::bic>},
        {"rowNumber", Parameters::integer<&BankAccount::rowNumber>},
        {"findByBankAccountId", findById, true},
        {"findByName", findByName, true},
    };

    static bool searchId(CommandContext &context, const QString &key, const QString &value, Search &search)
    {
        return context.values.parseIdValue(key, value, context.lastSaved.bankAccount, search.id.emplace());
    }

    static bool searchName(CommandContext &, const QString &, const QString &value, Search &search)
    {
        search.name = value.toLower();
        return true;
    }

    static constexpr Parameter<Search> searchKeys[] = {
        {"findByBankAccountId", searchId},
        {"findByName", searchName},
    };

    static const QList<BankAccount *> &records(const Registry &registry) { return registry.bankAccounts(); }

    static bool matches(const BankAccount &account, const Search &search)
    {
        return (!search.id || account.id == *search.id) &&
               (account.name.toLower().contains(search.name) || account.shortName.toLower().contains(search.name));
    }

    static QString lookupMissing()
    {
        return CommandContext::tr("Toinen parametreista findByBankAccountId tai findByName on pakollinen");
    }

    static QString requiredMissing(const BankAccount &account)
    {
        return account.name.isEmpty() ? CommandContext::tr("Nimi puuttuu") : QString();
    }

    static QString savingMessage(const BankAccount &account)
    {
        return CommandContext::tr("Tallennetaan pankkitilin %1 tiedot").arg(account.name);
    }

    static bool complete(CommandContext &, BankAccount &) { return true; }

    static bool removeRecord(CommandContext &context, BankAccount &account)
    {
        return RecordEditing::remove(context, account);
    }
};

} // namespace

void parseSaveBankAccountCommand(CommandContext &context, QStringList &args, SaveCommandMode mode)
{
    saveListRecord<BankAccountKind>(context, args, mode);
}

void parseFindBankAccountsCommand(CommandContext &context, QStringList &args, FindCommandMode mode)
{
    findListRecords<BankAccountKind>(context, args, mode);
}

#include "commandgroups.h"

#include "iban.h"
#include "recordcommands.h"
#include "recordlist.h"
#include "records.h"
#include "references.h"
#include "sharedoptions.h"

namespace {

bool list(Task &task)
{
    if (!task.context().session.fetch(CachedList::bankAccounts))
        return false;
    QVector<AccountRecord> records;
    const QList<BankAccount *> &accounts = task.session.registry().bankAccounts();
    for (const BankAccount *account : accounts)
        records.append({*account});
    return RecordList::answer(task, accountTable, records);
}

constexpr Option words[] = {
    {"account", ValueType::account, TEXT("pankkitili"), Option::plainWord | Option::required | Option::onlyWord},
};

bool show(Task &task)
{
    AccountRecord record;
    return References::account(task, QStringLiteral("account"), task.arguments.text("account"), record.account) &&
           task.answer.show(accountTable, &record, task.session);
}

struct Kind {
    using Record = AccountRecord;
    static constexpr auto part = &AccountRecord::account;
    static constexpr const RecordTable &table = accountTable;
    static constexpr char word[] = "account";
    static constexpr auto find = &References::account;
    static constexpr char added[] = TEXT("Pankkitili lisätty: %1");
    static constexpr char changed[] = TEXT("Pankkitili muutettu: %1");
    static constexpr char removing[] = TEXT("Poistetaanko pankkitili %1?");

    static bool check(Task &task, BankAccount &account, const BankAccount *earlier)
    {
        if (earlier && earlier->iban == account.iban)
            return true;
        if (!Iban::isValid(account.iban))
            return task.reader.failValue(QStringLiteral("iban"), account.iban, text(TEXT("IBAN ei ole oikein")));
        if (account.bic.isEmpty() || earlier) {
            const QString known = Iban::finnishBic(account.iban);
            const bool isOwn = task.arguments.has("bic");
            if (!known.isEmpty() && !isOwn)
                account.bic = known;
        }
        return true;
    }

    static bool complete(Task &, AccountRecord &) { return true; }

    static QString nextStep(const BankAccount &) { return QString(); }
    static bool remark(Task &, const QVector<AccountRecord> &, QString &) { return true; }
};

constexpr Option removeWords[] = {
    {"account", ValueType::account, TEXT("pankkitilit"),
     Option::plainWord | Option::required | Option::onlyWord | Option::list},
};

constexpr Command commands[] = {
    {"account list",
     TEXT("yrityksen pankkitilit"),
     list,
     Command::lists | Command::companies,
     &accountTable,
     nullptr,
     {group(searchOptions), group(fullOption)},
     "account list"},
    {"account show",
     TEXT("pankkitilin tiedot"),
     show,
     0,
     &accountTable,
     nullptr,
     {group(words)},
     "account show Saaristopankki"},
    {"account add",
     TEXT("uusi pankkitili"),
     RecordCommands::add<Kind>,
     Command::writes | Command::adds | Command::keyed,
     &accountTable,
     &accountTable,
     {},
     "account add Saaristopankki \"FI21 1234 5600 0007 85\""},
    {"account edit",
     TEXT("muuttaa pankkitilin tietoja; ilman kenttiä muokkaimessa"),
     RecordCommands::edit<Kind>,
     Command::writes,
     &accountTable,
     &accountTable,
     {group(words)},
     "account edit Saaristopankki --visible false"},
    {"account remove",
     TEXT("poistaa pankkitilejä; suoritukset jäävät"),
     RecordCommands::remove<Kind>,
     Command::writes | Command::destructive,
     nullptr,
     nullptr,
     {group(removeWords)},
     "account remove Saaristopankki --yes"},
};

} // namespace

CommandGroup accountCommands() { return commandGroup(commands); }

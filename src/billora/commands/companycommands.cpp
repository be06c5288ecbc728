#include "commandgroups.h"

#include "companies.h"
#include "databaselist.h"
#include "recordlist.h"
#include "records.h"
#include "serveraddress.h"
#include "sharedoptions.h"
#include "task.h"
#include "texts.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>

namespace {

/** The entry of a number in the list. @return false with the problem told */
bool find(Task &task, const DatabaseList &list, int number, QVariantMap &entry)
{
    for (const QVariantMap &candidate : list.entries()) {
        if (DatabaseList::number(candidate) == number) {
            entry = candidate;
            return true;
        }
    }
    return task.session.fail(Failure::databaseNumberUnknown, {QString::number(number)});
}

bool readNumber(Task &task, int &number)
{
    return task.reader.number(QStringLiteral("company"), ValueType::integer, task.arguments.text("company"), number);
}

bool save(Task &task, DatabaseList &list)
{
    if (task.manners.isDryRun)
        return true;
    if (!list.save())
        return task.session.fail(Failure::settingsFileUnwritable, {task.session.settingsFile()});
    task.session.registry().appSettings()->sync(); // another object wrote the file
    return true;
}

bool list(Task &task)
{
    const DatabaseList list(task.session.settingsFile(), DatabaseList::reading);
    QVector<CompanyRecord> records;
    for (const QVariantMap &entry : list.entries())
        records.append(CompanyRecord::of(entry, list.lastUsed()));
    return RecordList::answer(task, companyTable, records);
}

constexpr Option companyWord[] = {
    {"company", ValueType::integer, TEXT("yrityksen numero luettelossa"),
     Option::plainWord | Option::required | Option::onlyWord, nullptr, 0, "NUMBER"},
};
constexpr Option showWord[] = {
    {"company", ValueType::integer, TEXT("yrityksen numero; valittu, jos sitä ei anneta"),
     Option::plainWord | Option::onlyWord, nullptr, 0, "NUMBER"},
};

bool show(Task &task)
{
    const DatabaseList list(task.session.settingsFile(), DatabaseList::reading);
    int number = list.lastUsed();
    if (task.arguments.has("company") && !readNumber(task, number))
        return false;
    if (list.entries().isEmpty())
        return task.session.fail(Failure::noDatabaseListed);
    QVariantMap entry;
    if (!find(task, list, number, entry))
        return false;
    const CompanyRecord record = CompanyRecord::of(entry, list.lastUsed());
    return task.answer.show(companyTable, &record, task.session);
}

constexpr Option addWords[] = {
    {"file", ValueType::file, TEXT("SQLite-tiedosto, jossa yritys on"), Option::plainWord},
    {"postgresql", ValueType::text, TEXT("tietokanta palvelimella: postgresql://KÄYTTÄJÄ@PALVELIN/TIETOKANTA"), 0,
     nullptr, 0, "URL"},
    {"passwordFile", ValueType::file, TEXT("tiedosto, jossa tietokannan salasana on")},
    {"number", ValueType::integer, TEXT("numero luettelossa; seuraava vapaa, jos sitä ei anneta")},
};

bool add(Task &task)
{
    QVariantMap entry;
    const bool isServer = task.arguments.has("postgresql");
    if (task.arguments.has("file") == isServer)
        return task.fail(isServer ? Problem::conflict : Problem::missingOption,
                         text(TEXT("anna joko FILE tai --postgresql URL")), QStringLiteral("file"));
    if (isServer && !ServerAddress::read(task, task.arguments.text("postgresql"), entry))
        return false;
    if (!isServer) {
        const QString file = QFileInfo(QDir::fromNativeSeparators(task.arguments.text("file"))).absoluteFilePath();
        entry.insert(QStringLiteral("type"), QStringLiteral("sqlite"));
        entry.insert(QStringLiteral("filename"), file);
    }
    if (!task.context().session.openEntry(entry)) // it must be one of ours
        return false;
    task.context().session.closeDatabase();
    DatabaseList list(task.session.settingsFile(), DatabaseList::writing);
    int number = list.nextFreeNumber();
    if (task.arguments.has("number") &&
        !task.reader.number(QStringLiteral("number"), ValueType::integer, task.arguments.text("number"), number))
        return false;
    if (number < 1)
        return task.reader.failValue(QStringLiteral("number"), QString::number(number),
                                     text(TEXT("luvun pitää olla vähintään 1")));
    if (list.contains(number))
        return task.session.fail(Failure::databaseNumberTaken, {QString::number(number)});
    for (const QVariantMap &known : list.entries()) {
        if (!isServer && known.value(QStringLiteral("filename")) == entry.value(QStringLiteral("filename")))
            return task.fail(Problem::exists,
                             text(TEXT("yritys on jo luettelossa numerolla %1")).arg(DatabaseList::number(known)),
                             QStringLiteral("file"));
    }
    entry.insert(QStringLiteral("number"), number);
    list.append(entry);
    if (list.lastUsed() < 0)
        list.setLastUsed(number);
    if (!save(task, list))
        return false;
    const CompanyRecord record = CompanyRecord::of(entry, list.lastUsed());
    return task.answer.saved(companyTable, &record, text(TEXT("Yritys %1 lisätty luetteloon")).arg(number),
                             task.session);
}

bool use(Task &task)
{
    DatabaseList list(task.session.settingsFile(), DatabaseList::writing);
    int number = 0;
    QVariantMap entry;
    if (!readNumber(task, number) || !find(task, list, number, entry))
        return false;
    list.setLastUsed(number);
    if (!save(task, list))
        return false;
    const CompanyRecord record = CompanyRecord::of(entry, number);
    return task.answer.saved(companyTable, &record, text(TEXT("Yritys %1 valittu")).arg(number), task.session);
}

bool forget(Task &task)
{
    DatabaseList list(task.session.settingsFile(), DatabaseList::writing);
    int number = 0;
    QVariantMap entry;
    if (!readNumber(task, number) || !find(task, list, number, entry))
        return false;
    list.remove(number);
    if (!save(task, list))
        return false;
    task.answer.removed({QString::number(number)});
    return true;
}

constexpr Option upgradeWords[] = {
    {"companies", ValueType::integer, TEXT("yritysten numerot luettelossa"),
     Option::plainWord | Option::list | Option::onlyWord, nullptr, 0, "NUMBER"},
    {"all", ValueType::flag, TEXT("kaikki luettelon yritykset")},
};

/** Goes on after a company that cannot be upgraded: the others must not wait for it. */
bool upgrade(Task &task)
{
    const DatabaseList list(task.session.settingsFile(), DatabaseList::reading);
    QList<QVariantMap> entries;
    const QStringList words = task.arguments.texts("companies");
    for (const QString &word : words) {
        int number = 0;
        QVariantMap entry;
        if (!task.reader.number(QStringLiteral("companies"), ValueType::integer, word, number) ||
            !find(task, list, number, entry))
            return false;
        entries.append(entry);
    }
    if (task.flag("all") != entries.isEmpty())
        return task.fail(entries.isEmpty() ? Problem::missingSelection : Problem::conflict,
                         text(TEXT("anna joko yritysten numerot tai --all")), QStringLiteral("companies"));
    if (!task.answer.beginList(companyUpgradeTable, task.session))
        return false;
    for (const QVariantMap &entry : task.flag("all") ? list.entries() : entries) {
        CompanyUpgradeRecord record;
        Companies::Upgrade result;
        record.number = DatabaseList::number(entry);
        if (!Companies::upgrade(task.context(), entry, result)) {
            record.error = task.session.problem().message;
            task.session.clearProblem();
            task.exitCode = exitNeedsLook;
        }
        record.name = result.sellerName;
        record.before = result.before;
        record.after = result.after;
        if (!task.answer.add(&record))
            break;
    }
    task.answer.endList();
    return true;
}

constexpr unsigned flags = Command::noCompany | Command::single;

constexpr Command commands[] = {
    {"company list",
     TEXT("yritykset, joilla on tietokanta"),
     list,
     flags | Command::lists,
     &companyTable,
     nullptr,
     {},
     "company list"},
    {"company show",
     TEXT("missä yrityksen tietokanta on"),
     show,
     flags,
     &companyTable,
     nullptr,
     {group(showWord)},
     "company show"},
    {"company add",
     TEXT("lisää luetteloon yrityksen, joka on jo olemassa"),
     add,
     flags | Command::writes,
     &companyTable,
     nullptr,
     {group(addWords)},
     "company add vanha.sqlite"},
    {"company use",
     TEXT("valitsee yrityksen, jota komennot koskevat"),
     use,
     flags | Command::writes,
     &companyTable,
     nullptr,
     {group(companyWord)},
     "company use 1"},
    {"company upgrade",
     TEXT("päivittää tietokantojen rakenteen tämän ohjelman versioon"),
     upgrade,
     flags | Command::writes | Command::lists,
     &companyUpgradeTable,
     nullptr,
     {group(upgradeWords)},
     "company upgrade --all\ncompany upgrade 1",
     TEXT("Jatkaa virheen jälkeen seuraavasta yrityksestä; jos jokin ei onnistunut, paluuarvo on 6.")},
    {"company forget",
     TEXT("poistaa yrityksen luettelosta; tietokanta jää"),
     forget,
     flags | Command::writes,
     nullptr,
     nullptr,
     {group(companyWord)},
     "company forget 2"},
};

} // namespace

CommandGroup companyCommands() { return commandGroup(commands); }

#include "commandgroups.h"

#include "companies.h"
#include "createdatabase.h"
#include "database.h"
#include "databasecheck.h"
#include "databaselist.h"
#include "iban.h"
#include "prompt.h"
#include "query.h"
#include "recordediting.h"
#include "records.h"
#include "serveraddress.h"
#include "settings.h"
#include "settingskeys.h"
#include "task.h"
#include "terminal.h"
#include "texts.h"
#include "valuewriter.h"
#include "writetransaction.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace {

constexpr Option initOptions[] = {
    {"name", ValueType::text, TEXT("yrityksen nimi"), Option::required},
    {"file", ValueType::file, TEXT("tietokannan tiedosto")},
    {"postgresql", ValueType::text, TEXT("tietokanta palvelimella: postgresql://KÄYTTÄJÄ@PALVELIN/TIETOKANTA"), 0,
     nullptr, 0, "URL"},
    {"passwordFile", ValueType::file, TEXT("tiedosto, jossa tietokannan salasana on")},
    {"number", ValueType::integer, TEXT("numero luettelossa; seuraava vapaa, jos sitä ei anneta")},
    {"businessId", ValueType::text, TEXT("Y-tunnus")},
    {"street", ValueType::text, TEXT("katuosoite")},
    {"postCode", ValueType::text, TEXT("postinumero")},
    {"town", ValueType::text, TEXT("postitoimipaikka")},
    {"email", ValueType::text, TEXT("sähköposti")},
    {"phone", ValueType::text, TEXT("puhelin")},
    {"iban", ValueType::bank, TEXT("pankkitili, IBAN")},
    {"bic", ValueType::bank, TEXT("pankin tunnus; suomalaisille pankeille ohjelma tietää sen")},
    {"paymentTerms", ValueType::text, TEXT("maksuehto uusille laskuille, \"14 pv netto\"")},
};

constexpr struct {
    const char *option, *key;
} initSettings[] = {
    {"businessId", "sellerBusinessId"},
    {"street", "sellerStreetName"},
    {"postCode", "sellerPostCode"},
    {"town", "sellerTownName"},
    {"email", "seller/emailAddress"},
    {"phone", "seller/phoneNumber"},
    {"paymentTerms", "settings/paymentTerms"},
};

/** `Saimaan Kirjansitomo Oy` as part of a file name. */
QString slug(const QString &name)
{
    QString text;
    const QString plain = name.toLower().normalized(QString::NormalizationForm_D);
    for (const QChar c : plain) {
        if (c.isLetterOrNumber() && c.unicode() < 128)
            text += c;
        else if (!c.isMark() && !text.isEmpty() && !text.endsWith(QLatin1Char('-')))
            text += QLatin1Char('-');
    }
    while (text.endsWith(QLatin1Char('-')))
        text.chop(1);
    return text.isEmpty() ? QStringLiteral("yritys") : text;
}

QString defaultFile(const QString &name)
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QLatin1String("/Billora/") +
           slug(name) + QLatin1String(".sqlite");
}

/** What a new company was given, checked before anything is made. */
struct NewCompany {
    QString name;
    QVariantMap entry;
    Settings settings; ///< only the keys that were given
    QVector<QPair<QString, QString>> values;
    BankAccount account;
};

bool check(Task &task, const Arguments &given, NewCompany &company)
{
    company.name = given.text("name").trimmed();
    if (company.name.isEmpty())
        return task.fail(Problem::missingOption, text(TEXT("valinta --name puuttuu")), QStringLiteral("name"));
    for (const auto &row : initSettings) {
        if (!given.has(row.option) || given.text(row.option).isEmpty())
            continue;
        const QString value = given.text(row.option);
        if (!SettingsKeys::store(company.settings, QLatin1String(row.key), value))
            return task.reader.failValue(QLatin1String(row.option), value, text(TEXT("arvo ei ole oikein")));
        company.values.append({QLatin1String(row.key), value});
    }
    const QString vatNumber = Customer::convertBusinessIdToVatNumber(given.text("businessId"));
    if (!vatNumber.isEmpty())
        company.values.append({QStringLiteral("seller/vatNumber"), vatNumber});
    if (given.has("iban") && !given.text("iban").isEmpty()) {
        company.account.iban = BankAccount::normalizedCode(given.text("iban"));
        if (!Iban::isValid(company.account.iban))
            return task.reader.failValue(QStringLiteral("iban"), given.text("iban"), text(TEXT("IBAN ei ole oikein")));
        company.account.bic = BankAccount::normalizedCode(given.text("bic"));
        if (company.account.bic.isEmpty())
            company.account.bic = Iban::finnishBic(company.account.iban);
        company.account.name = company.account.bic.isEmpty() ? QStringLiteral("IBAN") : company.account.bic;
    } else if (given.has("bic") && !given.text("bic").isEmpty()) {
        return task.fail(Problem::missingOption, text(TEXT("valinta --iban puuttuu")), QStringLiteral("iban"));
    }
    int number = 0;
    if (given.has("number")) {
        if (!task.reader.number(QStringLiteral("number"), ValueType::integer, given.text("number"), number))
            return false;
        if (number < 1)
            return task.reader.failValue(QStringLiteral("number"), given.text("number"),
                                         text(TEXT("luvun pitää olla vähintään 1")));
        company.entry.insert(QStringLiteral("number"), number);
    }
    if (given.has("postgresql")) {
        if (given.has("file"))
            return task.fail(Problem::conflict, text(TEXT("anna joko --file tai --postgresql")),
                             QStringLiteral("file"));
        return ServerAddress::read(task, given.text("postgresql"), company.entry);
    }
    const QString typed = given.text("file");
    if (typed.startsWith(QLatin1Char(':')))
        return task.reader.failValue(QStringLiteral("file"), typed, text(TEXT("tiedoston nimi ei ole oikein")));
    const QString file = typed.isEmpty() ? defaultFile(company.name) : QDir::fromNativeSeparators(typed);
    company.entry.insert(QStringLiteral("type"), QStringLiteral("sqlite"));
    company.entry.insert(QStringLiteral("filename"), QFileInfo(file).absoluteFilePath());
    return true;
}

/** The questions, in order; the answers go to the options of the names. */
constexpr struct {
    const char *option, *question;
} questions[] = {
    {"name", TEXT("Yrityksen nimi")},    {"businessId", TEXT("Y-tunnus")},
    {"street", TEXT("Katuosoite")},      {"postCode", TEXT("Postinumero")},
    {"town", TEXT("Postitoimipaikka")},  {"email", TEXT("Sähköposti")},
    {"phone", TEXT("Puhelin")},          {"iban", TEXT("Pankkitili (IBAN)")},
    {"paymentTerms", TEXT("Maksuehto")}, {"file", TEXT("Tietokannan tiedosto")},
};

/** Asks a person for what was not given. @return false when they gave up */
bool ask(Task &task, Arguments &given)
{
    QVector<int> open;
    constexpr int count = sizeof questions / sizeof questions[0];
    for (int i = 0; i < count; ++i) {
        const bool isServerFile =
            QLatin1String(questions[i].option) == QLatin1String("file") && given.has("postgresql");
        if (!given.has(questions[i].option) && !isServerFile)
            open.append(i);
    }
    if (open.isEmpty() || given.has("name"))
        return true; // who gives options is asked nothing
    Terminal::writeError(text(TEXT("Uusi yritys. Tyhjä vastaus hyväksyy ehdotuksen, < palaa edelliseen.")));
    QVector<QString> answers(open.size());
    for (int i = 0; i < open.size();) {
        const QLatin1String option(questions[open.at(i)].option);
        QString preset = answers.at(i);
        if (preset.isEmpty() && option == QLatin1String("file"))
            preset = defaultFile(answers.at(0));
        if (preset.isEmpty() && option == QLatin1String("paymentTerms"))
            preset = QStringLiteral("14 pv netto");
        QString answer;
        const Prompt::Outcome outcome = Prompt::ask(text(questions[open.at(i)].question), preset, answer);
        if (outcome == Prompt::ended)
            return task.fail(Problem::declined, text(TEXT("mitään ei tehty")));
        if (outcome == Prompt::back) {
            i = std::max(0, i - 1);
            continue;
        }
        Arguments one;
        one.add(QStringLiteral("name"), QStringLiteral("x"));
        one.add(option, answer);
        NewCompany trial;
        const bool isRight = (option != QLatin1String("name") || !answer.isEmpty()) &&
                             (option == QLatin1String("file") || check(task, one, trial));
        if (!isRight) {
            if (task.session.problem().isSet())
                Terminal::writeError(task.session.problem().message);
            task.session.clearProblem();
            continue;
        }
        answers[i] = answer;
        ++i;
    }
    for (int i = 0; i < open.size(); ++i) {
        if (!answers.at(i).isEmpty())
            given.add(QLatin1String(questions[open.at(i)].option), answers.at(i));
    }
    return true;
}

bool fill(Task &task, NewCompany &company)
{
    WriteTransaction transaction(task.context().session);
    if (!transaction.hasBegun() || !task.context().session.fetch(CachedList::settings))
        return false;
    Settings settings = *task.session.registry().settings();
    for (const auto &value : qAsConst(company.values)) {
        if (!SettingsKeys::store(settings, value.first, value.second))
            return task.reader.failValue(value.first, value.second, text(TEXT("arvo ei ole oikein")));
    }
    if (!task.context().session.query()->saveSettings(&settings))
        return task.context().session.failQuery();
    if (!company.account.iban.isEmpty() && !RecordEditing::save(task.context(), company.account))
        return false;
    return transaction.commit();
}

bool init(Task &task)
{
    Arguments given = task.arguments;
    if (task.manners.isInteractive && !ask(task, given))
        return false;
    NewCompany company;
    if (!check(task, given, company))
        return false;
    const QString file = company.entry.value(QStringLiteral("filename")).toString();
    if (!file.isEmpty() && !task.manners.isDryRun)
        QDir().mkpath(QFileInfo(file).path());
    if (!CreateDatabase::run(task.context(), company.entry, company.name, [&] { return fill(task, company); }))
        return false;
    const auto value = [&company](const char *key) { return company.entry.value(QLatin1String(key)).toString(); };
    CompanyRecord record;
    record.number = DatabaseList::number(company.entry);
    record.isPostgreSQL = DatabaseList::isPostgreSQL(company.entry);
    record.isSelected = true;
    if (record.isPostgreSQL) {
        record.host = value("host");
        record.database = value("databaseName");
    } else {
        record.file = file;
    }
    const QString place = record.isPostgreSQL ? record.host + QLatin1Char('/') + record.database : file;
    if (!task.answer.saved(
            companyTable, &record,
            text(TEXT("Yritys %1 luotu: %2, %3")).arg(QString::number(record.number), company.name, place),
            task.session))
        return false;
    task.answer.hint(text(TEXT("Seuraavaksi: ")) + QStringLiteral("billora customer add ") + text(TEXT("NIMI")));
    return true;
}

QString invoices(int count) { return count == 1 ? text(TEXT("1 lasku")) : text(TEXT("%1 laskua")).arg(count); }

bool status(Task &task)
{
    Query *query = task.context().session.query();
    int openCount = 0, overdueCount = 0;
    long long open = 0, overdue = 0;
    if (!task.context().session.fetch(CachedList::settings))
        return false;
    const QDate today = task.reader.today();
    const auto take = [&] { query->companyBalances(&openCount, &open, &overdueCount, &overdue); };
    if (!query->fetchCompanyBalances(today) || !query->readAll(take))
        return task.context().session.failQuery();
    const int last = query->maxInvoiceNumber();
    const QString name = task.session.registry().settings()->sellerName;
    const DatabaseList list(task.session.settingsFile(), DatabaseList::reading);
    const auto sums = [](JsonWriter &json, const char *key, int count, long long balance) {
        json.name(key);
        json.beginObject();
        json.member("count", count);
        json.member("balance", ValueWriter::plainDecimal(balance, 2, 2));
        json.endObject();
    };
    task.answer.object(
        [&](JsonWriter &json) {
            const CompanyRecord record = CompanyRecord::of(task.session.companyEntry(list), list.lastUsed());
            json.name("company");
            json.beginObject();
            QVector<const Field *> fields;
            for (const Field &field : companyTable)
                fields.append(&field);
            json.members(JsonMembers(fields), &record);
            json.member("name", name);
            json.endObject();
            sums(json, "open", openCount, open);
            sums(json, "overdue", overdueCount, overdue);
            json.name("lastInvoice");
            if (last > 0)
                json.number(last);
            else
                json.null();
            json.member("today", today.toString(Qt::ISODate));
        },
        text(TEXT("%1\nAvoinna    %2, %3\nErääntynyt %4, %5"))
            .arg(name, invoices(openCount), ValueWriter::money(open), invoices(overdueCount),
                 ValueWriter::money(overdue)));
    if (overdueCount > 0)
        task.answer.hint(text(TEXT("Seuraavaksi: ")) + QStringLiteral("billora invoice list --overdue"));
    else if (last <= 0)
        task.answer.hint(text(TEXT("Seuraavaksi: ")) + QStringLiteral("billora customer add ") + text(TEXT("NIMI")));
    return true;
}

constexpr Option checkOptions[] = {
    {"repairTotals", ValueType::flag, TEXT("korjaa laskujen summat ja avoimet rivien ja suoritusten mukaan")},
};

bool check(Task &task)
{
    const bool repair = task.flag("repairTotals");
    if (repair && Companies::isPattern(task.session.chosenDatabase()))
        return task.failSeveralCompanies();
    if (repair && !task.confirm(text(TEXT("Korjataanko laskujen summat rivien ja suoritusten mukaan?")), 1, false))
        return false;
    DatabaseCheck check = task.context().session.database()->check();
    if (repair) {
        WriteTransaction transaction(task.context().session);
        if (!transaction.hasBegun())
            return false;
        if (!check.run() || !check.repairTotals())
            return task.context().session.failDatabase(check.lastError());
        if (!transaction.commit())
            return false;
    } else if (!check.run()) {
        return task.context().session.failDatabase(check.lastError());
    }
    if (!task.answer.beginList(findingTable, task.session))
        return false;
    for (const Finding &finding : check.findings()) {
        const FindingRecord record = {QLatin1String(finding.check), finding.table, finding.message, finding.id};
        task.answer.add(&record);
    }
    task.answer.endList();
    if (check.findings().isEmpty() && task.answer.options().isTerminal && task.answer.wantsSentences())
        task.answer.line(text(TEXT("Tietokanta ja kirjat ovat kunnossa.")));
    if (check.openCount() > 0)
        task.exitCode = exitNeedsLook;
    return true;
}

constexpr Option backupWords[] = {
    {"file", ValueType::file, TEXT("uusi tiedosto"), Option::plainWord | Option::required | Option::onlyWord},
};

bool backup(Task &task)
{
    const QString name = QDir::fromNativeSeparators(task.arguments.text("file"));
    if (name.isEmpty())
        return task.reader.failValue(QStringLiteral("file"), name, text(TEXT("tiedoston nimi puuttuu")));
    if (QFileInfo::exists(name))
        return task.session.fail(Failure::fileExists, {name});
    if (!task.manners.isDryRun && !task.context().session.database()->backupTo(name))
        return task.context().session.failDatabase();
    const qint64 bytes = QFileInfo(name).size();
    task.answer.object(
        [&](JsonWriter &json) {
            json.member("file", name);
            json.name("bytes");
            json.number(bytes);
        },
        text(TEXT("Varmuuskopio: %1, %2 tavua")).arg(name, QString::number(bytes)));
    return true;
}

bool optimize(Task &task)
{
    QStringList added;
    if (!task.manners.isDryRun && !task.context().session.database()->optimize(added))
        return task.context().session.failDatabase();
    task.answer.object(
        [&added](JsonWriter &json) {
            json.name("indexes");
            json.beginArray();
            for (const QString &name : qAsConst(added))
                json.string(name);
            json.endArray();
        },
        added.isEmpty() ? text(TEXT("Hakemistot olivat kunnossa."))
                        : text(TEXT("Lisätty hakemistot: %1")).arg(added.join(QLatin1String(", "))));
    return true;
}

constexpr Command commands[] = {
    {"init",
     TEXT("luo yrityksen: tietokanta, myyjän tiedot, pankkitili"),
     init,
     Command::writes | Command::noCompany | Command::single | Command::asks,
     &companyTable,
     nullptr,
     {group(initOptions)},
     "init --name \"Saimaan Kirjansitomo Oy\" --business-id 0737546-2 --iban FI2112345600000785 --payment-terms \"14 "
     "pv netto\"\n"
     "init --name \"Saimaan Kirjansitomo Oy\" --postgresql postgresql://billora@palvelin/saimaa --password-file "
     "salasana.txt"},
    {"status", TEXT("yritys, avoimet ja erääntyneet"), status, Command::companies, nullptr, nullptr, {}, "status"},
    {"check",
     TEXT("tarkistaa tiedoston, rakenteen ja kirjat"),
     check,
     Command::lists | Command::companies,
     &findingTable,
     nullptr,
     {group(checkOptions)},
     "check"},
    {"backup",
     TEXT("kopioi tietokannan tiedostoon, muiden kirjoittaessakin"),
     backup,
     Command::eachOnly,
     nullptr,
     nullptr,
     {group(backupWords)},
     "backup varmuuskopio.sqlite"},
    {"optimize",
     TEXT("puuttuvat hakemistot ja tilastot"),
     optimize,
     Command::writes | Command::eachOnly,
     nullptr,
     nullptr,
     {},
     "optimize"},
};

} // namespace

CommandGroup wholeCompanyCommands() { return commandGroup(commands); }

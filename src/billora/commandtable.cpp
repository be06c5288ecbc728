#include "commandtable.h"

#include "commands/commandgroups.h"
#include "texts.h"

#include <QHash>

#include <algorithm>
#include <cstring>
#include <memory>
#include <vector>

namespace {

constexpr struct {
    const char *noun, *summary;
} nounSummaries[] = {
    {"invoice", TEXT("laskut")},
    {"row", TEXT("laskun rivit")},
    {"customer", TEXT("asiakkaat")},
    {"product", TEXT("tuotteet")},
    {"account", TEXT("yrityksen pankkitilit")},
    {"payment", TEXT("saadut suoritukset")},
    {"report", TEXT("luettelot ihmisille, PDF tai CSV")},
    {"journal", TEXT("lähetettyjen asiakirjojen päiväkirja")},
    {"layout", TEXT("laskupohjat ja Finvoice-kirjoittimet")},
    {"company", TEXT("yritysten tietokannat")},
    {"settings", TEXT("yrityksen tiedot ja asetukset")},
};

constexpr Choice colorChoices[] = {
    {"auto", TEXT("vain päätteellä")}, {"always", TEXT("aina")}, {"never", TEXT("ei koskaan")}, {nullptr, nullptr}};
constexpr Choice languageChoices[] = {{"fi", TEXT("suomi")}, {"en", TEXT("englanti")}, {nullptr, nullptr}};

constexpr Option globalRows[] = {
    {"config", ValueType::file, TEXT("asetustiedosto"), 0, nullptr, 'c'},
    {"db", ValueType::text, TEXT("yrityksen numero, SQLite-tiedosto tai malli kuten \"asiakas*\""), 0, nullptr, 0,
     "NUMBER|FILE|PATTERN"},
    {"json", ValueType::flag, TEXT("vastaus JSON-muodossa")},
    {"jsonl", ValueType::flag, TEXT("vastaus JSON-riveinä, yksi tietue rivillä")},
    {"csv", ValueType::flag, TEXT("vastaus CSV-muodossa")},
    {"fields", ValueType::fields, TEXT("vastauksen kentät ja niiden järjestys")},
    {"quiet", ValueType::flag, TEXT("vain tietueiden numerot"), 0, nullptr, 'q'},
    {"yes", ValueType::flag, TEXT("ei kysymyksiä: kaikkiin vastataan kyllä"), 0, nullptr, 'y'},
    {"noInput", ValueType::flag, TEXT("virhe kysymisen sijaan")},
    {"dryRun", ValueType::flag, TEXT("tekee kaiken, mutta ei tallenna mitään"), 0, nullptr, 'n'},
    {"key", ValueType::text, TEXT("toistettavan pyynnön avain: sama avain ei tee samaa kahdesti")},
    {"lang", ValueType::word, TEXT("tekstien kieli"), 0, languageChoices},
    {"color", ValueType::word, TEXT("värit"), 0, colorChoices},
    {"verbose", ValueType::flag, TEXT("kertoo, mitä ohjelma tekee"), 0, nullptr, 'v'},
    {"help", ValueType::flag, TEXT("ohje"), 0, nullptr, 'h'},
    {"version", ValueType::flag, TEXT("ohjelman versio")},
};

/** The editable fields of tables as options, made once for each table. */
const std::vector<Option> &fieldOptions(const RecordTable &table)
{
    static QHash<const RecordTable *, std::vector<Option> *> made; // few, and as long as the program
    std::vector<Option> *&options = made[&table];
    if (!options) {
        options = new std::vector<Option>;
        for (const Field &field : table) {
            if (field.is(Field::editable))
                options->push_back({field.name, field.type, field.description ? field.description : field.heading,
                                    field.is(Field::required) ? unsigned(Option::required) : 0u, field.choices, 0,
                                    nullptr, field.codeList});
        }
    }
    return *options;
}

bool isNamed(const Option &option, const QString &name) { return name == QLatin1String(option.name); }

} // namespace

const QVector<CommandGroup> &CommandTable::groups()
{
    static const QVector<CommandGroup> all = commandGroups();
    return all;
}

const Command *CommandTable::find(const QString &name)
{
    for (const CommandGroup &group : groups()) {
        for (const Command &command : group) {
            if (name == QLatin1String(command.name))
                return &command;
        }
    }
    return nullptr;
}

QStringList CommandTable::names()
{
    QStringList names;
    for (const CommandGroup &group : groups()) {
        for (const Command &command : group)
            names.append(QLatin1String(command.name));
    }
    return names;
}

QStringList CommandTable::nouns()
{
    QStringList nouns;
    for (const auto &row : nounSummaries)
        nouns.append(QLatin1String(row.noun));
    return nouns;
}

const char *CommandTable::nounSummary(const QString &noun)
{
    for (const auto &row : nounSummaries) {
        if (noun == QLatin1String(row.noun))
            return row.summary;
    }
    return nullptr;
}

QStringList CommandTable::verbs(const QString &noun)
{
    QStringList verbs;
    for (const CommandGroup &group : groups()) {
        for (const Command &command : group) {
            const QString name = QLatin1String(command.name);
            if (name.startsWith(noun + QLatin1Char(' ')))
                verbs.append(name.mid(noun.size() + 1));
        }
    }
    return verbs;
}

const OptionGroup &CommandTable::globalOptions()
{
    static constexpr OptionGroup options = group(globalRows);
    return options;
}

QVector<const Option *> CommandTable::options(const Command &command)
{
    static QHash<const Command *, QVector<const Option *>> made; // a batch asks for them line after line
    QVector<const Option *> &all = made[&command];
    if (!all.isEmpty())
        return all;
    for (const OptionGroup &options : command.options) {
        for (const Option &option : options)
            all.append(&option);
    }
    if (command.edits) {
        for (const Option &option : fieldOptions(*command.edits)) {
            const bool isKnown = std::any_of(all.begin(), all.end(), [&option](const Option *known) {
                return std::strcmp(known->name, option.name) == 0;
            });
            if (!isKnown)
                all.append(&option);
        }
    }
    return all;
}

QVector<const Option *> CommandTable::plainWords(const Command &command)
{
    QVector<const Option *> words;
    const QVector<const Option *> all = options(command);
    for (const Option *option : all) {
        const bool isField = command.edits && !option->is(Option::plainWord) &&
                             command.edits->find(QLatin1String(option->name)) && command.is(Command::adds);
        if (option->is(Option::plainWord) || (isField && option->is(Option::required)))
            words.append(option);
    }
    return words;
}

const Option *CommandTable::findOption(const Command *command, const QString &name)
{
    if (command) {
        const QVector<const Option *> known = options(*command);
        for (const Option *option : known) {
            if (isNamed(*option, name) && !option->is(Option::onlyWord))
                return option;
        }
    }
    for (const Option &option : globalOptions()) {
        if (isNamed(option, name))
            return &option;
    }
    return nullptr;
}

QString CommandTable::hyphenated(const QString &name)
{
    QString words;
    for (const QChar c : name) {
        if (c.isUpper())
            words += QLatin1Char('-');
        words += c.toLower();
    }
    return words;
}

QString CommandTable::camelCase(const QString &option)
{
    QString name;
    bool upper = false;
    for (const QChar c : option) {
        if (c == QLatin1Char('-')) {
            upper = true;
            continue;
        }
        name += upper ? c.toUpper() : c;
        upper = false;
    }
    return name;
}

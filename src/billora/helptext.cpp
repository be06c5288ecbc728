#include "helptext.h"

#include "commandtable.h"
#include "problem.h"
#include "records.h"
#include "texts.h"

#include <QStringList>

#include <algorithm>
#include <iterator>

namespace {

constexpr int lineWidth = 80;

constexpr struct {
    const char *name, *title, *text;
} topicRows[] = {
    {"dates", TEXT("Päivät ja ajanjaksot"),
     TEXT("Päivä: 2026-03-31, 31.3.2026, 31.3. (tämä vuosi), today, yesterday, tomorrow, +14d, -1m.\n"
          "Ajanjakso lisäksi: 2026, 2026-03, 3/2026, 2026q1, A..B, this-month, last-month, this-year, last-year.\n"
          "Päivä on aina ennen kuukautta; 3/31/2026 ei kelpaa.")},
    {"money", TEXT("Rahat ja luvut"),
     TEXT("Desimaalien edessä on pilkku tai piste, tuhansien välissä voi olla väli, perässä € tai %: 1 234,50 €.\n"
          "1.234,50 ja 1,234.50 eivät kelpaa: kirjoita 1234,50.\n"
          "Desimaaleja enintään: summat 2, hinnat ja määrät 4, prosentit 2. Mitään ei pyöristetä.")},
    {"selection", TEXT("Laskujen valinta"),
     TEXT("Numeroita ja välejä: 1001 1003 1010-1020 1030-; merkki - lukee lisää vakiosyötteestä, yhden rivillä.\n"
          "Ehdot, joiden kaikkien on täytyttävä: --open --paid --overdue --state --customer --type --reference\n"
          "--date --due-date --delivery-date --since --until --as-of --search. Järjestys ja määrä: --sort --limit.\n"
          "Viittaukset: numero, nimi tai sen osa, id:7, @last.")},
    {"json", TEXT("JSON-muoto"),
     TEXT("--json on yksi taulukko tai olio, --jsonl yksi olio rivillä, aina UTF-8. Rahat, hinnat, määrät ja prosentit "
          "ovat\n"
          "merkkijonoja (\"2183.70\"), tunnisteet ja numerot kokonaislukuja, päivät \"2026-03-31\", puuttuva on null.\n"
          "Kenttien nimet ja tyypit, virhekoodit ja paluuarvot eivät muutu; uusia voi tulla lisää.\n"
          "Virhe: {\"error\": {\"code\", \"message\", \"option\", \"value\", \"suggestions\", \"exit\"}} "
          "virhetulosteeseen.")},
    {"environment", TEXT("Ympäristömuuttujat"),
     TEXT("BILLORA_CONFIG  asetustiedosto\n"
          "BILLORA_DB      yrityksen numero tai SQLite-tiedosto\n"
          "BILLORA_LANG    fi tai en\n"
          "NO_COLOR TERM COLUMNS VISUAL EDITOR TMPDIR XDG_CONFIG_HOME XDG_DATA_HOME kuten muuallakin.")},
};

constexpr char startExamples[] = "init\n"
                                 "customer add \"Kustannus Aallotar Oy\"\n"
                                 "invoice add aallotar --row \"S1 120\"\n"
                                 "invoice list --open\n"
                                 "invoice export 1001";

/** Breaks a text into lines of so many columns at most, each behind the indent. */
QString wrapped(const QString &text, int indent, int firstIndent)
{
    QString lines;
    const QString margin(indent, QLatin1Char(' '));
    QString line(firstIndent, QLatin1Char(' '));
    bool isEmpty = true;
    const QStringList words = text.split(QLatin1Char(' '));
    for (const QString &word : words) {
        if (!isEmpty && line.size() + 1 + word.size() > lineWidth) {
            lines += line + QLatin1Char('\n');
            line = margin;
            isEmpty = true;
        }
        line += isEmpty ? word : QLatin1Char(' ') + word;
        isEmpty = false;
    }
    return lines + line + QLatin1Char('\n');
}

/** Two columns: a term, and what it means. */
QString definition(const QString &term, const QString &meaning, int column)
{
    const QString head = QStringLiteral("  ") + term;
    if (head.size() + 2 > column)
        return head + QLatin1Char('\n') + wrapped(meaning, column, column);
    QString lines = wrapped(meaning, column, column);
    return head + lines.mid(head.size());
}

QString optionTerm(const Option &option)
{
    QString term =
        option.letter ? QLatin1Char('-') + QString(QLatin1Char(option.letter)) + QLatin1String(", ") : QString();
    term += QLatin1String("--") + CommandTable::hyphenated(QLatin1String(option.name));
    if (option.type != ValueType::flag)
        term += QLatin1Char(' ') + HelpText::placeholder(option);
    return term;
}

QString optionMeaning(const Option &option)
{
    QString meaning = text(option.description);
    if (option.choices) {
        QStringList words;
        for (const Choice *choice = option.choices; choice->word; ++choice)
            words.append(QLatin1String(choice->word));
        meaning += QStringLiteral(": ") + words.join(QLatin1String(", "));
    }
    return meaning;
}

template <class Options> QString optionList(const Options &options)
{
    constexpr int column = 30;
    QString lines;
    for (const auto &option : options)
        lines += definition(optionTerm(option), optionMeaning(option), column);
    return lines;
}

QString heading(const char *title) { return QLatin1Char('\n') + text(title) + QStringLiteral(":\n"); }

QString examples(const char *lines)
{
    QString shown = heading(TEXT("Esimerkkejä"));
    const QStringList list = QString::fromUtf8(lines).split(QLatin1Char('\n'));
    for (const QString &line : list)
        shown += HelpText::example(line, QStringLiteral("  "));
    return shown;
}

/** The exit codes that a command has besides those of every command. */
QString specialExits(const Command &command)
{
    const RecordTable *const lookedAt[] = {&findingTable, &importTable, &fileTable, &journalFindingTable};
    const bool needsLook = std::find(std::begin(lookedAt), std::end(lookedAt), command.result) != std::end(lookedAt);
    Problem unconfirmed;
    unconfirmed.code = Problem::needsConfirmation;
    QString lines;
    for (int i = 0; i < exitMeaningCount; ++i) {
        const ExitMeaning &exit = exitMeanings[i];
        if ((exit.code == exitNeedsLook && needsLook) ||
            (exit.code == unconfirmed.exitCode() && command.is(Command::destructive)))
            lines += definition(QString::number(exit.code), text(exit.text), 8);
    }
    return lines.isEmpty() ? lines : heading(TEXT("Paluuarvot")) + lines;
}

QString programHelp()
{
    constexpr int column = 14;
    QString help = text(TEXT("billora: laskut, asiakkaat ja suoritukset komentoriviltä")) + QLatin1Char('\n');
    help += examples(startExamples);
    help += heading(TEXT("Komennot"));
    const QStringList nouns = CommandTable::nouns();
    for (const QString &noun : nouns)
        help += definition(noun,
                           text(CommandTable::nounSummary(noun)) + QStringLiteral(": ") +
                               CommandTable::verbs(noun).join(QLatin1Char(' ')),
                           column);
    for (const CommandGroup &group : CommandTable::groups()) {
        for (const Command &command : group) {
            const QString name = QLatin1String(command.name);
            if (!name.contains(QLatin1Char(' ')) && !name.startsWith(QLatin1Char('_')))
                help += definition(name, text(command.summary), column);
        }
    }
    help += heading(TEXT("Valinnat joka komennossa"));
    help += optionList(CommandTable::globalOptions());
    return help + QLatin1Char('\n') +
           wrapped(
               text(TEXT("Lisää: billora help KOMENTO tai aihe: %1")).arg(HelpText::topics().join(QLatin1Char(' '))), 2,
               0);
}

QString nounHelp(const QString &noun)
{
    constexpr int column = 12;
    QString help = QStringLiteral("billora ") + noun + QStringLiteral(": ") + text(CommandTable::nounSummary(noun)) +
                   QLatin1Char('\n') + heading(TEXT("Komennot"));
    const QStringList verbs = CommandTable::verbs(noun);
    for (const QString &verb : verbs)
        help += definition(verb, text(CommandTable::find(noun + QLatin1Char(' ') + verb)->summary), column);
    return help + QLatin1Char('\n') + text(TEXT("Lisää: billora help %1 KOMENTO")).arg(noun) + QLatin1Char('\n');
}

QString commandHelp(const Command &command)
{
    const QString usageWord = text(TEXT("Käyttö")) + QStringLiteral(": ");
    QString help = wrapped(usageWord + QStringLiteral("billora ") + HelpText::usage(command), usageWord.size(), 0);
    help += QLatin1Char('\n') + wrapped(text(command.summary), 0, 0);
    if (command.details)
        help += QLatin1Char('\n') + wrapped(text(command.details), 0, 0);
    if (command.examples)
        help += examples(command.examples);
    QVector<const Option *> all = CommandTable::options(command);
    all.erase(std::remove_if(all.begin(), all.end(), [](const Option *o) { return o->is(Option::onlyWord); }),
              all.end());
    QVector<Option> shown;
    for (const Option *option : qAsConst(all))
        shown.append(*option);
    if (!shown.isEmpty())
        help += heading(TEXT("Valinnat")) + optionList(shown);
    if (command.result) {
        QStringList names;
        for (const Field &field : *command.result)
            names.append(QLatin1String(field.name));
        help += heading(TEXT("Kentät (--fields)")) + wrapped(names.join(QLatin1Char(' ')), 2, 2);
    }
    help += specialExits(command) + heading(TEXT("Katso myös"));
    if (CommandTable::nounSummary(command.noun()))
        help += QStringLiteral("  billora help ") + command.noun() + QLatin1Char('\n');
    return help + definition(QStringLiteral("billora help"), text(TEXT("Valinnat joka komennossa")), 30);
}

QString exitCodeHelp()
{
    QString help = text(TEXT("Paluuarvot")) + QLatin1Char('\n');
    for (int i = 0; i < exitMeaningCount; ++i) {
        QStringList codes;
        for (int j = 0; j < problemCodeCount; ++j) {
            if (problemCodes[j].exitCode == exitMeanings[i].code)
                codes.append(QLatin1String(problemCodes[j].name));
        }
        help += definition(
            QString::number(exitMeanings[i].code),
            text(exitMeanings[i].text) +
                (codes.isEmpty() ? QString() : QStringLiteral(" (") + codes.join(QLatin1Char(' ')) + QLatin1Char(')')),
            8);
    }
    return help;
}

} // namespace

QString HelpText::example(const QString &words, const QString &indent)
{
    const QString margin = indent + QStringLiteral("    ");
    QString lines;
    QString line = indent + QStringLiteral("billora ") + words;
    while (line.size() > lineWidth) {
        const int at = line.lastIndexOf(QLatin1String(" --"), lineWidth - 2); // room for the backslash
        if (at <= margin.size())
            break;
        lines += line.left(at) + QStringLiteral(" \\\n");
        line = margin + line.mid(at + 1);
    }
    return lines + line + QLatin1Char('\n');
}

QString HelpText::placeholder(const Option &option)
{
    if (option.placeholder)
        return QLatin1String(option.placeholder);
    if (option.choices && option.type == ValueType::word)
        return QStringLiteral("WORD");
    switch (option.type) {
    case ValueType::bank:
    case ValueType::secret:
        return QStringLiteral("TEXT");
    case ValueType::invoices:
        return QStringLiteral("INVOICE");
    case ValueType::position:
        return QStringLiteral("ROW");
    case ValueType::setting:
        return QStringLiteral("KEY");
    default:
        return QString::fromLatin1(valueTypeName(option.type)).toUpper();
    }
}

QString HelpText::usage(const Command &command)
{
    QString usage = QLatin1String(command.name);
    const QVector<const Option *> words = CommandTable::plainWords(command);
    for (const Option *option : words) {
        QString word = option->placeholder ? QString::fromLatin1(option->placeholder)
                                           : CommandTable::hyphenated(QLatin1String(option->name)).toUpper();
        if (option->is(Option::list))
            word += QStringLiteral("…");
        usage +=
            option->is(Option::required) ? QLatin1Char(' ') + word : QStringLiteral(" [") + word + QLatin1Char(']');
    }
    const QVector<const Option *> all = CommandTable::options(command);
    const bool hasOptions =
        std::any_of(all.begin(), all.end(), [&words](const Option *o) { return !words.contains(o); });
    return hasOptions ? usage + QStringLiteral(" [OPTIONS]") : usage;
}

QStringList HelpText::topics()
{
    QStringList names;
    for (const auto &row : topicRows)
        names.append(QLatin1String(row.name));
    names.append(QStringLiteral("exit-codes"));
    return names;
}

QString HelpText::of(const QString &topic)
{
    if (topic.isEmpty())
        return programHelp();
    if (topic == QLatin1String("exit-codes"))
        return exitCodeHelp();
    for (const auto &row : topicRows) {
        if (topic != QLatin1String(row.name))
            continue;
        QString help = text(row.title) + QStringLiteral("\n\n");
        const QStringList lines = text(row.text).split(QLatin1Char('\n'));
        for (const QString &line : lines)
            help += wrapped(line, 2, 0);
        return help;
    }
    if (const Command *command = CommandTable::find(topic))
        return commandHelp(*command);
    return CommandTable::nounSummary(topic) ? nounHelp(topic) : QString();
}

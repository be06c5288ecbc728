#include "manpage.h"

#include "commandtable.h"
#include "helptext.h"
#include "language.h"
#include "problem.h"
#include "texts.h"

#include <QDate>

namespace {

/** Text of a page: what would be a request or an escape is neither. */
QString escaped(QString text)
{
    text.replace(QLatin1Char('\\'), QLatin1String("\\e")).replace(QLatin1Char('-'), QLatin1String("\\-"));
    text.replace(QLatin1Char('\''), QLatin1String("\\(aq"));
    return text.startsWith(QLatin1Char('.')) ? QLatin1String("\\&") + text : text;
}

QString section(const char *title)
{
    return QLatin1String(".SH \"") + escaped(text(title).toUpper()) + QLatin1String("\"\n");
}

QString head(const QString &name, const QString &summary)
{
    return QLatin1String(".TH ") + escaped(name.toUpper()) +
           QLatin1String(" 1 \"\" \"billora " BILLORA_VERSION "\" \"Billora\"\n") + section(TEXT("Nimi")) +
           escaped(name) + QLatin1String(" \\- ") + escaped(summary) + QLatin1Char('\n');
}

QString optionEntry(const Option &option)
{
    QString term =
        option.letter ? QLatin1String("\\fB\\-") + QLatin1Char(option.letter) + QLatin1String("\\fR, ") : QString();
    term += QLatin1String("\\fB\\-\\-") + escaped(CommandTable::hyphenated(QLatin1String(option.name))) +
            QLatin1String("\\fR");
    if (option.type != ValueType::flag)
        term += QLatin1String(" \\fI") + escaped(HelpText::placeholder(option)) + QLatin1String("\\fR");
    QString meaning = text(option.description);
    QStringList choices;
    for (const Choice *choice = option.choices; choice && choice->word; ++choice)
        choices.append(QLatin1String(choice->word));
    if (!choices.isEmpty())
        meaning += QLatin1String(": ") + choices.join(QLatin1String(", "));
    return QLatin1String(".TP\n") + term + QLatin1Char('\n') + escaped(meaning) + QLatin1Char('\n');
}

QString examples(const char *lines)
{
    QString page = QLatin1String(".PP\n.nf\n");
    const QStringList list = QString::fromUtf8(lines).split(QLatin1Char('\n'));
    for (const QString &line : list)
        page += escaped(HelpText::example(line, QString()));
    return page + QLatin1String(".fi\n");
}

QString commandEntry(const Command &command)
{
    QString page = QLatin1String(".SS \"billora ") +
                   escaped(HelpText::usage(command)).replace(QLatin1Char('"'), QLatin1String("\\(dq")) +
                   QLatin1String("\"\n") + escaped(text(command.summary)) + QLatin1String(".\n");
    const QVector<const Option *> options = CommandTable::options(command);
    for (const Option *option : options) {
        if (!option->is(Option::onlyWord))
            page += optionEntry(*option);
    }
    return command.examples ? page + examples(command.examples) : page;
}

QString exitCodes()
{
    QString page = section(TEXT("Paluuarvot"));
    for (int i = 0; i < exitMeaningCount; ++i)
        page += QStringLiteral(".TP\n%1\n%2\n")
                    .arg(QString::number(exitMeanings[i].code), escaped(text(exitMeanings[i].text)));
    return page;
}

QString programPage()
{
    QString page = head(QStringLiteral("billora"), text(TEXT("laskut, asiakkaat ja suoritukset komentoriviltä")));
    page += section(TEXT("Käyttö")) + QLatin1String("\\fBbillora\\fR \\fINOUN VERB\\fR [\\fIOPTIONS\\fR]\n");
    page += section(TEXT("Komennot"));
    const QStringList nouns = CommandTable::nouns();
    for (const QString &noun : nouns)
        page += QStringLiteral(".TP\n\\fBbillora\\-%1\\fR(1)\n%2\n")
                    .arg(noun, escaped(text(CommandTable::nounSummary(noun))));
    for (const CommandGroup &group : CommandTable::groups()) {
        for (const Command &command : group) {
            const QString name = QLatin1String(command.name);
            if (!name.contains(QLatin1Char(' ')) && !name.startsWith(QLatin1Char('_')))
                page += commandEntry(command);
        }
    }
    page += section(TEXT("Valinnat joka komennossa"));
    for (const Option &option : CommandTable::globalOptions())
        page += optionEntry(option);
    const QStringList topics = HelpText::topics();
    for (const QString &topic : topics) {
        if (topic == QLatin1String("exit-codes"))
            continue;
        const QStringList lines = HelpText::of(topic).split(QLatin1Char('\n'));
        page += QLatin1String(".SH \"") + escaped(lines.first().toUpper()) + QLatin1String("\"\n");
        for (const QString &line : lines.mid(1)) {
            if (!line.isEmpty())
                page += escaped(line.trimmed()) + QLatin1Char('\n');
        }
    }
    return page + exitCodes();
}

} // namespace

QString ManPage::of(const QString &noun)
{
    if (noun.isEmpty())
        return programPage();
    const char *summary = CommandTable::nounSummary(noun);
    if (!summary)
        return QString();
    QString page = head(QLatin1String("billora-") + noun, text(summary)) + section(TEXT("Komennot"));
    const QStringList verbs = CommandTable::verbs(noun);
    for (const QString &verb : verbs)
        page += commandEntry(*CommandTable::find(noun + QLatin1Char(' ') + verb));
    return page + exitCodes() + section(TEXT("Katso myös")) + QLatin1String("\\fBbillora\\fR(1)\n");
}

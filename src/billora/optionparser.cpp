#include "optionparser.h"

#include "commandtable.h"
#include "suggestions.h"
#include "texts.h"
#include "valuereader.h"

#include <algorithm>

namespace {

/** Words that people try, and the verb or noun that does it here. */
constexpr struct {
    const char *word, *ours;
} guesses[] = {
    {"create", "add"},      {"new", "add"},        {"lis\u00e4\u00e4", "add"}, {"uusi", "add"},
    {"delete", "remove"},   {"rm", "remove"},      {"del", "remove"},          {"poista", "remove"},
    {"view", "show"},       {"get", "show"},       {"info", "show"},           {"n\u00e4yt\u00e4", "show"},
    {"ls", "list"},         {"find", "list"},      {"search", "list"},         {"listaa", "list"},
    {"update", "edit"},     {"set", "edit"},       {"change", "edit"},         {"muuta", "edit"},
    {"print", "export"},    {"pdf", "export"},     {"send", "export"},         {"tulosta", "export"},
    {"lasku", "invoice"},   {"laskut", "invoice"}, {"invoices", "invoice"},    {"asiakas", "customer"},
    {"tuote", "product"},   {"tili", "account"},   {"suoritus", "payment"},    {"maksu", "payment"},
    {"raportti", "report"}, {"pohja", "layout"},   {"yritys", "company"},      {"asetukset", "settings"},
    {"rivi", "row"},        {"ohje", "help"},      {"tila", "status"},         {"database", "company"},
};

Problem unknownCommand(const QString &typed, const QString &behind, const QStringList &known)
{
    Problem problem;
    problem.code = Problem::unknownCommand;
    problem.value = typed;
    problem.message = text(TEXT("tuntematon komento: %1")).arg(behind + typed);
    for (const auto &guess : guesses) {
        if (typed.toLower() == QString::fromUtf8(guess.word) && known.contains(QLatin1String(guess.ours)))
            problem.suggestions.append({QStringLiteral("billora ") + behind + QLatin1String(guess.ours), QString()});
    }
    if (problem.suggestions.isEmpty()) {
        const QStringList near = Suggestions::nearest(typed, known);
        for (const QString &word : near)
            problem.suggestions.append({QStringLiteral("billora ") + behind + word, QString()});
    }
    problem.see =
        behind.isEmpty() ? QStringLiteral("billora help") : QStringLiteral("billora help ") + behind.trimmed();
    return problem;
}

/** Walks over the words once. */
class Parser {
public:
    explicit Parser(const QStringList &words) : m_words(words) {}

    CommandLine parse()
    {
        findCommand();
        if (m_line.problem.isSet())
            return m_line;
        bool optionsEnded = false;
        for (m_at = 0; m_at < m_words.size(); ++m_at) {
            const QString word = m_words.at(m_at);
            if (m_isCommandWord.value(m_at))
                continue;
            if (!optionsEnded && word == QLatin1String("--"))
                optionsEnded = true;
            else if (!optionsEnded && isOption(word))
                takeOption(word);
            else
                m_plain.append(word);
            if (m_line.problem.isSet())
                return m_line;
        }
        takePlainWords();
        return m_line;
    }

private:
    /** `-5`, `-1m` and `-` are values. */
    static bool isOption(const QString &word)
    {
        return word.size() > 1 && word.startsWith(QLatin1Char('-')) && !word.at(1).isDigit();
    }

    /** The option of a word, without a value behind "="; empty for an unknown short one. */
    static QString optionName(const QString &word)
    {
        const QString bare = word.section(QLatin1Char('='), 0, 0);
        if (bare.startsWith(QLatin1String("--")))
            return CommandTable::camelCase(bare.mid(2));
        for (const Option &option : CommandTable::globalOptions()) {
            if (option.letter != 0 && bare == QString(QLatin1Char('-')) + QLatin1Char(option.letter))
                return QLatin1String(option.name);
        }
        return QString();
    }

    /** Whether the option takes the next word as its value, in any command of the noun. */
    bool takesNextWord(const QString &word) const
    {
        if (word.contains(QLatin1Char('=')))
            return false;
        const Option *option = nullptr;
        const QString name = optionName(word);
        for (const CommandGroup &group : CommandTable::groups()) {
            for (const Command &command : group) {
                if (option || (!m_line.noun.isEmpty() && command.noun() != m_line.noun))
                    continue;
                option = name.isEmpty() ? shortOption(&command, word) : CommandTable::findOption(&command, name);
            }
        }
        return option && option->type != ValueType::flag;
    }

    static const Option *shortOption(const Command *command, const QString &word)
    {
        const QVector<const Option *> known = command ? CommandTable::options(*command) : QVector<const Option *>();
        for (const Option *option : known) {
            if (option->letter != 0 && word == QString(QLatin1Char('-')) + QLatin1Char(option->letter))
                return option;
        }
        return nullptr;
    }

    void findCommand()
    {
        m_isCommandWord.resize(m_words.size());
        QStringList found;
        for (int i = 0; i < m_words.size(); ++i) {
            const QString &word = m_words.at(i);
            if (word == QLatin1String("--"))
                break;
            if (isOption(word)) {
                i += takesNextWord(word);
                continue;
            }
            if (found.isEmpty()) {
                found.append(word);
                m_isCommandWord[i] = true;
                m_line.command = CommandTable::find(word);
                if (m_line.command)
                    return;
                if (!CommandTable::nouns().contains(word)) {
                    QStringList known = CommandTable::nouns();
                    for (const CommandGroup &group : CommandTable::groups()) {
                        for (const Command &command : group)
                            known.append(command.noun());
                    }
                    known.removeDuplicates();
                    m_line.problem = unknownCommand(word, QString(), known);
                    return;
                }
                m_line.noun = word;
                continue;
            }
            m_isCommandWord[i] = true;
            m_line.command = CommandTable::find(found.first() + QLatin1Char(' ') + word);
            if (!m_line.command)
                m_line.problem =
                    unknownCommand(word, found.first() + QLatin1Char(' '), CommandTable::verbs(found.first()));
            return;
        }
    }

    void takeOption(const QString &word)
    {
        const int equals = word.indexOf(QLatin1Char('='));
        QString name = optionName(word);
        const Option *option =
            name.isEmpty() ? shortOption(m_line.command, word) : CommandTable::findOption(m_line.command, name);
        if (!option) {
            m_line.problem = unknownOption(word.section(QLatin1Char('='), 0, 0));
            return;
        }
        name = QLatin1String(option->name);
        QString value = QStringLiteral("true");
        if (equals >= 0) {
            value = word.mid(equals + 1);
        } else if (option->type != ValueType::flag) {
            if (m_at + 1 >= m_words.size()) {
                m_line.problem =
                    problemOf(Problem::missingValue, name, text(TEXT("valinnalta %1 puuttuu arvo")).arg(word));
                return;
            }
            value = m_words.at(++m_at);
        } else if (isField(name) && m_at + 1 < m_words.size() && ValueReader::isYesOrNo(m_words.at(m_at + 1))) {
            value = m_words.at(++m_at); // a field is said either way: --visible false
        }
        bool isGlobal = false;
        for (const Option &global : CommandTable::globalOptions())
            isGlobal = isGlobal || option == &global;
        Arguments &target = isGlobal ? m_line.global : m_line.arguments;
        if (target.has(name) && !option->is(Option::list)) {
            m_line.problem = problemOf(Problem::conflict, name, text(TEXT("valinta %1 on annettu kahdesti")).arg(word));
            return;
        }
        target.add(name, value);
    }

    bool isField(const QString &name) const
    {
        return m_line.command && m_line.command->edits && m_line.command->edits->find(name);
    }

    static Problem problemOf(Problem::Code code, const QString &option, const QString &message)
    {
        Problem problem;
        problem.code = code;
        problem.option = option;
        problem.message = message;
        return problem;
    }

    Problem unknownOption(const QString &word) const
    {
        Problem problem =
            problemOf(Problem::unknownOption,
                      CommandTable::camelCase(QString(word).remove(0, word.startsWith(QLatin1String("--")) ? 2 : 1)),
                      text(TEXT("tuntematon valinta: %1")).arg(word));
        problem.value = word;
        QStringList known;
        if (m_line.command) {
            const QVector<const Option *> options = CommandTable::options(*m_line.command);
            for (const Option *option : options)
                known.append(QLatin1String("--") + CommandTable::hyphenated(QLatin1String(option->name)));
            problem.see = QStringLiteral("billora help ") + QLatin1String(m_line.command->name);
        }
        for (const Option &option : CommandTable::globalOptions())
            known.append(QLatin1String("--") + CommandTable::hyphenated(QLatin1String(option.name)));
        const QStringList near = Suggestions::nearest(word, known);
        for (const QString &suggestion : near)
            problem.suggestions.append({suggestion, QString()});
        return problem;
    }

    void takePlainWords()
    {
        if (!m_line.command)
            return;
        const QVector<const Option *> words = CommandTable::plainWords(*m_line.command);
        int next = 0;
        for (const QString &word : qAsConst(m_plain)) {
            while (next < words.size() && !words.at(next)->is(Option::list) &&
                   m_line.arguments.has(QLatin1String(words.at(next)->name)))
                ++next;
            if (next >= words.size()) {
                m_line.problem =
                    problemOf(Problem::unknownOption, QString(), text(TEXT("ylimääräinen sana: %1")).arg(word));
                m_line.problem.value = word;
                m_line.problem.see = QStringLiteral("billora help ") + QLatin1String(m_line.command->name);
                return;
            }
            m_line.arguments.add(QLatin1String(words.at(next)->name), word);
        }
    }

    const QStringList m_words;
    int m_at = 0;
    QVector<bool> m_isCommandWord;
    QStringList m_plain;
    CommandLine m_line;
};

} // namespace

CommandLine OptionParser::parse(const QStringList &words) { return Parser(words).parse(); }

Problem OptionParser::missing(const Command &command, const Arguments &arguments)
{
    Problem problem;
    const QVector<const Option *> all = CommandTable::options(command);
    for (const Option *option : all) {
        const bool isNeeded = option->is(Option::required) &&
                              (command.is(Command::adds) || !command.edits || option->is(Option::plainWord));
        if (!isNeeded)
            continue;
        const QString name = QLatin1String(option->name);
        if (arguments.has(name))
            continue;
        problem.code = Problem::missingOption;
        problem.option = name;
        problem.message = option->is(Option::onlyWord)
                              ? text(TEXT("%1 puuttuu")).arg(CommandTable::hyphenated(name).toUpper())
                              : text(TEXT("valinta --%1 puuttuu")).arg(CommandTable::hyphenated(name));
        problem.see = QStringLiteral("billora help ") + QLatin1String(command.name);
        return problem;
    }
    return problem;
}

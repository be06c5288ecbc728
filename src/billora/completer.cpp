#include "completer.h"

#include "bankaccount.h"
#include "calendar.h"
#include "commandtable.h"
#include "customer.h"
#include "einvoicecodes.h"
#include "integer.h"
#include "invoice.h"
#include "invoiceselection.h"
#include "layouts.h"
#include "optionparser.h"
#include "product.h"
#include "query.h"
#include "session.h"
#include "settingtexts.h"
#include "texts.h"

namespace {

constexpr int mostInvoices = 50;

struct Found {
    QStringList lines;
    bool wantsFiles = false;

    void add(const QString &prefix, const QString &value, const QString &description)
    {
        if (value.startsWith(prefix, Qt::CaseInsensitive))
            lines.append(value + QLatin1Char('\t') + QString(description).replace(QLatin1Char('\n'), QLatin1Char(' ')));
    }
};

bool isNumeric(const QString &word) { return word.isEmpty() || Integer::isDigits(word); }

void customers(Session &session, const QString &word, Found &found)
{
    if (!session.context().session.fetch(CachedList::customers))
        return;
    const QList<Customer *> &list = session.registry().customers();
    for (const Customer *customer : list) {
        if (isNumeric(word) && customer->number >= 0)
            found.add(word, QString::number(customer->number), customer->name);
        else
            found.add(word, customer->name, customer->townName);
    }
}

void products(Session &session, const QString &word, Found &found)
{
    if (!session.context().session.fetch(CachedList::products))
        return;
    const QList<Product *> &list = session.registry().products();
    for (const Product *product : list)
        found.add(word, product->number, product->name);
}

void accounts(Session &session, const QString &word, Found &found)
{
    if (!session.context().session.fetch(CachedList::bankAccounts))
        return;
    const QList<BankAccount *> &list = session.registry().bankAccounts();
    for (const BankAccount *account : list)
        found.add(word, account->name, account->iban);
}

void layouts(Session &session, const QString &word, Found &found)
{
    const QStringList builtIn = Registry::builtInPrintScriptNames();
    for (const QString &name : builtIn)
        found.add(word, name, QString());
    QVector<PrintScript> stored;
    if (!Layouts::read(session.context(), stored))
        return;
    for (const PrintScript &layout : qAsConst(stored))
        found.add(word, layout.name, layout.type);
}

/** The newest ones; for a payment those that are open. */
void invoices(Session &session, const QString &word, bool onlyOpen, Found &found)
{
    Query *query = session.context().session.query();
    InvoiceSelection selection;
    selection.today = Calendar::today();
    selection.withBalance = onlyOpen;
    selection.descending = true;
    selection.limit = mostInvoices;
    if (!word.isEmpty()) {
        bool isNumber = false;
        const int number = Integer::parse(word, isNumber);
        if (!isNumber)
            return;
        for (long long from = number, to = number; from <= 2147483647LL; from *= 10, to = to * 10 + 9) {
            selection.numbers.append({static_cast<int>(from), static_cast<int>(std::min(to, 2147483647LL))});
            if (from == 0)
                break;
        }
    }
    if (!query->fetchInvoiceList(selection, false))
        return;
    Invoice invoice;
    QString name;
    int customerNumber = 0;
    while (query->next()) {
        query->invoiceListRow(&invoice, &customerNumber, &name, false);
        found.add(word, QString::number(invoice.number), name);
    }
    query->finish();
}

void values(Session &session, const Option &option, const Command &command, const QString &word, Found &found)
{
    for (const Choice *choice = option.choices; choice && choice->word; ++choice)
        found.add(word, QLatin1String(choice->word), text(choice->text));
    if (option.codeList) {
        const QStringList codes = EInvoiceCodes::codes(option.codeList);
        for (const QString &code : codes)
            found.add(word, code, QString());
    }
    if (option.type == ValueType::file) {
        found.wantsFiles = true;
        return;
    }
    if (option.type == ValueType::fields) {
        const QString before =
            word.contains(QLatin1Char(',')) ? word.left(word.lastIndexOf(QLatin1Char(',')) + 1) : QString();
        if (command.result) {
            for (const Field &field : *command.result)
                found.add(word, before + QLatin1String(field.name), text(field.heading));
        }
        return;
    }
    if (option.type == ValueType::setting) {
        const QStringList keys = SettingTexts::keys();
        for (const QString &key : keys) {
            const QString name = key.section(QLatin1Char('/'), -1);
            found.add(word,
                      word.contains(QLatin1Char('/')) || keys.filter(QLatin1Char('/') + name).size() != 1 ? key : name,
                      SettingTexts::description(key));
        }
        return;
    }
    if (option.type == ValueType::command) {
        const QStringList names = CommandTable::nouns();
        for (const QString &name : names)
            found.add(word, name, text(CommandTable::nounSummary(name)));
        return;
    }
    session.context().session.setTrial(true);
    session.context().session.setGlance(true);
    if (!session.open())
        return;
    const bool paysInvoice = QLatin1String(command.name) == QLatin1String("payment add");
    switch (option.type) {
    case ValueType::customer:
        return customers(session, word, found);
    case ValueType::product:
        return products(session, word, found);
    case ValueType::account:
        return accounts(session, word, found);
    case ValueType::layout:
        return layouts(session, word, found);
    case ValueType::invoice:
    case ValueType::invoices:
        return invoices(session, word, paysInvoice, found);
    default:
        return;
    }
}

void options(const Command *command, const Arguments &given, const Arguments &global, const QString &word, Found &found)
{
    const auto offer = [&](const Option &option, const Arguments &taken) {
        if (!option.is(Option::onlyWord) && (option.is(Option::list) || !taken.has(option.name)))
            found.add(word, QLatin1String("--") + CommandTable::hyphenated(QLatin1String(option.name)),
                      text(option.description));
    };
    if (command) {
        const QVector<const Option *> own = CommandTable::options(*command);
        for (const Option *option : own)
            offer(*option, given);
    }
    for (const Option &option : CommandTable::globalOptions())
        offer(option, global);
}

Found search(Session &session, const QStringList &words)
{
    Found found;
    const QString word = words.isEmpty() ? QString() : words.last();
    const QStringList before = words.mid(0, std::max(0, words.size() - 1));
    // The value of an option that stands in front of the cursor.
    if (!before.isEmpty() && before.last().startsWith(QLatin1String("--")) &&
        !before.last().contains(QLatin1Char('='))) {
        const CommandLine line = OptionParser::parse(before.mid(0, before.size() - 1));
        const Option *option = CommandTable::findOption(line.command, CommandTable::camelCase(before.last().mid(2)));
        if (option && option->type != ValueType::flag && line.command) {
            values(session, *option, *line.command, word, found);
            return found;
        }
    }
    const CommandLine line = OptionParser::parse(before);
    if (word.startsWith(QLatin1Char('-'))) {
        options(line.command, line.arguments, line.global, word, found);
        return found;
    }
    if (!line.command && line.noun.isEmpty()) {
        const QStringList nouns = CommandTable::nouns();
        for (const QString &noun : nouns)
            found.add(word, noun, text(CommandTable::nounSummary(noun)));
        const QStringList names = CommandTable::names();
        for (const QString &name : names) {
            if (!name.contains(QLatin1Char(' ')) && !name.startsWith(QLatin1Char('_')))
                found.add(word, name, text(CommandTable::find(name)->summary));
        }
        return found;
    }
    if (!line.command) {
        const QStringList verbs = CommandTable::verbs(line.noun);
        for (const QString &verb : verbs)
            found.add(word, verb, text(CommandTable::find(line.noun + QLatin1Char(' ') + verb)->summary));
        return found;
    }
    const QVector<const Option *> plain = CommandTable::plainWords(*line.command);
    for (const Option *option : plain) {
        if (option->is(Option::list) || !line.arguments.has(option->name)) {
            values(session, *option, *line.command, word, found);
            break;
        }
    }
    return found;
}

} // namespace

QStringList Completer::complete(Session &session, const QStringList &words)
{
    Found found = search(session, words);
    session.clearProblem();
    session.context().session.closeDatabase();
    return found.lines + QStringList(found.wantsFiles ? QStringLiteral(":files") : QStringLiteral(":none"));
}

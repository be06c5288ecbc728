#include "selection.h"

#include "customer.h"
#include "inputline.h"
#include "integer.h"
#include "query.h"
#include "references.h"
#include "suggestions.h"
#include "task.h"

#include <QSet>

#include <unistd.h>

namespace {

/** More numbers than this in one question are more than databases take. */
constexpr int mostNumbers = 30000;
constexpr int mostRanges = 400;

bool readWord(Task &task, const char *option, const QString &word, InvoiceSelection &selection)
{
    if (word.startsWith(QLatin1Char('@')) || word.startsWith(QLatin1String("id:"))) {
        Invoice invoice;
        if (!References::invoice(task, QLatin1String(option), word, invoice))
            return false;
        selection.ids.append(invoice.id);
        return true;
    }
    const int hyphen = word.indexOf(QLatin1Char('-'));
    const QString from = hyphen < 0 ? word : word.left(hyphen);
    const QString to = hyphen < 0 ? word : word.mid(hyphen + 1);
    bool hasFrom = from.isEmpty(), hasTo = to.isEmpty();
    InvoiceSelection::NumberRange range = {-1, -1};
    if (!hasFrom)
        range.from = Integer::parse(from, hasFrom);
    if (!hasTo)
        range.to = Integer::parse(to, hasTo);
    if (!hasFrom || !hasTo || word.isEmpty() || word == QLatin1String("-") || from.startsWith(QLatin1Char('+')))
        return task.reader.failValue(QLatin1String(option), word,
                                     text(TEXT("laskun numero tai väli, kuten 1001 tai 1010-1020: %1")).arg(word));
    if (range.from >= 0 && range.to >= 0 && range.from > range.to)
        return task.reader.failValue(QLatin1String(option), word,
                                     text(TEXT("välin loppu on ennen alkua: %1")).arg(word));
    selection.numbers.append(range);
    return true;
}

/** Every number that stands by itself must exist. */
bool checkNumbers(Task &task, const char *option, const InvoiceSelection &selection)
{
    InvoiceSelection singles;
    int ranges = 0;
    for (const InvoiceSelection::NumberRange &range : selection.numbers) {
        if (range.from >= 0 && range.from == range.to)
            singles.numbers.append(range);
        else
            ++ranges;
    }
    if (singles.numbers.size() > mostNumbers || ranges > mostRanges || selection.ids.size() > mostNumbers)
        return task.fail(Problem::badValue, text(TEXT("liian monta laskun numeroa kerralla")), QLatin1String(option));
    if (singles.numbers.isEmpty())
        return true;
    Query *query = task.context().session.query();
    if (!query->fetchInvoiceList(singles, false))
        return task.context().session.failQuery();
    QSet<int> found;
    Invoice invoice;
    QString name;
    int customerNumber = 0;
    while (query->next()) {
        query->invoiceListRow(&invoice, &customerNumber, &name, false);
        found.insert(invoice.number);
    }
    if (query->hasReadError())
        return task.context().session.failQuery();
    for (const InvoiceSelection::NumberRange &single : qAsConst(singles.numbers)) {
        if (!found.contains(single.from)) {
            Invoice none;
            return References::invoice(task, QLatin1String(option), QString::number(single.from), none);
        }
    }
    return true;
}

bool readDate(Task &task, const char *name, QDate &date)
{
    return !task.arguments.has(name) || task.reader.date(QLatin1String(name), task.arguments.text(name), date);
}

bool readPeriod(Task &task, const char *name, QDate &from, QDate &to)
{
    Period period;
    if (!task.arguments.has(name))
        return true;
    if (!task.reader.period(QLatin1String(name), task.arguments.text(name), period))
        return false;
    from = period.from;
    to = period.to;
    return true;
}

} // namespace

bool Selection::readChoice(Task &task, const char *name, const Choice *choices, int &index)
{
    QString word;
    if (!task.arguments.has(name))
        return true;
    if (!task.reader.word(QLatin1String(name), choices, task.arguments.text(name), word))
        return false;
    for (int i = 0; choices[i].word; ++i) {
        if (word == QLatin1String(choices[i].word))
            index = i;
    }
    return true;
}

bool Selection::readInvoiceWords(Task &task, const char *option, InvoiceSelection &selection)
{
    const QStringList words = task.arguments.texts(option);
    for (const QString &word : words) {
        if (word != QLatin1String("-")) {
            if (!readWord(task, option, word, selection))
                return false;
            continue;
        }
        InputLine input(STDIN_FILENO);
        QString line;
        while (input.read(line)) {
            const QString trimmed = line.trimmed();
            if (!trimmed.isEmpty() && !readWord(task, option, trimmed, selection))
                return false;
        }
        if (selection.numbers.isEmpty() && selection.ids.isEmpty()) // asked for what standard input names: nothing
            selection.ids.append(-1);
    }
    return checkNumbers(task, option, selection);
}

bool Selection::readDays(Task &task, const char *period, QDate &from, QDate &to)
{
    QDate since, until;
    if (!readPeriod(task, period, from, to) || !readDate(task, "since", since) || !readDate(task, "until", until))
        return false;
    if (since.isValid() && (!from.isValid() || since > from))
        from = since;
    if (until.isValid() && (!to.isValid() || until < to))
        to = until;
    return true;
}

bool Selection::readSort(Task &task, const QStringList &keys, QString &sort, bool &descending)
{
    if (!task.arguments.has("sort"))
        return true;
    QString word = task.arguments.text("sort");
    descending = word.startsWith(QLatin1Char('-'));
    if (descending)
        word.remove(0, 1);
    if (keys.contains(word)) {
        sort = word;
        return true;
    }
    Problem problem;
    problem.code = Problem::unknownField;
    problem.message = text(TEXT("kentän mukaan ei voi järjestää: %1")).arg(word);
    problem.option = QStringLiteral("sort");
    problem.value = word;
    const QStringList near = Suggestions::nearest(word, keys);
    for (const QString &key : near.isEmpty() ? keys : near)
        problem.suggestions.append({key, QString()});
    return task.fail(problem);
}

bool Selection::readLimit(Task &task, int &limit)
{
    if (!task.arguments.has("limit"))
        return true;
    if (!task.reader.number(QStringLiteral("limit"), ValueType::integer, task.arguments.text("limit"), limit))
        return false;
    return limit >= 0 || task.reader.failValue(QStringLiteral("limit"), task.arguments.text("limit"),
                                               text(TEXT("luvun pitää olla vähintään 0")));
}

bool Selection::readInvoices(Task &task, InvoiceSelection &selection, bool needsSome)
{
    selection.today = task.reader.today();
    selection.withBalance = task.flag("open");
    selection.withoutBalance = task.flag("paid");
    selection.isOverdue = task.flag("overdue");
    selection.reference = QString(task.arguments.text("reference")).remove(QLatin1Char(' '));
    selection.text = task.arguments.text("search");
    if (!readInvoiceWords(task, "invoices", selection) || !readChoice(task, "state", invoiceStates, selection.state) ||
        !readChoice(task, "type", invoiceTypes, selection.type) ||
        !readDays(task, "date", selection.dateFrom, selection.dateTo) ||
        !readPeriod(task, "dueDate", selection.dueDateFrom, selection.dueDateTo) ||
        !readPeriod(task, "deliveryDate", selection.deliveryDateFrom, selection.deliveryDateTo) ||
        !readDate(task, "asOf", selection.asOf) || !readLimit(task, selection.limit) ||
        !readSort(task, Query::invoiceSortKeys(), selection.sort, selection.descending))
        return false;
    if (task.arguments.has("customer")) {
        Customer customer;
        if (!References::customer(task, QStringLiteral("customer"), task.arguments.text("customer"), customer))
            return false;
        selection.customerId = customer.id;
    }
    if (!needsSome || selection.restricts() || task.flag("all"))
        return true;
    return task.fail(Problem::missingSelection, text(TEXT("mitkä laskut? Anna numeroita, ehtoja tai valinta --all")),
                     QStringLiteral("invoices"));
}

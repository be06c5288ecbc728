#include "commandgroups.h"

#include "invoicereader.h"
#include "journal.h"
#include "records.h"
#include "selection.h"
#include "sentdocuments.h"
#include "task.h"

#include <QDateTime>

#include <algorithm>

namespace {

constexpr Option filters[] = {
    {"invoice", ValueType::invoices, TEXT("laskujen numeroita ja välejä"), Option::list},
    {"date", ValueType::period, TEXT("lähetyksen päivä tai ajanjakso")},
    {"since", ValueType::date, TEXT("tästä päivästä alkaen")},
    {"until", ValueType::date, TEXT("tähän päivään asti")},
};

bool list(Task &task)
{
    Journal::Filter filter;
    if (!Selection::readInvoiceWords(task, "invoice", filter.invoices) ||
        !Selection::readDays(task, "date", filter.from, filter.to) ||
        !task.answer.beginList(journalTable, task.session))
        return false;
    const bool done = Journal::read(task, [&](const JournalRecord &line, bool isLine) {
        if (!isLine) // told by verify
            task.exitCode = exitNeedsLook;
        return !isLine || !filter.matches(line) || task.answer.add(&line);
    });
    if (done)
        task.answer.endList();
    return done;
}

constexpr Option showWords[] = {
    {"line", ValueType::integer, TEXT("rivin numero"), Option::plainWord | Option::required | Option::onlyWord},
};

bool show(Task &task)
{
    int number = 0;
    const QString word = task.arguments.text("line");
    if (!task.reader.number(QStringLiteral("line"), ValueType::integer, word, number))
        return false;
    JournalRecord found;
    const bool done = Journal::read(task, [&](const JournalRecord &line, bool isLine) {
        if (isLine && line.line == number)
            found = line;
        return found.line == 0;
    });
    if (!done)
        return false;
    if (found.line == 0)
        return task.fail(Problem::notFound, text(TEXT("päiväkirjassa ei ole riviä %1")).arg(word),
                         QStringLiteral("line"), word);
    return task.answer.show(journalTable, &found, task.session);
}

/** The last document of its kind that was made of an invoice. */
struct Sent {
    int line = 0, number = 0;
    QString kind, record;
};

/** How many invoices are read by their ids rather than with all others. */
constexpr int fewInvoices = 500;

/** Compares the invoices that were sent with those that there are. */
bool compare(Task &task, QHash<int, QVector<Sent>> &sent, QVector<JournalFindingRecord> &findings)
{
    InvoiceSelection selection;
    selection.today = task.reader.today();
    if (sent.size() <= fewInvoices)
        selection.ids = sent.keys().toVector();
    const auto tell = [&findings](const Sent &one, const char *finding, const char *sentence) {
        findings.append({one.line, one.number, QLatin1String(finding), text(sentence).arg(one.number)});
    };
    const bool done = sent.isEmpty() || InvoiceReader::read(task, selection, true, [&](const InvoiceRecord &record) {
                          const auto documents = sent.find(record.invoice.id);
                          if (documents == sent.end())
                              return true;
                          const QString hash = SentDocuments::hashOf(record);
                          for (const Sent &one : qAsConst(*documents)) {
                              if (one.record != hash)
                                  tell(one, "record-changed", TEXT("laskua %1 on muutettu lähettämisen jälkeen"));
                          }
                          sent.erase(documents);
                          return true;
                      });
    for (const QVector<Sent> &documents : qAsConst(sent)) {
        for (const Sent &one : documents)
            tell(one, "record-gone", TEXT("laskua %1 ei enää ole"));
    }
    return done;
}

bool verify(Task &task)
{
    QVector<JournalFindingRecord> findings;
    QHash<int, QVector<Sent>> sent;
    int count = 0;
    const auto take = [&](const JournalRecord &line) {
        ++count;
        QVector<Sent> &documents = sent[line.invoiceId];
        const auto earlier = std::find_if(documents.begin(), documents.end(),
                                          [&line](const Sent &one) { return one.kind == line.kind; });
        const Sent one = {line.line, line.invoiceNumber, line.kind, line.record};
        if (earlier != documents.end())
            *earlier = one;
        else
            documents.append(one);
    };
    if (!Journal::verify(task, take, [&findings](const JournalFindingRecord &found) { findings.append(found); }) ||
        !compare(task, sent, findings) || !task.answer.beginList(journalFindingTable, task.session))
        return false;
    std::stable_sort(findings.begin(), findings.end(),
                     [](const auto &one, const auto &other) { return one.line < other.line; });
    for (const JournalFindingRecord &finding : qAsConst(findings))
        task.answer.add(&finding);
    task.answer.endList();
    if (!findings.isEmpty())
        task.exitCode = exitNeedsLook;
    else if (task.answer.options().isTerminal && task.answer.wantsSentences())
        task.answer.line(text(TEXT("Päiväkirja on eheä, rivejä %1.")).arg(count));
    return true;
}

constexpr Command commands[] = {
    {"journal list",
     TEXT("lähetetyt asiakirjat"),
     list,
     Command::lists,
     &journalTable,
     nullptr,
     {group(filters)},
     "journal list --invoice 1001\n"
     "journal list --date this-month"},
    {"journal show",
     TEXT("päiväkirjan rivi tiivisteineen"),
     show,
     0,
     &journalTable,
     nullptr,
     {group(showWords)},
     "journal show 1"},
    {"journal verify",
     TEXT("tarkistaa, ettei päiväkirjaa tai lähetettyjä laskuja ole muutettu"),
     verify,
     Command::lists,
     &journalFindingTable,
     nullptr,
     {},
     "journal verify",
     TEXT(
         "Rivien ketju ja tieto viimeisestä rivistä paljastavat muutetun, poistetun, lisätyn ja siirretyn rivin, mutta "
         "eivät sitä, joka kirjoittaa tai poistaa ne kaikki. Kopio muualla paljastaa senkin.")},
};

} // namespace

CommandGroup journalCommands() { return commandGroup(commands); }

#include "references.h"

#include "bankaccount.h"
#include "customer.h"
#include "integer.h"
#include "invoice.h"
#include "invoiceitem.h"
#include "invoiceselection.h"
#include "payment.h"
#include "printscript.h"
#include "product.h"
#include "query.h"
#include "suggestions.h"
#include "task.h"
#include "texts.h"

#include <QVector>

#include <functional>

namespace {

constexpr int mostShown = 20;

/** What a kind of record is called when it is not found. */
struct Kind {
    const char *unknown, *ambiguous; ///< sentences with the word in "%1"
    const char *see;
};

constexpr Kind customers = {TEXT("asiakasta ei löytynyt: \"%1\""), TEXT("asiakkaita on useita: \"%1\""),
                            "billora customer list"};
constexpr Kind products = {TEXT("tuotetta ei löytynyt: \"%1\""), TEXT("tuotteita on useita: \"%1\""),
                           "billora product list"};
constexpr Kind accounts = {TEXT("pankkitiliä ei löytynyt: \"%1\""), TEXT("pankkitilejä on useita: \"%1\""),
                           "billora account list"};
constexpr Kind layouts = {TEXT("laskupohjaa ei löytynyt: \"%1\""), TEXT("laskupohjia on useita: \"%1\""),
                          "billora layout list"};
constexpr Kind invoices = {TEXT("laskua ei löytynyt: \"%1\""), TEXT("laskuja on useita: \"%1\""),
                           "billora invoice list"};
constexpr Kind payments = {TEXT("suoritusta ei löytynyt: \"%1\""), TEXT("suorituksia on useita: \"%1\""),
                           "billora payment list"};
constexpr Kind rows = {TEXT("riviä ei ole laskulla: \"%1\""), "", "billora invoice show"};

/** A record that a word may mean: how it is named, and what it is for people. */
struct Candidate {
    QString handle, name;
    int index = -1;
};

Problem problemOf(Problem::Code code, const Kind &kind, const QString &option, const QString &word)
{
    Problem problem;
    problem.code = code;
    problem.message = text(code == Problem::ambiguous ? kind.ambiguous : kind.unknown).arg(word);
    problem.option = option;
    problem.value = word;
    problem.see = QLatin1String(kind.see);
    return problem;
}

bool failUnknown(Task &task, const Kind &kind, const QString &option, const QString &word,
                 const QVector<Candidate> &candidates = {})
{
    Problem problem = problemOf(Problem::notFound, kind, option, word);
    QStringList names;
    for (const Candidate &candidate : candidates)
        names << candidate.name << candidate.handle;
    const QStringList near = Suggestions::nearestPart(word, names);
    for (const Candidate &candidate : candidates) {
        if (problem.suggestions.size() < Suggestions::most &&
            (near.contains(candidate.name) || near.contains(candidate.handle)))
            problem.suggestions.append({candidate.handle, candidate.name});
    }
    return task.fail(problem);
}

bool failAmbiguous(Task &task, const Kind &kind, const QString &option, const QString &word,
                   const QVector<Candidate> &fitting)
{
    Problem problem = problemOf(Problem::ambiguous, kind, option, word);
    for (int i = 0; i < fitting.size() && i < mostShown; ++i)
        problem.suggestions.append({fitting.at(i).handle, fitting.at(i).name});
    return task.fail(problem);
}

/** @return the index of the candidate that the word names, -1 with the problem told */
int pick(Task &task, const Kind &kind, const QString &option, const QString &word, const QVector<Candidate> &candidates)
{
    QVector<Candidate> equal, containing;
    for (const Candidate &candidate : candidates) {
        if (candidate.name == word)
            equal.append(candidate);
        else if (candidate.name.contains(word, Qt::CaseInsensitive))
            containing.append(candidate);
    }
    const QVector<Candidate> &fitting = equal.isEmpty() ? containing : equal;
    if (fitting.size() == 1)
        return fitting.first().index;
    if (fitting.isEmpty())
        failUnknown(task, kind, option, word, candidates);
    else
        failAmbiguous(task, kind, option, word, fitting);
    return -1;
}

/** What "@last" and "id:7" name. */
enum class IdWord { none, id, wrong };

IdWord idOf(Task &task, const Kind &kind, const QString &option, const QString &word, int lastSaved,
            int (Query::*newest)(), int &id)
{
    if (word.trimmed().isEmpty()) { // would be part of every name
        failUnknown(task, kind, option, word);
        return IdWord::wrong;
    }
    if (word == QLatin1String("@last")) {
        id = lastSaved > 0 ? lastSaved : (task.context().session.query()->*newest)();
        if (id > 0)
            return IdWord::id;
        if (id < 0)
            task.context().session.failQuery();
        failUnknown(task, kind, option, word);
        return IdWord::wrong;
    }
    if (word.startsWith(QLatin1String("id:"))) {
        bool isNumber = false;
        id = Integer::parse(word.mid(3), isNumber);
        if (isNumber)
            return IdWord::id;
        failUnknown(task, kind, option, word);
        return IdWord::wrong;
    }
    return IdWord::none;
}

/** Reads all rows of a fetch that was made. @return false, with the failure told, when the reading fails */
template <class Record>
bool readAll(Task &task, bool fetched, void (Query::*read)(Record *) const, QVector<Record> &list)
{
    Query *query = task.context().session.query();
    if (!fetched)
        return task.context().session.failQuery();
    while (query->next()) {
        Record record;
        (query->*read)(&record);
        list.append(record);
    }
    return !query->hasReadError() || task.context().session.failQuery();
}

/** The record of an id among those read. */
template <class Record>
bool only(Task &task, const Kind &kind, const QString &option, const QString &word, const QVector<Record> &found,
          Record &record)
{
    if (found.isEmpty())
        return failUnknown(task, kind, option, word);
    record = found.first();
    return true;
}

template <class Record>
QVector<Candidate> candidatesOf(const QList<Record *> &list, const std::function<QString(const Record &)> &handle)
{
    QVector<Candidate> candidates;
    for (int i = 0; i < list.size(); ++i)
        candidates.append({handle(*list.at(i)), list.at(i)->name, i});
    return candidates;
}

QString idHandle(int id) { return QStringLiteral("id:") + QString::number(id); }

} // namespace

bool References::customer(Task &task, const QString &option, const QString &word, Customer &record)
{
    Query *query = task.context().session.query();
    QVector<Customer> found;
    int id = 0;
    const IdWord byId =
        idOf(task, customers, option, word, task.context().lastSaved.customer, &Query::newestCustomerId, id);
    if (byId == IdWord::wrong)
        return false;
    if (byId == IdWord::id)
        return readAll<Customer>(task, query->fetchCustomer(id), &Query::customer, found) &&
               only(task, customers, option, word, found, record);
    const auto handle = [](const Customer &customer) {
        return customer.number < 0 ? idHandle(customer.id) : QString::number(customer.number);
    };
    bool isNumber = false;
    const int number = Integer::parse(word, isNumber);
    if (Integer::isDigits(word) && isNumber) {
        if (!task.context().session.findByNumber(number, found))
            return false;
        QVector<Candidate> fitting;
        for (int i = 0; i < found.size(); ++i) {
            if (!found.at(i).deleted)
                fitting.append({idHandle(found.at(i).id), found.at(i).name, i});
        }
        if (fitting.size() > 1)
            return failAmbiguous(task, customers, option, word, fitting);
        if (fitting.size() == 1) {
            record = found.at(fitting.first().index);
            return true;
        }
    }
    if (!task.context().session.fetch(CachedList::customers))
        return false;
    const QList<Customer *> &list = task.session.registry().customers();
    const QVector<Candidate> candidates = candidatesOf<Customer>(list, handle);
    if (Integer::isDigits(word))
        return failUnknown(task, customers, option, word, candidates);
    const int index = pick(task, customers, option, word, candidates);
    if (index >= 0)
        record = *list.at(index);
    return index >= 0;
}

bool References::product(Task &task, const QString &option, const QString &word, Product &record)
{
    QVector<Product> found;
    int id = 0;
    const IdWord byId =
        idOf(task, products, option, word, task.context().lastSaved.product, &Query::newestProductId, id);
    if (byId == IdWord::wrong)
        return false;
    if (byId == IdWord::none) {
        if (!task.context().session.findByNumber(word, found))
            return false;
        if (found.size() == 1) {
            record = found.first();
            return true;
        }
        if (found.size() > 1) {
            QVector<Candidate> fitting;
            for (const Product &product : qAsConst(found))
                fitting.append({idHandle(product.id), product.name});
            return failAmbiguous(task, products, option, word, fitting);
        }
    }
    if (!task.context().session.fetch(CachedList::products))
        return false;
    const QList<Product *> &list = task.session.registry().products();
    if (byId == IdWord::id) {
        bool isFound = false;
        const Product *product = task.session.registry().productById(id, isFound);
        if (!isFound)
            return failUnknown(task, products, option, word);
        record = *product;
        return true;
    }
    const int index = pick(task, products, option, word, candidatesOf<Product>(list, [](const Product &product) {
                               return product.number.isEmpty() ? idHandle(product.id) : product.number;
                           }));
    if (index >= 0)
        record = *list.at(index);
    return index >= 0;
}

bool References::account(Task &task, const QString &option, const QString &word, BankAccount &record)
{
    int id = 0;
    const IdWord byId =
        idOf(task, accounts, option, word, task.context().lastSaved.bankAccount, &Query::newestBankAccountId, id);
    if (byId == IdWord::wrong || !task.context().session.fetch(CachedList::bankAccounts))
        return false;
    if (byId == IdWord::id) {
        bool isFound = false;
        const BankAccount *account = task.session.registry().bankAccountById(id, isFound);
        if (!isFound)
            return failUnknown(task, accounts, option, word);
        record = *account;
        return true;
    }
    const QList<BankAccount *> &list = task.session.registry().bankAccounts();
    QVector<Candidate> candidates;
    for (int i = 0; i < list.size(); ++i) {
        const BankAccount &account = *list.at(i);
        if (QString(word).remove(QLatin1Char(' ')).compare(account.iban, Qt::CaseInsensitive) == 0) {
            record = account;
            return true;
        }
        candidates.append({idHandle(account.id), account.name, i});
    }
    const int index = pick(task, accounts, option, word, candidates);
    if (index >= 0)
        record = *list.at(index);
    return index >= 0;
}

bool References::layout(Task &task, const QString &option, const QString &word, PrintScript &record)
{
    Query *query = task.context().session.query();
    QVector<PrintScript> list;
    if (!readAll<PrintScript>(task, query->fetchPrintScriptSummaries(), &Query::printScriptSummary, list))
        return false;
    if (word.trimmed().isEmpty())
        return failUnknown(task, layouts, option, word);
    const bool byId = word.startsWith(QLatin1String("id:"));
    bool isNumber = false;
    const int id = Integer::parse(byId ? word.mid(3) : word, isNumber);
    int wanted = -1;
    int newest = -1;
    QVector<Candidate> candidates;
    for (int i = 0; i < list.size(); ++i) {
        const PrintScript &script = list.at(i);
        candidates.append({idHandle(script.id), script.name, i});
        if (newest < 0 || script.id > list.at(newest).id)
            newest = i;
        if (isNumber && (byId || Integer::isDigits(word)) && script.id == id)
            wanted = i;
    }
    if (word == QLatin1String("@last"))
        wanted = newest;
    if (wanted < 0 && (byId || word == QLatin1String("@last")))
        return failUnknown(task, layouts, option, word, candidates);
    if (wanted < 0)
        wanted = pick(task, layouts, option, word, candidates);
    if (wanted < 0)
        return false;
    QVector<PrintScript> found;
    return readAll<PrintScript>(task, query->fetchPrintScriptDetails(list.at(wanted).id), &Query::printScriptDetails,
                                found) &&
           only(task, layouts, option, word, found, record);
}

bool References::invoice(Task &task, const QString &option, const QString &word, Invoice &record)
{
    Query *query = task.context().session.query();
    int id = 0;
    const IdWord byId =
        idOf(task, invoices, option, word, task.context().lastSaved.invoice, &Query::newestInvoiceId, id);
    if (byId == IdWord::wrong)
        return false;
    bool isNumber = byId == IdWord::id;
    if (byId == IdWord::none) {
        const int number = Integer::parse(word, isNumber);
        if (!isNumber)
            return failUnknown(task, invoices, option, word);
        InvoiceSelection selection;
        selection.numbers.append({number, number});
        if (!query->fetchInvoiceList(selection, false))
            return task.context().session.failQuery();
        QVector<Candidate> fitting;
        Candidate candidate;
        while (query->next()) {
            Invoice invoice;
            int customerNumber = 0;
            query->invoiceListRow(&invoice, &customerNumber, &candidate.name, false);
            candidate.handle = idHandle(invoice.id);
            fitting.append(candidate);
            id = invoice.id;
        }
        if (query->hasReadError())
            return task.context().session.failQuery();
        if (fitting.isEmpty())
            return failUnknown(task, invoices, option, word);
        if (fitting.size() > 1)
            return failAmbiguous(task, invoices, option, word, fitting);
    }
    QVector<Invoice> found;
    return readAll<Invoice>(task, query->fetchInvoiceDetails(id), &Query::invoiceDetails, found) &&
           only(task, invoices, option, word, found, record);
}

bool References::payment(Task &task, const QString &option, const QString &word, Payment &record)
{
    int id = 0;
    const IdWord byId =
        idOf(task, payments, option, word, task.context().lastSaved.payment, &Query::newestPaymentId, id);
    if (byId == IdWord::wrong)
        return false;
    if (byId == IdWord::none) {
        bool isNumber = false;
        id = Integer::parse(word, isNumber);
        if (!isNumber)
            return failUnknown(task, payments, option, word);
    }
    QVector<Payment> found;
    return readAll<Payment>(task, task.context().session.query()->fetchPayment(id), &Query::payment, found) &&
           only(task, payments, option, word, found, record);
}

bool References::row(Task &task, const QString &option, const QString &word, int invoiceId, InvoiceItem &record)
{
    QVector<InvoiceItem> items;
    if (!readAll<InvoiceItem>(task, task.context().session.query()->fetchItemsOf({invoiceId}), &Query::invoiceItem,
                              items))
        return false;
    const bool byId = word.startsWith(QLatin1String("id:"));
    bool isNumber = false;
    const int wanted = Integer::parse(byId ? word.mid(3) : word, isNumber);
    for (int i = 0; i < items.size(); ++i) {
        const bool isIt = word == QLatin1String("@last") ? i == items.size() - 1
                                                         : isNumber && (byId ? items.at(i).id : i + 1) == wanted;
        if (isIt) {
            record = items.at(i);
            return true;
        }
    }
    return failUnknown(task, rows, option, word);
}

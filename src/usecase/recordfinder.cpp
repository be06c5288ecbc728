#include "recordfinder.h"

#include "bankaccount.h"
#include "customer.h"
#include "databasesession.h"
#include "invoice.h"
#include "invoicecriteria.h"
#include "invoiceitem.h"
#include "payment.h"
#include "product.h"
#include "query.h"
#include "usecaselistener.h"

#include <algorithm>

template <class Record, class Matches>
bool RecordFinder::findFirst(const QList<Record *> &list, Matches matches, Record *record, Failure::Code unknown,
                             int searched)
{
    const auto it = std::find_if(list.begin(), list.end(), matches);
    if (it == list.end())
        return m_listener.fail(unknown, {QString::number(searched)});
    *record = **it;
    return true;
}

template <class Record, class Matches>
bool RecordFinder::findByText(const QList<Record *> &list, const QString &text, QString Record::*field,
                              Matches contains, Record *record, const TextFailures &failures)
{
    const Record *exact = nullptr;
    int exactCount = 0;
    for (const Record *candidate : list) {
        if (candidate->*field == text) {
            exact = candidate;
            ++exactCount;
        }
    }
    if (exactCount == 1) { // found without making every text lower case
        *record = *exact;
        return true;
    }
    const Record *partial = nullptr;
    int partialCount = 0;
    const QString lowerCase = text.toLower();
    for (const Record *candidate : list) {
        if (candidate->*field != text && contains(*candidate, lowerCase)) {
            partial = candidate;
            ++partialCount;
        }
    }
    if (partialCount != 1)
        return m_listener.fail(partialCount == 0 ? failures.unknown : failures.ambiguous, {text});
    *record = *partial;
    return true;
}

template <class Record, class Read>
bool RecordFinder::readOne(bool fetched, Read read, Record *record, Failure::Code unknown, int searched)
{
    Query *query = m_session.query();
    if (!fetched)
        return m_session.failQuery();
    const bool found = query->next();
    if (found) {
        *record = Record();
        (query->*read)(record);
    }
    const bool hasFailed = !found && query->hasReadError();
    if (hasFailed)
        return m_session.failQuery();
    query->finish();
    return found || m_listener.fail(unknown, {QString::number(searched)});
}

bool RecordFinder::findBankAccountById(int id, BankAccount *account)
{
    return m_session.fetch(CachedList::bankAccounts) &&
           findFirst(
               m_session.registry().bankAccounts(), [id](const BankAccount *a) { return a->id == id; }, account,
               Failure::bankAccountIdUnknown, id);
}

bool RecordFinder::findBankAccountByName(const QString &name, BankAccount *account)
{
    const auto contains = [](const BankAccount &a, const QString &text) {
        return a.name.toLower().contains(text) || a.shortName.toLower().contains(text);
    };
    return m_session.fetch(CachedList::bankAccounts) &&
           findByText(m_session.registry().bankAccounts(), name, &BankAccount::name, contains, account,
                      {Failure::bankAccountNameUnknown, Failure::bankAccountNameAmbiguous});
}

/** Reads the first customer of a fetch that is not removed. */
bool RecordFinder::readCustomer(bool fetched, Customer *customer, Failure::Code unknown, int searched)
{
    Query *query = m_session.query();
    if (!fetched)
        return m_session.failQuery();
    bool found = false;
    while (!found && query->next()) {
        Customer candidate;
        query->customer(&candidate);
        found = !candidate.deleted;
        if (found)
            *customer = candidate;
    }
    const bool failed = !found && query->hasReadError();
    if (failed)
        return m_session.failQuery();
    query->finish();
    return found || m_listener.fail(unknown, {QString::number(searched)});
}

// Where the list is not read yet, the database is asked for the one: a list grows, an index does not care.

bool RecordFinder::findCustomerById(int id, Customer *customer)
{
    if (!m_session.isFetched(CachedList::customers))
        return readCustomer(m_session.query()->fetchCustomer(id), customer, Failure::customerIdUnknown, id);
    return findFirst(
        m_session.registry().customers(), [id](const Customer *c) { return c->id == id; }, customer,
        Failure::customerIdUnknown, id);
}

bool RecordFinder::findCustomerByNumber(int number, Customer *customer)
{
    if (!m_session.isFetched(CachedList::customers))
        return readCustomer(m_session.query()->fetchCustomersByNumber(number), customer, Failure::customerNumberUnknown,
                            number);
    return findFirst(
        m_session.registry().customers(), [number](const Customer *c) { return c->number == number; }, customer,
        Failure::customerNumberUnknown, number);
}

bool RecordFinder::findCustomerByName(const QString &name, Customer *customer)
{
    const auto contains = [](const Customer &c, const QString &text) { return c.name.toLower().contains(text); };
    return m_session.fetch(CachedList::customers) &&
           findByText(m_session.registry().customers(), name, &Customer::name, contains, customer,
                      {Failure::customerNameUnknown, Failure::customerNameAmbiguous});
}

bool RecordFinder::findProductById(int id, Product *product)
{
    return m_session.fetch(CachedList::products) &&
           findFirst(
               m_session.registry().products(), [id](const Product *p) { return p->id == id; }, product,
               Failure::productIdUnknown, id);
}

bool RecordFinder::findProductByNumber(const QString &number, Product *product)
{
    const auto contains = [](const Product &p, const QString &text) { return p.number.toLower().contains(text); };
    return m_session.fetch(CachedList::products) &&
           findByText(m_session.registry().products(), number, &Product::number, contains, product,
                      {Failure::productNumberUnknown, Failure::productNumberAmbiguous});
}

bool RecordFinder::findProductByName(const QString &name, Product *product)
{
    const auto contains = [](const Product &p, const QString &text) { return p.name.toLower().contains(text); };
    return m_session.fetch(CachedList::products) &&
           findByText(m_session.registry().products(), name, &Product::name, contains, product,
                      {Failure::productNameUnknown, Failure::productNameAmbiguous});
}

bool RecordFinder::findInvoiceById(int id, Invoice *invoice)
{
    return readOne(m_session.query()->fetchInvoiceDetails(id), &Query::invoiceDetails, invoice,
                   Failure::invoiceIdUnknown, id);
}

bool RecordFinder::findInvoiceByNumber(int number, Invoice *invoice)
{
    if (number < 0) // no invoice has such a number, and a search would take it for "any"
        return m_listener.fail(Failure::invoiceNumberUnknown, {QString::number(number)});
    InvoiceCriteria criteria;
    criteria.number = number;
    return readOne(m_session.query()->fetchInvoiceDetails(&criteria), &Query::invoiceDetails, invoice,
                   Failure::invoiceNumberUnknown, number);
}

bool RecordFinder::findInvoiceItemById(int id, InvoiceItem *item)
{
    return readOne(m_session.query()->fetchInvoiceItem(id), &Query::invoiceItem, item, Failure::invoiceItemIdUnknown,
                   id);
}

bool RecordFinder::findPaymentById(int id, Payment *payment)
{
    return readOne(m_session.query()->fetchPayment(id), &Query::payment, payment, Failure::paymentIdUnknown, id);
}

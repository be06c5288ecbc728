#include "registry.h"

#include "bankaccount.h"
#include "customer.h"
#include "printscript.h"
#include "product.h"
#include "query.h"
#include "settings.h"
#include "settingsfile.h"

#include <QSettings>

#include <algorithm>

namespace {

template <class Record> Record *lookUp(const QHash<int, Record *> &records, int id, bool &found)
{
    Record *record = id < 0 ? nullptr : records.value(id);
    found = record != nullptr;
    return record;
}

template <class List, class Matches> auto firstMatch(const List &list, Matches matches, bool &found)
{
    const auto it = std::find_if(list.begin(), list.end(), matches);
    found = it != list.end();
    return found ? *it : nullptr;
}

template <class List, class Matches> int indexOfMatch(const List &list, Matches matches)
{
    const auto it = std::find_if(list.begin(), list.end(), matches);
    return it == list.end() ? -1 : static_cast<int>(it - list.begin());
}

/** Reads all rows into new records. @return false, with nothing left, when the reading fails on the way */
template <class Record> bool readAll(Query &query, void (Query::*read)(Record *) const, QList<Record *> &records)
{
    const bool isWhole = query.readAll([&] {
        records.append(new Record);
        (query.*read)(records.last());
    });
    if (isWhole)
        return true;
    qDeleteAll(records);
    records.clear();
    return false;
}

/** Puts a record into a list ordered by a key, and by id among equal keys as the database does. */
template <class Record, class Key> void insertOrdered(QList<Record *> &list, Record *record, Key key)
{
    const auto before = [key](const Record *a, const Record *b) {
        return key(a) < key(b) || (key(a) == key(b) && a->id < b->id);
    };
    list.insert(std::upper_bound(list.begin(), list.end(), record, before), record);
}

template <class Record, class Key>
void store(QList<Record *> &list, QHash<int, Record *> &byId, const Record &record, bool listed, Key key)
{
    Record *&known = byId[record.id];
    if (known)
        list.removeOne(known);
    else
        known = new Record;
    *known = record;
    if (listed)
        insertOrdered(list, known, key);
}

} // namespace

Registry::Registry(QObject *parent) : QObject(parent), m_settings(std::make_unique<Settings>()) {}

Registry::~Registry() { setConnected(false); }

void Registry::loadSettings(const QString &fileName) { m_appSettings = SettingsFile::open(fileName); }

void Registry::setConnected(bool connected)
{
    m_connected = connected;
    if (connected)
        return;
    deleteCustomers();
    deleteProducts();
    deleteBankAccounts();
    deletePrintScripts();
}

void Registry::deleteCustomers()
{
    qDeleteAll(m_customersById);
    m_customersById.clear();
    m_customers.clear();
}

void Registry::deleteProducts()
{
    qDeleteAll(m_products);
    m_productsById.clear();
    m_products.clear();
}

void Registry::deleteBankAccounts()
{
    qDeleteAll(m_bankAccountsById);
    m_bankAccountsById.clear();
    m_bankAccounts.clear();
}

void Registry::deletePrintScripts()
{
    qDeleteAll(m_printScripts);
    m_printScripts.clear();
}

bool Registry::fetchSettings(Query *query)
{
    return query->fetchSettings() && query->readAll([&] { query->settings(m_settings.get()); });
}

bool Registry::fetchCustomers(Query *query)
{
    QList<Customer *> customers;
    if (!query->fetchCustomers() || !readAll(*query, &Query::customer, customers))
        return false;
    deleteCustomers();
    for (Customer *customer : qAsConst(customers)) {
        m_customersById.insert(customer->id, customer);
        if (!customer->deleted)
            m_customers.append(customer);
    }
    emit customersFetched();
    return true;
}

bool Registry::fetchProducts(Query *query)
{
    QList<Product *> products;
    if (!query->fetchProducts() || !readAll(*query, &Query::product, products))
        return false;
    deleteProducts();
    m_products = products;
    for (Product *product : qAsConst(products))
        m_productsById.insert(product->id, product);
    emit productsFetched();
    return true;
}

bool Registry::fetchBankAccounts(Query *query)
{
    QList<BankAccount *> accounts;
    if (!query->fetchBankAccounts() || !readAll(*query, &Query::bankAccount, accounts))
        return false;
    deleteBankAccounts();
    for (BankAccount *account : qAsConst(accounts)) {
        m_bankAccountsById.insert(account->id, account);
        if (!account->deleted)
            m_bankAccounts.append(account);
    }
    emit bankAccountsFetched();
    return true;
}

bool Registry::fetchPrintScripts(Query *query)
{
    QList<PrintScript *> scripts;
    if (!query->fetchPrintScriptSummaries() || !readAll(*query, &Query::printScriptSummary, scripts))
        return false;
    deletePrintScripts();
    m_printScripts = scripts;
    return true;
}

void Registry::storeCustomer(const Customer &customer)
{
    Customer stored = customer;
    stored.propertiesFromString(customer.propertiesToString()); // as the database gives it back
    store(m_customers, m_customersById, stored, !stored.deleted, [](const Customer *c) { return c->number; });
}

void Registry::storeProduct(const Product &product)
{
    // By bytes, as SQLite compares.
    store(m_products, m_productsById, product, true, [](const Product *p) { return p->number.toUtf8(); });
}

void Registry::storeBankAccount(const BankAccount &account)
{
    store(m_bankAccounts, m_bankAccountsById, account, !account.deleted,
          [](const BankAccount *a) { return a->rowNumber; });
}

void Registry::forgetProduct(int id)
{
    if (Product *product = m_productsById.take(id)) {
        m_products.removeOne(product);
        delete product;
    }
}

Customer *Registry::customerById(int id, bool &found) const { return lookUp(m_customersById, id, found); }

Customer *Registry::customerByNumber(int number, bool &found) const
{
    return firstMatch(
        m_customers, [number](const Customer *c) { return c->number == number; }, found);
}

Product *Registry::productById(int id, bool &found) const { return lookUp(m_productsById, id, found); }

Product *Registry::productByNumber(const QString &number, bool &found) const
{
    return firstMatch(
        m_products, [&number](const Product *p) { return p->number == number; }, found);
}

BankAccount *Registry::bankAccountById(int id, bool &found) const { return lookUp(m_bankAccountsById, id, found); }

int Registry::bankAccountIndexById(int id) const
{
    return indexOfMatch(m_bankAccounts, [id](const BankAccount *a) { return a->id == id; });
}

int Registry::printScriptIndexById(int id) const
{
    return indexOfMatch(m_printScripts, [id](const PrintScript *s) { return s->id == id; });
}

int Registry::printScriptIndexByType(const QString &type) const
{
    return indexOfMatch(m_printScripts, [&type](const PrintScript *s) { return s->type == type; });
}

QList<int> Registry::builtInPrintScriptIds() { return {-1}; }

QStringList Registry::builtInPrintScriptNames() { return {tr("Oletuslaskupohja")}; }

QStringList Registry::builtInPrintScriptFilenames() { return {tr(":/scripts/invoice.qs")}; }

QStringList Registry::availableLanguages() { return {tr("fi - suomi"), tr("sv - ruotsi"), tr("en - englanti")}; }

QString Registry::parseLanguageCode(const QString &language)
{
    const int dash = language.indexOf(QLatin1Char('-'));
    return dash < 0 ? language : language.left(dash).trimmed();
}

#ifndef PRINTDATABASE_H
#define PRINTDATABASE_H

#include "bankaccount.h"
#include "cursor.h"
#include "database.h"
#include "customer.h"
#include "invoice.h"
#include "invoiceitem.h"
#include "payment.h"
#include "printmodel.h"
#include "printscript.h"
#include "product.h"
#include "query.h"
#include "registry.h"
#include "settings.h"
#include "testdatabase.h"

#include <QSettings>
#include <QtTest>

/** A database with a registry, for tests that fill it record by record. A record that cannot be saved ends the test. */
class PrintDatabase {
public:
    PrintDatabase()
    {
        check(m_database.open());
        const char *fast = "PRAGMA synchronous = OFF"; // nobody pulls the plug here
        check(m_database.database()->cursor()->execute(fast, {}));
        m_database.run(fast);
        m_query = m_database.query();
        m_registry.setDatabase(m_database.database());
        m_registry.setConnected(true);
        m_registry.loadSettings(filePath("app.ini"));
    }

    /** Empties everything that the functions below fill. */
    void clear()
    {
        m_database.clear();
        m_registry.settings()->clear();
        m_registry.appSettings()->clear();
        fetch();
    }

    /** Fetches all lists but the settings, which tests set in the registry. */
    void fetch()
    {
        check(m_registry.fetchCustomers(m_query.get()) && m_registry.fetchProducts(m_query.get()) &&
              m_registry.fetchBankAccounts(m_query.get()) && m_registry.fetchPrintScripts(m_query.get()));
    }

    int add(Customer record) { return check(m_query->saveCustomer(&record)), record.id; }
    int add(Product record) { return check(m_query->saveProduct(&record)), record.id; }
    int add(BankAccount record) { return check(m_query->saveBankAccount(&record)), record.id; }
    int add(Invoice record) { return check(m_query->saveInvoice(&record)), record.id; }
    int add(InvoiceItem record) { return check(m_query->saveInvoiceItem(&record)), record.id; }
    int add(Payment record) { return check(m_query->savePayment(&record)), record.id; }
    int add(PrintScript record) { return check(m_query->savePrintScript(&record)), record.id; }

    int addCustomer(int number, const QString &name)
    {
        Customer customer;
        customer.number = number;
        customer.name = name;
        return add(customer);
    }

    /** @param amount  unit price with VAT, in cents; one piece */
    void addRow(int invoiceId, int amount, int vatRate, int rowNumber = 0)
    {
        InvoiceItem item;
        item.invoiceId = invoiceId;
        item.quantity = 10000;
        item.amount = amount * 100LL;
        item.vatRate = vatRate;
        item.rowNumber = rowNumber;
        add(item);
    }

    Registry *registry() { return &m_registry; }
    Settings &settings() { return *m_registry.settings(); }
    QString filePath(const QString &name) const { return m_database.folder() + QLatin1Char('/') + name; }
    TestDatabase &database() { return m_database; }

private:
    static void check(bool ok)
    {
        if (!ok)
            qFatal("the test database failed");
    }

    TestDatabase m_database{"sqlite"};
    std::unique_ptr<Query> m_query;
    Registry m_registry;
};

/** What the model's CSV file holds, line by line. */
inline QStringList csvLines(PrintModel &model, const QString &fileName, const QString &delimiter = QStringLiteral(";"))
{
    if (!model.exportToCSV(fileName, delimiter))
        return {model.lastError()};
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return {file.errorString()};
    return QString::fromUtf8(file.readAll()).split(QStringLiteral("\r\n"));
}

#endif

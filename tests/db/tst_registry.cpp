#include "bankaccount.h"
#include "customer.h"
#include "printscript.h"
#include "product.h"
#include "query.h"
#include "registry.h"
#include "settings.h"
#include "testdatabase.h"

#include <QSignalSpy>
#include <QtTest>

class RegistryTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase_data() { addBackends(); }
    void init();
    void lookUps();
    void failedFetchKeepsTheCache();
    void storedRecords();
    void settingsRow();
    void settingsFile();
    void languages();

private:
    QString customers() const;
    QString products() const;
    QString accounts() const;
    /** The lists as the fetches would have them, beside those that the stores made. */
    void compareWithDatabase(Query *query);

    TestDatabases m_databases;
    TestDatabase *m_database = nullptr;
    std::unique_ptr<Registry> m_registry;
};

template <class Count, class Text> static QString joined(Count count, Text text)
{
    QStringList texts;
    for (int i = 0; i < count; ++i)
        texts.append(text(i));
    return texts.join(QLatin1Char(' '));
}

QString RegistryTest::customers() const
{
    return joined(m_registry->customerCount(), [this](int i) { return m_registry->customer(i)->name; });
}

QString RegistryTest::products() const
{
    return joined(m_registry->productCount(), [this](int i) { return m_registry->product(i)->name; });
}

QString RegistryTest::accounts() const
{
    return joined(m_registry->bankAccountCount(), [this](int i) { return m_registry->bankAccount(i)->name; });
}

void RegistryTest::init()
{
    QFETCH_GLOBAL(QString, backend);
    m_registry = std::make_unique<Registry>();
    m_database = &m_databases.opened(backend);
    m_database->clear();
    // The ids are 1, 2, … in this order.
    m_database->run("INSERT INTO customer (number, name, deleted) VALUES (20, 'c20', false), (10, 'c10', false), "
                    "(15, 'gone', true), (20, 'second20', false)");
    m_database->run("INSERT INTO product (number, name) VALUES ('b', 'pb'), ('A1', 'pA1'), ('a', 'pa')");
    m_database->run("INSERT INTO bank_account (name, row_number, deleted) VALUES ('a2', 2, false), ('a1', 1, false), "
                    "('gone', 0, true)");
    m_database->run("INSERT INTO print_script (type, name, source_code) VALUES ('invoice', 'b', 'x'), "
                    "('invoice', 'a', 'x'), ('finvoice', 'c', 'x')");
    const auto query = m_database->query();
    QSignalSpy fetchedCustomers(m_registry.get(), &Registry::customersFetched);
    QSignalSpy fetchedProducts(m_registry.get(), &Registry::productsFetched);
    QSignalSpy fetchedAccounts(m_registry.get(), &Registry::bankAccountsFetched);
    m_registry->setConnected(true);
    QVERIFY(m_registry->fetchCustomers(query.get()) && m_registry->fetchProducts(query.get()) &&
            m_registry->fetchBankAccounts(query.get()) && m_registry->fetchPrintScripts(query.get()));
    QCOMPARE(fetchedCustomers.size() + fetchedProducts.size() + fetchedAccounts.size(), 3);
}

void RegistryTest::lookUps()
{
    bool found = false;
    QCOMPARE(customers(), QStringLiteral("c10 c20 second20"));
    QCOMPARE(m_registry->customerById(3, found)->name, QStringLiteral("gone")); // for old invoices
    QVERIFY(found && !m_registry->customerById(9, found) && !found && !m_registry->customerById(-1, found));
    QCOMPARE(m_registry->customerByNumber(20, found)->id, 1);
    QVERIFY(found && !m_registry->customerByNumber(15, found) && !found);

    QCOMPARE(products(), QStringLiteral("pA1 pa pb"));
    QCOMPARE(m_registry->productById(1, found)->name, QStringLiteral("pb"));
    QVERIFY(found && !m_registry->productById(-1, found) && !found);
    QCOMPARE(m_registry->productByNumber("A1", found)->id, 2);
    QVERIFY(found && !m_registry->productByNumber("a1", found) && !found);

    QCOMPARE(accounts(), QStringLiteral("a1 a2"));
    QCOMPARE(m_registry->bankAccountById(3, found)->name, QStringLiteral("gone"));
    QVERIFY(found && !m_registry->bankAccountById(-1, found) && !found);
    QCOMPARE(m_registry->bankAccountIndexById(1), 1);
    QCOMPARE(m_registry->bankAccountIndexById(3), -1);

    QCOMPARE(m_registry->printScriptCount(), 3);
    QCOMPARE(m_registry->printScript(0)->name, QStringLiteral("c"));
    QCOMPARE(m_registry->printScript(0)->sourceCode, QString());
    QCOMPARE(m_registry->printScriptIndexById(1), 2);
    QCOMPARE(m_registry->printScriptIndexById(9), -1);
    QCOMPARE(m_registry->printScriptIndexByType("invoice"), 1);
    QCOMPARE(m_registry->printScriptIndexByType("Invoice"), -1);

    m_registry->setConnected(false);
    QCOMPARE(m_registry->customerCount() + m_registry->productCount() + m_registry->bankAccountCount() +
                 m_registry->printScriptCount(),
             0);
    QVERIFY(!m_registry->customerById(3, found) && !m_registry->bankAccountById(3, found) &&
            !m_registry->productById(1, found));
}

void RegistryTest::failedFetchKeepsTheCache()
{
    const auto query = m_database->query();
    m_database->run("ALTER TABLE customer RENAME TO gone");
    const bool fetched = m_registry->fetchCustomers(query.get());
    m_database->run("ALTER TABLE gone RENAME TO customer");
    QVERIFY(!fetched && !query->lastError().isEmpty());
    QCOMPARE(customers(), QStringLiteral("c10 c20 second20"));
    m_database->run("DELETE FROM customer WHERE id <> 4");
    QVERIFY(m_registry->fetchCustomers(query.get()));
    QCOMPARE(customers(), QStringLiteral("second20"));
}

void RegistryTest::compareWithDatabase(Query *query)
{
    const QStringList stored{customers(), products(), accounts()};
    QVERIFY(m_registry->fetchCustomers(query) && m_registry->fetchProducts(query) &&
            m_registry->fetchBankAccounts(query));
    QCOMPARE(stored, QStringList({customers(), products(), accounts()}));
}

void RegistryTest::storedRecords()
{
    const auto query = m_database->query();
    const auto saveCustomer = [&](int id, int number, const char *name, bool deleted) {
        Customer c;
        c.id = id;
        c.number = number;
        c.name = QLatin1String(name);
        c.deleted = deleted;
        QVERIFY(query->saveCustomer(&c));
        m_registry->storeCustomer(c);
    };
    const auto saveProduct = [&](int id, const char *number) {
        Product p;
        p.id = id;
        p.number = p.name = QLatin1String(number);
        QVERIFY(query->saveProduct(&p));
        m_registry->storeProduct(p);
    };
    const auto saveAccount = [&](int id, int rowNumber, bool deleted) {
        BankAccount a;
        a.id = id;
        a.name = QStringLiteral("r%1").arg(rowNumber);
        a.rowNumber = rowNumber;
        a.deleted = deleted;
        QVERIFY(query->saveBankAccount(&a));
        m_registry->storeBankAccount(a);
    };
    saveCustomer(-1, 12, "new12", false); // between two
    saveCustomer(2, 30, "moved30", false);
    saveCustomer(1, 20, "removed", true);
    saveCustomer(3, 1, "back1", false);
    saveProduct(-1, "Z");
    saveProduct(2, "c");
    saveAccount(-1, 3, false);
    saveAccount(2, 9, false);
    saveAccount(1, 2, true);
    QVERIFY(query->deleteProduct(3));
    m_registry->forgetProduct(3);
    m_registry->forgetProduct(99);
    QCOMPARE(customers(), QStringLiteral("back1 new12 second20 moved30"));
    QCOMPARE(products(), QStringLiteral("Z pb c"));
    QCOMPARE(accounts(), QStringLiteral("r3 r9"));
    bool found = false;
    QCOMPARE(m_registry->customerById(1, found)->name, QStringLiteral("removed"));
    compareWithDatabase(query.get());
}

void RegistryTest::settingsRow()
{
    const auto query = m_database->query();
    m_registry->settings()->sellerName = QStringLiteral("kept");
    QVERIFY(m_registry->fetchSettings(query.get())); // no row: the record stays
    QCOMPARE(m_registry->settings()->sellerName, QStringLiteral("kept"));
    QVERIFY(query->addInitialData("Myyjä"));
    QVERIFY(m_registry->fetchSettings(query.get()));
    QCOMPARE(m_registry->settings()->sellerName, QStringLiteral("Myyjä"));
    QCOMPARE(m_registry->settings()->property("settings/interestOnArrears").toInt(), 800);
}

void RegistryTest::settingsFile()
{
    QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("new/settings.ini"));
    m_registry->loadSettings(name);
    QVERIFY(QFileInfo(folder.filePath(QStringLiteral("new"))).isDir());
    m_registry->appSettings()->setValue(QStringLiteral("databases/lastUsed"), 3);
    m_registry->loadSettings(name);
    QCOMPARE(m_registry->appSettings()->value(QStringLiteral("databases/lastUsed")).toInt(), 3);
    // Written by hand in UTF-8, and as the library writes it.
    for (const char *content : {"[a]\nname=Sälli\n", "[a]\nname=S\\xe4lli\n"}) {
        QFile file(folder.filePath(QStringLiteral("hand.ini")));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) > 0);
        file.close();
        m_registry->loadSettings(file.fileName());
        QCOMPARE(m_registry->appSettings()->value(QStringLiteral("a/name")).toString(), QStringLiteral("Sälli"));
    }
}

void RegistryTest::languages()
{
    QCOMPARE(Registry::availableLanguages(), QStringList({"fi - suomi", "sv - ruotsi", "en - englanti"}));
    const struct {
        const char *text, *code;
    } rows[] = {{"fi", "fi"}, {" en - englanti", "en"}, {"sv - a - b", "sv"}, {" fi", " fi"}, {"-", ""}, {"", ""}};
    for (const auto &row : rows)
        QCOMPARE(Registry::parseLanguageCode(row.text), QString::fromLatin1(row.code));
    QCOMPARE(Registry::builtInPrintScriptIds(), QList<int>{-1});
    QCOMPARE(Registry::builtInPrintScriptNames(), QStringList("Oletuslaskupohja"));
    for (const QString &script : Registry::builtInPrintScriptFilenames())
        QVERIFY(script.startsWith(QLatin1String(":/scripts/")));
}

QTEST_GUILESS_MAIN(RegistryTest)
#include "tst_registry.moc"

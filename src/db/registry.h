#ifndef REGISTRY_H
#define REGISTRY_H

#include <QHash>
#include <QList>
#include <QObject>
#include <QStringList>

#include <memory>

class BankAccount;
class Customer;
class Database;
class PrintScript;
class Product;
class QSettings;
class Query;
class Settings;

/**
 * What the whole run shares: the settings file, the open database, the seller settings and the cached lists. Records
 * belong to the registry and live until their list is fetched again or the connection is dropped.
 *
 * The lists hold customers and bank accounts that are not removed; by id the removed ones are found too, so that old
 * invoices and payments still show them.
 */
class Registry : public QObject {
    Q_OBJECT
public:
    explicit Registry(QObject *parent = nullptr); ///< settings are those of an empty company until they are fetched
    ~Registry() override;

    /** @param fileName  a settings file, or empty for the user's own; its directory is created when missing */
    void loadSettings(const QString &fileName);
    QSettings *appSettings() const { return m_appSettings.get(); } ///< null before loadSettings()

    /** Not owned; null while none is open. Closing it does not empty the caches, setConnected() does. */
    Database *database() const { return m_database; }
    void setDatabase(Database *database) { m_database = database; }
    bool isConnected() const { return m_connected; } ///< as it was set: no server is asked
    /** False empties all cached lists. */
    void setConnected(bool connected);

    /** Never null; the same object for the whole run, its content replaced by fetchSettings(). */
    Settings *settings() const { return m_settings.get(); }
    QString username() const { return QString(); } ///< always empty: databases know no users of this program

    // Each replaces a cache by what the database holds now; on failure the cache is left as it was.
    /** Also when the database has no row of settings: the object stays as it is. */
    [[nodiscard]] bool fetchSettings(Query *query);
    [[nodiscard]] bool fetchCustomers(Query *query);    ///< by number, removed ones for lookups by id only
    [[nodiscard]] bool fetchProducts(Query *query);     ///< by number
    [[nodiscard]] bool fetchBankAccounts(Query *query); ///< in the seller's order, removed ones for lookups by id only
    [[nodiscard]] bool fetchPrintScripts(Query *query); ///< without their sources

    // Each puts a saved record into its fetched list in place of the earlier version, where a fetch would put it.
    void storeCustomer(const Customer &customer);
    void storeProduct(const Product &product); ///< ordered by the bytes of the number in UTF-8
    void storeBankAccount(const BankAccount &account);
    void forgetProduct(int id); ///< pointers to it are gone

    // A negative id finds nothing; `found` is set to whether the result is not null.
    const QList<Customer *> &customers() const { return m_customers; }
    int customerCount() const { return m_customers.size(); }
    Customer *customer(int index) const { return m_customers.at(index); } ///< the index is not checked
    Customer *customerById(int id, bool &found) const;
    Customer *customerByNumber(int number, bool &found) const; ///< the first of several; never a removed one

    /** By number; a product that is removed is gone. */
    const QList<Product *> &products() const { return m_products; }
    int productCount() const { return m_products.size(); }
    Product *product(int index) const { return m_products.at(index); } ///< the index is not checked
    Product *productById(int id, bool &found) const;
    /** All of the text, letter case counts; the first of several. */
    Product *productByNumber(const QString &number, bool &found) const;

    /** In the seller's order, removed ones only by id. */
    const QList<BankAccount *> &bankAccounts() const { return m_bankAccounts; }
    int bankAccountCount() const { return m_bankAccounts.size(); }
    BankAccount *bankAccount(int index) const { return m_bankAccounts.at(index); } ///< the index is not checked
    BankAccount *bankAccountById(int id, bool &found) const;
    int bankAccountIndexById(int id) const; ///< -1 when it is not in the list

    /** By type and name, without their sources, see PrintScript. */
    int printScriptCount() const { return m_printScripts.size(); }
    PrintScript *printScript(int index) const { return m_printScripts.at(index); } ///< the index is not checked
    /** -1 when there is none; of several of a type the first by name. */
    int printScriptIndexById(int id) const;
    int printScriptIndexByType(const QString &type) const;

    // The invoice scripts that are part of the program, as parallel lists.
    static QList<int> builtInPrintScriptIds();
    static QStringList builtInPrintScriptNames();
    static QStringList builtInPrintScriptFilenames(); ///< resources

    static QStringList availableLanguages(); ///< "code - name", the name translated
    /** `sv - ruotsi` gives `sv`. */
    static QString parseLanguageCode(const QString &language);

signals:
    /** After a whole list was replaced; earlier pointers into it are gone. */
    void customersFetched();
    void productsFetched();
    void bankAccountsFetched();

private:
    /** Empties the cache; the connection stays. */
    void deleteCustomers();
    void deleteProducts();
    void deleteBankAccounts();
    void deletePrintScripts();

    std::unique_ptr<QSettings> m_appSettings; ///< null before loadSettings()
    std::unique_ptr<Settings> m_settings;     ///< never null
    Database *m_database = nullptr;           ///< not owned
    bool m_connected = false;                 ///< see setConnected()

    QList<Customer *> m_customers;                ///< not owned, see m_customersById
    QHash<int, Customer *> m_customersById;       ///< owns; holds the removed ones too
    QList<Product *> m_products;                  ///< owns
    QHash<int, Product *> m_productsById;         ///< not owned
    QList<BankAccount *> m_bankAccounts;          ///< not owned, see m_bankAccountsById
    QHash<int, BankAccount *> m_bankAccountsById; ///< owns; holds the removed ones too
    QList<PrintScript *> m_printScripts;          ///< owns
};

#endif

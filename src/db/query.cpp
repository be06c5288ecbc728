#include "query.h"

#include "bankaccount.h"
#include "customer.h"
#include "invoice.h"
#include "invoiceitem.h"
#include "payment.h"
#include "printscript.h"
#include "product.h"
#include "settings.h"
#include "tablecolumns.h"

namespace {

/** "a, b" as "?, ?" */
QString marks(const char *columns)
{
    const int count = QString::fromLatin1(columns).count(QLatin1Char(',')) + 1;
    QString text = QStringLiteral("?, ").repeated(count);
    text.chop(2);
    return text;
}

/** "a, b" as "a=?, b=?" */
QString assignments(const char *columns)
{
    return QString::fromLatin1(columns).replace(QLatin1String(", "), QLatin1String("=?, ")) + QLatin1String("=?");
}

/** The columns of every fetch, joined once. */
template <class Record> const QString &allColumns()
{
    static const QString columns = selectedColumns<Record>();
    return columns;
}

template <class Record> QString updateStatement()
{
    return QLatin1String("UPDATE ") + QLatin1String(TableColumns<Record>::table) + QLatin1String(" SET ") +
           assignments(TableColumns<Record>::columns);
}

} // namespace

Query::Query(std::unique_ptr<Cursor> cursor, QObject *parent) : QObject(parent), m_cursor(std::move(cursor)) {}

QString Query::lastError() const { return m_cursor->lastError(); }

bool Query::hasReadError() const { return m_cursor->hasError(); }

bool Query::execute(const QString &sql, const QVariantList &values) { return m_cursor->execute(sql, values); }

bool Query::isConnected()
{
    const bool connected = execute(QStringLiteral("SELECT 1"));
    finish();
    return connected;
}

int Query::firstInteger(const QString &sql, const QVariantList &values)
{
    if (!execute(sql, values))
        return m_cursor->wasPrepared() ? -1 : 0;
    const int value = next() ? m_cursor->integer(0) : 0;
    finish();
    return value;
}

template <class Record> bool Query::fetchAll(const char *order)
{
    return execute(QStringLiteral("SELECT %1 FROM %2%3")
                       .arg(allColumns<Record>(), QLatin1String(TableColumns<Record>::table), QLatin1String(order)));
}

template <class Record> bool Query::fetchWhere(const char *condition, int value, const char *rest)
{
    return execute(QStringLiteral("SELECT %1 FROM %2 WHERE %3 = ?%4")
                       .arg(allColumns<Record>(), QLatin1String(TableColumns<Record>::table), QLatin1String(condition),
                            QLatin1String(rest)),
                   {value});
}

bool Query::fetchBankAccounts() { return fetchAll<BankAccount>(" ORDER BY row_number"); }

bool Query::fetchCustomers() { return fetchAll<Customer>(" ORDER BY number"); }

bool Query::fetchCustomer(int id) { return fetchWhere<Customer>("id", id); }

bool Query::fetchCustomersByNumber(int number) { return fetchWhere<Customer>("number", number, " ORDER BY id"); }

bool Query::fetchProducts() { return fetchAll<Product>(" ORDER BY number"); }

bool Query::fetchInvoiceDetails(int id) { return fetchWhere<Invoice>("id", id, " LIMIT 1"); }

bool Query::fetchInvoiceItems(int invoiceId)
{
    return fetchWhere<InvoiceItem>("invoice_id", invoiceId, " ORDER BY row_number");
}

bool Query::fetchInvoiceItem(int id) { return fetchWhere<InvoiceItem>("id", id); }

bool Query::fetchPayments(int invoiceId)
{
    return fetchWhere<Payment>("invoice_id", invoiceId, " ORDER BY date, bank_account_id");
}

bool Query::fetchPayment(int id) { return fetchWhere<Payment>("id", id); }

bool Query::fetchPrintScriptSummaries()
{
    return execute(QStringLiteral("SELECT id, type, name FROM print_script ORDER BY type, name"));
}

bool Query::fetchPrintScriptDetails() { return fetchAll<PrintScript>(" ORDER BY type, name"); }

bool Query::fetchPrintScriptDetails(int id) { return fetchWhere<PrintScript>("id", id, " LIMIT 1"); }

bool Query::fetchSettings()
{
    return execute(
        QStringLiteral("SELECT %1 FROM settings LIMIT 1").arg(QLatin1String(TableColumns<Settings>::columns)));
}

void Query::bankAccount(BankAccount *record) const { TableColumns<BankAccount>::read(*m_cursor, 0, *record); }
void Query::customer(Customer *record) const { TableColumns<Customer>::read(*m_cursor, 0, *record); }
void Query::product(Product *record) const { TableColumns<Product>::read(*m_cursor, 0, *record); }
void Query::invoiceDetails(Invoice *record) const { TableColumns<Invoice>::read(*m_cursor, 0, *record); }
void Query::invoiceItem(InvoiceItem *record) const { TableColumns<InvoiceItem>::read(*m_cursor, 0, *record); }
void Query::payment(Payment *record) const { TableColumns<Payment>::read(*m_cursor, 0, *record); }
void Query::printScriptDetails(PrintScript *record) const { TableColumns<PrintScript>::read(*m_cursor, 0, *record); }
void Query::settings(Settings *record) const { TableColumns<Settings>::read(*m_cursor, 0, *record); }

void Query::printScriptSummary(PrintScript *record) const
{
    record->id = m_cursor->integer(0);
    record->type = m_cursor->text(1);
    record->name = m_cursor->text(2);
}

template <class Record> const QString &Query::insertStatement()
{
    const char *table = TableColumns<Record>::table;
    const char *columns = TableColumns<Record>::columns;
    QString &sql = m_insertStatements[table];
    if (sql.isEmpty())
        sql = QStringLiteral("INSERT INTO %1 (id, %2) VALUES (%3, %4)")
                  .arg(QLatin1String(table), QLatin1String(columns), newIdExpression(table), marks(columns));
    return sql;
}

template <class Record> bool Query::insert(Record *record)
{
    if (!execute(insertStatement<Record>(), TableColumns<Record>::values(*record)))
        return false;
    const int id = insertedId(TableColumns<Record>::table);
    if (id <= 0)
        return false;
    record->id = id;
    return true;
}

template <class Record> bool Query::update(Record *record)
{
    return execute(updateStatement<Record>() + QLatin1String(" WHERE id = ?"), TableColumns<Record>::values(*record)
                                                                                   << record->id);
}

template <class Record> bool Query::save(Record *record) { return record->id < 0 ? insert(record) : update(record); }

QString Query::newIdExpression(const char *) const { return QStringLiteral("NULL"); }

int Query::insertedId(const char *) { return m_cursor->insertedId(); }

bool Query::saveBankAccount(BankAccount *record) { return save(record); }
bool Query::saveCustomer(Customer *record) { return save(record); }
bool Query::saveInvoice(Invoice *record) { return save(record); }
bool Query::saveInvoiceItem(InvoiceItem *record) { return save(record); }
bool Query::savePayment(Payment *record) { return save(record); }
bool Query::savePrintScript(PrintScript *record) { return save(record); }
bool Query::saveProduct(Product *record) { return save(record); }

bool Query::saveSettings(Settings *record)
{
    const QVariantList values = TableColumns<Settings>::values(*record);
    if (!execute(updateStatement<Settings>(), values))
        return false;
    if (m_cursor->affectedRows() != 0)
        return true;
    const char *columns = TableColumns<Settings>::columns;
    return execute(QStringLiteral("INSERT INTO settings (version, %1) VALUES (10, %2)")
                       .arg(QLatin1String(columns), marks(columns)),
                   values);
}

bool Query::deleteProduct(int id) { return execute(QStringLiteral("DELETE FROM product WHERE id = ?"), {id}); }

bool Query::deleteBankAccount(int id)
{
    return execute(QStringLiteral("UPDATE bank_account SET deleted = ? WHERE id = ?"), {true, id});
}

bool Query::deleteCustomer(int id)
{
    return execute(QStringLiteral("UPDATE customer SET deleted = ? WHERE id = ?"), {true, id});
}

bool Query::deleteInvoice(int id) { return execute(QStringLiteral("DELETE FROM invoice WHERE id = ?"), {id}); }

bool Query::deleteInvoicesBetween(int first, int last)
{
    return execute(QStringLiteral("DELETE FROM invoice WHERE id BETWEEN ? AND ?"), {first, last});
}

bool Query::deleteInvoiceItem(int id) { return execute(QStringLiteral("DELETE FROM invoice_item WHERE id = ?"), {id}); }

bool Query::deleteInvoiceItems(int invoiceId)
{
    return execute(QStringLiteral("DELETE FROM invoice_item WHERE invoice_id = ?"), {invoiceId});
}

bool Query::deleteInvoiceItemsBetween(int first, int last)
{
    return execute(QStringLiteral("DELETE FROM invoice_item WHERE invoice_id BETWEEN ? AND ?"), {first, last});
}

bool Query::deletePayment(int id) { return execute(QStringLiteral("DELETE FROM payment WHERE id = ?"), {id}); }

bool Query::deletePayments(int invoiceId)
{
    return execute(QStringLiteral("DELETE FROM payment WHERE invoice_id = ?"), {invoiceId});
}

bool Query::deletePaymentsBetween(int first, int last)
{
    return execute(QStringLiteral("DELETE FROM payment WHERE invoice_id BETWEEN ? AND ?"), {first, last});
}

bool Query::deletePrintScript(int id) { return execute(QStringLiteral("DELETE FROM print_script WHERE id = ?"), {id}); }

bool Query::fetchInvoiceReferences()
{
    return execute(
        QStringLiteral("SELECT id, reference_number FROM invoice WHERE reference_number <> '' ORDER BY number, id"));
}

void Query::invoiceReference(Invoice *record) const
{
    record->id = m_cursor->integer(0);
    record->referenceNumber = m_cursor->text(1);
}

int Query::maxInvoiceNumber() { return firstInteger(QStringLiteral("SELECT max(number) FROM invoice")); }

int Query::maxCustomerNumber() { return firstInteger(QStringLiteral("SELECT max(number) FROM customer")); }

int Query::nextRowNumber(int invoiceId)
{
    return firstInteger(
        QStringLiteral("SELECT coalesce(max(row_number) + 1, 0) FROM invoice_item WHERE invoice_id = ?"), {invoiceId});
}

bool Query::addInitialData(const QString &sellerName)
{
    Settings settings;
    settings.sellerName = sellerName;
    settings.setProperty(QStringLiteral("settings/paymentTerms"), tr("14 päivää netto"));
    settings.setProperty(QStringLiteral("settings/periodForComplaints"), tr("8 päivää"));
    settings.setProperty(QStringLiteral("settings/interestOnArrears"), 800);
    settings.setProperty(QStringLiteral("settings/productForInterestOnArrears"), QStringLiteral("999"));
    settings.setProperty(QStringLiteral("invoiceForm/reminderText"),
                         tr("Pyydämme ystävällisesti maksamaan saatavamme. Mikäli kuitenkin olette jo suorittaneet "
                            "tämän laskun, tämä maksumuistutus on aiheeton."));
    if (!saveSettings(&settings))
        return false;
    Product interest;
    interest.number = QStringLiteral("999");
    interest.name = tr("Viivästyskorko");
    return saveProduct(&interest);
}

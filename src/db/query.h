#ifndef QUERY_H
#define QUERY_H

#include "cursor.h"
#include "invoicecriteria.h"

#include <QDate>
#include <QHash>
#include <QObject>
#include <QString>

#include <memory>

class BankAccount;
class Customer;
class Invoice;
class InvoiceItem;
class InvoiceSelection;
class Payment;
class PaymentCriteria;
class PrintScript;
class Product;
class Settings;

/**
 * Every statement of the system, on a cursor of its own. A fetch prepares and executes; the rows are then stepped
 * with next() (nextInvoice() after an invoice search) and read with the reader that belongs to the fetch.
 * Operations return false on failure, with the text in lastError(); records are then unchanged.
 *
 * A fetch whose rows are not read to the end keeps the table locked for other programs' writes: call finish().
 */
class Query : public QObject {
    Q_OBJECT
public:
    /**
     * @param cursor  on an open connection; null for one that only makes the texts of statements
     * @param parent  owns this; null leaves it to the caller
     */
    Query(std::unique_ptr<Cursor> cursor, QObject *parent);

    QString lastError() const;               ///< of the last operation; empty when it went well
    bool next() { return m_cursor->next(); } ///< false at the end, and on a failure, see hasReadError()
    /**
     * Steps through all rows of a fetch: the one loop over them.
     * @param take  called on each row
     * @return false when the reading broke on the way, with the reason in lastError(): what was taken is not all
     */
    template <class Take> [[nodiscard]] bool readAll(Take take)
    {
        while (next())
            take();
        return !hasReadError();
    }
    /** The same after an invoice search. */
    template <class Take> [[nodiscard]] bool readAllInvoices(Take take)
    {
        while (nextInvoice())
            take();
        return !hasReadError();
    }
    void finish() { m_cursor->finish(); } ///< releases what a fetch that was not read to its end holds
    /** Whether next() ended the rows because of a failure, which lastError() tells, and not at their end. */
    bool hasReadError() const;
    /** Asks the database: a server may have gone. */
    bool isConnected();

    // Lists and single records
    [[nodiscard]] bool fetchBankAccounts();                          ///< by their place, removed ones too
    [[nodiscard]] bool fetchCustomers();                             ///< by number, removed ones too
    [[nodiscard]] bool fetchCustomer(int id);                        ///< removed or not
    [[nodiscard]] bool fetchCustomersByNumber(int number);           ///< removed ones too, in the order of the list
    [[nodiscard]] bool fetchProducts();                              ///< by number
    [[nodiscard]] bool fetchProductsByNumber(const QString &number); ///< equal ones, in the order of their making
    [[nodiscard]] bool fetchInvoiceDetails(int id);                  ///< invoiceDetails() reads it
    [[nodiscard]] bool fetchInvoiceItems(int invoiceId);             ///< by their place on the invoice
    [[nodiscard]] bool fetchInvoiceItem(int id);
    [[nodiscard]] bool fetchPayments(int invoiceId); ///< by date, then account
    [[nodiscard]] bool fetchPayment(int id);
    [[nodiscard]] bool fetchPrintScriptSummaries(); ///< by type and name, for printScriptSummary(): no sources
    [[nodiscard]] bool fetchPrintScriptDetails();   ///< by type and name, with sources
    [[nodiscard]] bool fetchPrintScriptDetails(int id);
    [[nodiscard]] bool fetchSettings(); ///< one row, or none in a database that was never filled

    // Searches; null criteria are not allowed except where said.
    int fetchInvoiceCount(const InvoiceCriteria *c);                    ///< -1 on failure
    [[nodiscard]] bool fetchInvoiceSummaries(const InvoiceCriteria *c); ///< by number; read with invoiceSummary()
    [[nodiscard]] bool fetchInvoiceDetails(const InvoiceCriteria *c);   ///< by number; read with invoiceDetails()
    /** By invoice number and place; a limit counts invoices. */
    [[nodiscard]] bool fetchInvoiceItems(const InvoiceCriteria *c);
    [[nodiscard]] bool fetchPayments(const PaymentCriteria *p); ///< by date, then account
    /** By invoice number, date and account. */
    [[nodiscard]] bool fetchPayments(const PaymentCriteria *p, const InvoiceCriteria *c);
    /** By date, then invoice number; read with invoiceAndPayment(). */
    [[nodiscard]] bool fetchInvoicesAndPayments(const PaymentCriteria *p);
    /** The same; payments after the balance date are left out. */
    [[nodiscard]] bool fetchInvoicesAndPayments(const InvoiceCriteria *c, const PaymentCriteria *p);
    /** Steps to the next invoice that meets the payment state at the criteria's balance date. */
    bool nextInvoice();

    // Readers of the current row
    void bankAccount(BankAccount *record) const;
    void customer(Customer *record) const;
    void product(Product *record) const;        ///< the price as 32 bits, see Product::amount
    void invoiceDetails(Invoice *record) const; ///< after a fetch of whole invoices: all fields
    /** Id, customer, type, number, dates, reference, total and balance; the other fields are left as they are. */
    void invoiceSummary(Invoice *record) const;
    void invoiceItem(InvoiceItem *record) const; ///< also after fetchItemsOf()
    void payment(Payment *record) const;         ///< leaves the account as it is for a payment without one
    /** Of the invoice the same but type and reference. */
    void invoiceAndPayment(Invoice *invoice, Payment *payment) const;
    void printScriptSummary(PrintScript *record) const; ///< without the source, which is left as it is
    void printScriptDetails(PrintScript *record) const;
    void settings(Settings *record) const; ///< properties are replaced

    /** 1 makes invoiceSummary() tell each balance at the criteria's balance date instead of the stored one. */
    void setInvoiceBalanceMode(int mode) { m_invoiceBalanceMode = mode; }
    int invoiceBalanceMode() const { return m_invoiceBalanceMode; }

    // Saving: a record with a negative id is inserted and gets its id, any other is updated.
    [[nodiscard]] bool saveBankAccount(BankAccount *record);
    [[nodiscard]] bool saveCustomer(Customer *record);
    [[nodiscard]] bool saveInvoice(Invoice *record); ///< total and balance as they are in the record
    [[nodiscard]] bool saveInvoiceItem(InvoiceItem *record);
    [[nodiscard]] bool savePayment(Payment *record); ///< an account of -1 is stored as none
    [[nodiscard]] bool savePrintScript(PrintScript *record);
    [[nodiscard]] bool saveProduct(Product *record);   ///< the price with 64 bits
    [[nodiscard]] bool saveSettings(Settings *record); ///< updates the one row, or inserts it

    // Deleting; bank accounts and customers are only marked. Nothing cascades. Ranges are inclusive, of invoice ids.
    [[nodiscard]] bool deleteProduct(int id);
    [[nodiscard]] bool deleteBankAccount(int id); ///< sets its mark
    [[nodiscard]] bool deleteCustomer(int id);    ///< sets its mark
    [[nodiscard]] bool deleteInvoice(int id);     ///< its rows and payments stay
    [[nodiscard]] bool deleteInvoicesBetween(int first, int last);
    [[nodiscard]] bool deleteInvoiceItem(int id);
    [[nodiscard]] bool deleteInvoiceItems(int invoiceId);
    [[nodiscard]] bool deleteInvoiceItemsBetween(int first, int last);
    [[nodiscard]] bool deletePayment(int id);
    [[nodiscard]] bool deletePayments(int invoiceId);
    [[nodiscard]] bool deletePaymentsBetween(int first, int last);
    [[nodiscard]] bool deletePrintScript(int id);

    /** Id and reference number of every invoice that has one, read with invoiceReference(). */
    [[nodiscard]] bool fetchInvoiceReferences();
    void invoiceReference(Invoice *record) const; ///< no other field

    // Lists with what people see of the neighbouring tables; what is computed is computed by the database.
    static QStringList invoiceSortKeys(); ///< for InvoiceSelection::sort
    static QStringList paymentSortKeys(); ///< for fetchPaymentList()
    /** @param withDetails  what invoiceListRow() is to read besides the summary */
    [[nodiscard]] bool fetchInvoiceList(const InvoiceSelection &selection, bool withDetails);
    /** @param customerNumber  set to -1, and the name to a null text, for an invoice whose customer is gone */
    void invoiceListRow(Invoice *record, int *customerNumber, QString *customerName, bool withDetails) const;
    /** The rows of some invoices, an invoice's together, in their order; read with invoiceItem(). */
    [[nodiscard]] bool fetchItemsOf(const QVector<int> &invoiceIds);
    /** The payments of some invoices, read with paymentListRow(). */
    [[nodiscard]] bool fetchPaymentsOf(const QVector<int> &invoiceIds);
    /** @param sort  a key of paymentSortKeys(), or empty. @param limit  negative for none */
    [[nodiscard]] bool fetchPaymentList(const PaymentCriteria &payments, const InvoiceSelection &invoices,
                                        const QString &sort, bool descending, int limit);
    /** @param accountName  a null text for a payment without an account */
    void paymentListRow(Payment *record, int *invoiceNumber, QString *accountName) const;
    /** Count and sum of the invoices with a balance, a row for each customer that has some. */
    [[nodiscard]] bool fetchOpenBalances();
    void openBalance(int *customerId, int *count, long long *balance) const; ///< cents
    /** One row: what is open, and what of it was due before the day. */
    [[nodiscard]] bool fetchCompanyBalances(const QDate &today);
    void companyBalances(int *openCount, long long *open, int *overdueCount, long long *overdue) const; ///< cents

    // The highest id of those that are not removed: 0 for none, -1 on failure.
    int newestInvoiceId();
    int newestCustomerId();
    int newestProductId();
    int newestBankAccountId();
    int newestPaymentId();
    int maxInvoiceNumber();           ///< 0 without invoices, -1 on failure; lastError() tells either way
    int maxCustomerNumber();          ///< of all customers, removed ones too; 0 without customers, -1 on failure
    int nextRowNumber(int invoiceId); ///< one past the invoice's last row, 0 without rows, -1 on failure

    /** Writes the settings row of a new database with its defaults, and the product of the interest on arrears. */
    [[nodiscard]] bool addInitialData(const QString &sellerName);

    /**
     * Appends the criteria's conditions to a statement, each column with the prefix ("", "i."), after the keyword
     * (" WHERE ", " AND ").
     * @return false, with nothing touched, when the criteria set no condition
     */
    bool buildInvoiceWhereClause(const InvoiceCriteria *c, QString &sql, QList<QVariant> &params, const QString &prefix,
                                 const QString &keyword) const;
    /** @param c  may be null; only its balance date counts here */
    bool buildPaymentWhereClause(const PaymentCriteria *p, const InvoiceCriteria *c, QString &sql,
                                 QList<QVariant> &params, const QString &prefix, const QString &keyword) const;

protected:
    // What a backend does differently.
    virtual QString newIdExpression(const char *table) const;
    virtual int insertedId(const char *table);
    virtual QString likeOperator() const { return QStringLiteral("LIKE"); }
    /** A pattern that finds the text anywhere, letter case aside also outside ASCII, for containsOperator(). */
    virtual QString containsPattern(const QString &text) const;
    virtual QString containsOperator() const { return QStringLiteral("GLOB"); }
    virtual QString escapeClause() const { return QStringLiteral(" ESCAPE '\\'"); }

    const std::unique_ptr<Cursor> m_cursor; ///< on the statement of the last operation

private:
    /** Each finishes the statement before. @return false with the reason in lastError() */
    bool execute(const QString &sql, const QVariantList &values = {});
    /** 0 without a row or when the statement cannot be prepared, -1 when it fails. */
    int firstInteger(const QString &sql, const QVariantList &values = {});
    /** Of the table of TableColumns<Record>; `order`, `condition` and `rest` are SQL. */
    template <class Record> bool fetchAll(const char *order);
    template <class Record> bool fetchWhere(const char *condition, int value, const char *rest = "");
    template <class Record> const QString &insertStatement();
    template <class Record> bool insert(Record *record); ///< sets the id
    template <class Record> bool update(Record *record); ///< all columns; a row that is gone is no failure
    template <class Record> bool save(Record *record);   ///< by the sign of the id

    template <class Record> int newestId(const char *condition = ""); ///< 0 without records, -1 on failure
    /** Pieces of the statement of an invoice list: the balance is the stored one, or that of the day asOf. */
    static QString invoiceListBalance(const InvoiceSelection &selection);
    static QString invoiceListOrder(const InvoiceSelection &selection);
    /** Values are appended in the order of the marks in the text. */
    QString invoiceListIds(const InvoiceSelection &selection, QVariantList &params) const;
    QString invoiceListSource(const InvoiceSelection &selection, QVariantList &params) const;

    bool fetchPaymentAmounts(const InvoiceCriteria *c); ///< fills m_paidAmounts; nothing without a balance date
    /** @param totalColumn  place of the total in `select`, for nextInvoice(). */
    bool fetchInvoices(const QString &select, int totalColumn, const InvoiceCriteria *c);
    /** A limit of 0 lets none through here; fetchInvoices() takes it as no limit. */
    void appendLimitedInvoices(const InvoiceCriteria *c, const QString &column, QString &sql, QList<QVariant> &params,
                               const QString &keyword) const;
    void appendInvoiceRestriction(const InvoiceCriteria *c, QString &sql, QList<QVariant> &params,
                                  bool hasConditions) const;

    QHash<const char *, QString> m_insertStatements; ///< by the name of the table, made when first needed
    InvoiceCriteria m_invoiceCriteria;               ///< of the last invoice search
    QHash<int, int> m_paidAmounts;                   ///< invoice id: payments up to the balance date, cents
    int m_totalColumn = -1;                          ///< column of the total in the current invoice search
    int m_invoiceBalanceMode = 0;                    ///< see setInvoiceBalanceMode()
};

#endif

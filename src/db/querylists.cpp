// The lists of invoices and payments with what belongs to them; the rest of Query is in query.cpp and querysearch.cpp.

#include "bankaccount.h"
#include "customer.h"
#include "invoice.h"
#include "invoiceitem.h"
#include "invoiceselection.h"
#include "payment.h"
#include "paymentcriteria.h"
#include "product.h"
#include "query.h"
#include "tablecolumns.h"

namespace {

struct SortColumn {
    const char *key, *column;
};

// "%1" is the balance: the stored one, or that of a day.
constexpr SortColumn sortColumns[] = {
    {"number", "i.number"},
    {"date", "i.date"},
    {"dueDate", "i.due_date"},
    {"deliveryDate", "i.delivery_date"},
    {"customer.number", "c.number"},
    {"customer.name", "lower(c.name)"},
    {"reference", "i.reference_number"},
    {"total", "i.total_amount"},
    {"balance", "%1"},
    {"type", "i.type"},
    {"id", "i.id"},
};

constexpr SortColumn paymentSortColumns[] = {
    {"date", "p.date"}, {"amount", "p.amount"}, {"invoice", "i.number"}, {"id", "p.id"}, {"account.name", "b.name"}};

constexpr char listColumns[] = "i.id, i.number, i.type, i.date, i.due_date, i.customer_id, c.number, c.name, "
                               "i.reference_number, i.total_amount, ";
constexpr char detailColumns[] = ", i.payment_terms, i.interest_on_arrears, i.delivery, i.delivery_date, i.buyer_ref, "
                                 "i.seller_ref, i.properties";
constexpr char invoiceTables[] = " FROM invoice i LEFT JOIN customer c ON c.id = i.customer_id";

constexpr char paymentSelect[] =
    "SELECT p.id, p.invoice_id, p.date, p.amount, p.bank_account_id, i.number, b.name FROM payment p LEFT JOIN "
    "invoice i ON i.id = p.invoice_id LEFT JOIN bank_account b ON b.id = p.bank_account_id";

template <std::size_t n> const SortColumn *findColumn(const SortColumn (&columns)[n], const QString &key)
{
    for (const SortColumn &column : columns) {
        if (key == QLatin1String(column.key))
            return &column;
    }
    return nullptr;
}

template <std::size_t n> QStringList keys(const SortColumn (&columns)[n])
{
    QStringList names;
    for (const SortColumn &column : columns)
        names.append(QLatin1String(column.key));
    return names;
}

/** The conditions of a selection, gathered with their values in the order of the marks. */
class Conditions {
public:
    void add(const QString &condition) { m_conditions.append(condition); }
    void add(const QString &condition, const QVariantList &values)
    {
        m_conditions.append(condition);
        m_values.append(values);
    }
    void add(const char *column, const char *comparison, const QDate &value)
    {
        if (value.isValid())
            add(QLatin1String(column) + QLatin1String(comparison) + QLatin1Char('?'), {value});
    }

    void appendTo(QString &sql, QVariantList &params) const
    {
        if (m_conditions.isEmpty())
            return;
        sql += QLatin1String(" WHERE ") + m_conditions.join(QLatin1String(" AND "));
        params.append(m_values);
    }

private:
    QStringList m_conditions;
    QVariantList m_values;
};

QString stateCondition(int state, const QString &balance)
{
    switch (state) {
    case InvoiceSelection::empty:
        return balance + QLatin1String(" = 0 AND i.total_amount = 0");
    case InvoiceSelection::paid:
        return balance + QLatin1String(" = 0 AND i.total_amount <> 0");
    case InvoiceSelection::open:
        return balance + QLatin1String(" > 0 AND (i.due_date IS NULL OR i.due_date >= ?)");
    case InvoiceSelection::overdue:
        return balance + QLatin1String(" > 0 AND i.due_date < ?");
    default:
        return balance + QLatin1String(" < 0");
    }
}

/** `?, ?, ?`: a power of two of them, so that few different statements are kept; the last value fills up. */
QString marks(QVariantList &values)
{
    int count = 1;
    while (count < values.size())
        count *= 2;
    while (values.size() < count)
        values.append(values.last());
    QString list = QStringLiteral("?, ").repeated(count);
    list.chop(2);
    return list;
}

QVariantList variants(const QVector<int> &numbers)
{
    QVariantList list;
    list.reserve(numbers.size());
    for (const int number : numbers)
        list.append(number);
    return list;
}

void addNumbers(Conditions &conditions, const InvoiceSelection &selection)
{
    QStringList any;
    QVariantList values, singles;
    for (const InvoiceSelection::NumberRange &range : selection.numbers) {
        if (range.from >= 0 && range.from == range.to) {
            singles.append(range.from);
            continue;
        }
        QStringList both;
        if (range.from >= 0) {
            both.append(QStringLiteral("i.number >= ?"));
            values.append(range.from);
        }
        if (range.to >= 0) {
            both.append(QStringLiteral("i.number <= ?"));
            values.append(range.to);
        }
        any.append(both.isEmpty() ? QStringLiteral("1 = 1") : both.join(QLatin1String(" AND ")));
    }
    if (!singles.isEmpty()) {
        any.append(QLatin1String("i.number IN (") + marks(singles) + QLatin1Char(')'));
        values.append(singles);
    }
    if (!selection.ids.isEmpty()) {
        QVariantList ids = variants(selection.ids);
        any.append(QLatin1String("i.id IN (") + marks(ids) + QLatin1Char(')'));
        values.append(ids);
    }
    if (!any.isEmpty())
        conditions.add(QLatin1Char('(') + any.join(QLatin1String(" OR ")) + QLatin1Char(')'), values);
}

} // namespace

QStringList Query::invoiceSortKeys() { return keys(sortColumns); }

QStringList Query::paymentSortKeys() { return keys(paymentSortColumns); }

QString Query::invoiceListBalance(const InvoiceSelection &selection)
{
    return selection.asOf.isValid() ? QStringLiteral("(i.total_amount - coalesce(s.paid, 0))")
                                    : QStringLiteral("i.balance");
}

/** The tables of a list and its conditions. */
QString Query::invoiceListSource(const InvoiceSelection &selection, QVariantList &params) const
{
    const QString balance = invoiceListBalance(selection);
    QString sql = QLatin1String(invoiceTables);
    if (selection.asOf.isValid()) {
        sql += QLatin1String(" LEFT JOIN (SELECT invoice_id, sum(amount) AS paid FROM payment WHERE date <= ? GROUP BY "
                             "invoice_id) s ON s.invoice_id = i.id");
        params.append(selection.asOf);
    }
    Conditions conditions;
    addNumbers(conditions, selection);
    if (selection.withBalance)
        conditions.add(balance + QLatin1String(" <> 0"));
    if (selection.withoutBalance)
        conditions.add(balance + QLatin1String(" = 0"));
    if (selection.isOverdue)
        conditions.add(stateCondition(InvoiceSelection::overdue, balance), {selection.day()});
    if (selection.state >= 0) {
        const QString condition = stateCondition(selection.state, balance);
        const bool hasDay = condition.contains(QLatin1Char('?'));
        conditions.add(condition, hasDay ? QVariantList{selection.day()} : QVariantList());
    }
    if (selection.customerId >= 0)
        conditions.add(QStringLiteral("i.customer_id = ?"), {selection.customerId});
    if (selection.type >= 0)
        conditions.add(QStringLiteral("i.type = ?"), {selection.type});
    if (!selection.reference.isEmpty())
        conditions.add(QStringLiteral("i.reference_number = ?"), {selection.reference});
    conditions.add("i.date", " >= ", selection.dateFrom);
    conditions.add("i.date", " <= ", selection.dateTo);
    conditions.add("i.date", " <= ", selection.asOf);
    conditions.add("i.due_date", " >= ", selection.dueDateFrom);
    conditions.add("i.due_date", " <= ", selection.dueDateTo);
    conditions.add("coalesce(i.delivery_date, i.date)", " >= ", selection.deliveryDateFrom);
    conditions.add("coalesce(i.delivery_date, i.date)", " <= ", selection.deliveryDateTo);
    if (!selection.text.isEmpty()) {
        const QString pattern = containsPattern(selection.text);
        const QString matches = QLatin1Char(' ') + containsOperator() + QLatin1String(" ?");
        conditions.add(QLatin1String("(c.name") + matches + QLatin1String(" OR i.buyer_ref") + matches +
                           QLatin1String(" OR i.seller_ref") + matches +
                           QLatin1String(" OR i.id IN (SELECT invoice_id FROM invoice_item WHERE text") + matches +
                           QLatin1String(" OR product_name") + matches + QLatin1String("))"),
                       {pattern, pattern, pattern, pattern, pattern});
    }
    conditions.appendTo(sql, params);
    return sql;
}

QString Query::invoiceListOrder(const InvoiceSelection &selection)
{
    const QString balance = invoiceListBalance(selection);
    const SortColumn *column = findColumn(sortColumns, selection.sort);
    const QString order = column ? QString(QLatin1String(column->column)).replace(QLatin1String("%1"), balance)
                                 : QStringLiteral("i.number");
    const QString direction = selection.descending ? QStringLiteral(" DESC") : QString();
    QString sql = QLatin1String(" ORDER BY ") + order + direction;
    if (order != QLatin1String("i.number")) // a term that is there twice would be sorted anew, row by row
        sql += QLatin1String(", i.number") + direction;
    sql += QLatin1String(", i.id") + direction;
    if (selection.limit >= 0)
        sql += QLatin1String(" LIMIT ") + QString::number(selection.limit);
    return sql;
}

/** The selected invoices' ids as a statement of their own. */
QString Query::invoiceListIds(const InvoiceSelection &selection, QVariantList &params) const
{
    const QString ids = QLatin1String("SELECT i.id") + invoiceListSource(selection, params);
    return selection.limit < 0 ? ids : ids + invoiceListOrder(selection);
}

bool Query::fetchInvoiceList(const InvoiceSelection &selection, bool withDetails)
{
    const QString balance = invoiceListBalance(selection);
    QString sql = QLatin1String("SELECT ") + QLatin1String(listColumns) + balance;
    if (withDetails)
        sql += QLatin1String(detailColumns);
    QVariantList params;
    sql += invoiceListSource(selection, params);
    sql += invoiceListOrder(selection);
    return execute(sql, params);
}

void Query::invoiceListRow(Invoice *record, int *customerNumber, QString *customerName, bool withDetails) const
{
    record->id = m_cursor->integer(0);
    record->number = m_cursor->integer(1);
    record->type = m_cursor->integer(2);
    record->date = m_cursor->date(3);
    record->dueDate = m_cursor->date(4);
    record->customerId = m_cursor->integer(5);
    *customerNumber = m_cursor->isNull(6) ? -1 : m_cursor->integer(6);
    *customerName = m_cursor->text(7);
    record->referenceNumber = m_cursor->text(8);
    record->totalAmount = m_cursor->integer(9);
    record->balance = m_cursor->integer(10);
    if (!withDetails)
        return;
    record->paymentTerms = m_cursor->text(11);
    record->interestOnArrears = m_cursor->integer(12);
    record->delivery = m_cursor->text(13);
    record->deliveryDate = m_cursor->date(14);
    record->buyerRef = m_cursor->text(15);
    record->sellerRef = m_cursor->text(16);
    record->propertiesFromString(m_cursor->text(17));
}

bool Query::fetchItemsOf(const QVector<int> &invoiceIds)
{
    QVariantList ids = variants(invoiceIds);
    const QString list = marks(ids);
    return execute(QStringLiteral("SELECT %1 FROM invoice_item WHERE invoice_id IN (%2) ORDER BY invoice_id, "
                                  "row_number, id")
                       .arg(selectedColumns<InvoiceItem>(), list),
                   ids);
}

bool Query::fetchPaymentsOf(const QVector<int> &invoiceIds)
{
    QVariantList ids = variants(invoiceIds);
    const QString list = marks(ids);
    return execute(QLatin1String(paymentSelect) + QLatin1String(" WHERE p.invoice_id IN (") + list +
                       QLatin1String(") ORDER BY p.invoice_id, p.date, p.id"),
                   ids);
}

bool Query::fetchPaymentList(const PaymentCriteria &payments, const InvoiceSelection &invoices, const QString &sort,
                             bool descending, int limit)
{
    QVariantList params;
    QString sql = QLatin1String(paymentSelect);
    const bool hasConditions =
        buildPaymentWhereClause(&payments, nullptr, sql, params, QStringLiteral("p."), QStringLiteral(" WHERE "));
    if (invoices.restricts()) {
        sql += QLatin1String(hasConditions ? " AND " : " WHERE ") + QLatin1String("p.invoice_id IN (");
        sql += invoiceListIds(invoices, params) + QLatin1Char(')');
    }
    const SortColumn *column = findColumn(paymentSortColumns, sort);
    const QString direction = descending ? QStringLiteral(" DESC") : QString();
    sql += QLatin1String(" ORDER BY ") + QLatin1String(column ? column->column : "p.date") + direction +
           QLatin1String(", p.id") + direction;
    if (limit >= 0)
        sql += QLatin1String(" LIMIT ") + QString::number(limit);
    return execute(sql, params);
}

void Query::paymentListRow(Payment *record, int *invoiceNumber, QString *accountName) const
{
    record->id = m_cursor->integer(0);
    record->invoiceId = m_cursor->integer(1);
    record->date = m_cursor->date(2);
    record->amount = m_cursor->integer(3);
    record->bankAccountId = m_cursor->isNull(4) ? -1 : m_cursor->integer(4);
    *invoiceNumber = m_cursor->integer(5);
    *accountName = m_cursor->text(6);
}

bool Query::fetchOpenBalances()
{
    return execute(QStringLiteral("SELECT customer_id, count(*), sum(balance) FROM invoice WHERE balance <> 0 GROUP BY "
                                  "customer_id"));
}

void Query::openBalance(int *customerId, int *count, long long *balance) const
{
    *customerId = m_cursor->integer(0);
    *count = m_cursor->integer(1);
    *balance = m_cursor->bigInteger(2);
}

bool Query::fetchCompanyBalances(const QDate &today)
{
    return execute(QStringLiteral("SELECT count(*), coalesce(sum(balance), 0), "
                                  "coalesce(sum(CASE WHEN balance > 0 AND due_date < ? THEN 1 ELSE 0 END), 0), "
                                  "coalesce(sum(CASE WHEN balance > 0 AND due_date < ? THEN balance ELSE 0 END), 0) "
                                  "FROM invoice WHERE balance <> 0"),
                   {today, today});
}

void Query::companyBalances(int *openCount, long long *open, int *overdueCount, long long *overdue) const
{
    *openCount = m_cursor->integer(0);
    *open = m_cursor->bigInteger(1);
    *overdueCount = m_cursor->integer(2);
    *overdue = m_cursor->bigInteger(3);
}

QString Query::containsPattern(const QString &text) const
{
    // A set of both cases for each letter: what the database takes for equal depends on neither locale nor version.
    QString pattern(QLatin1Char('*'));
    for (const QChar c : text) {
        const bool isSpecial = c == QLatin1Char('*') || c == QLatin1Char('?') || c == QLatin1Char('[');
        if (c.toLower() != c.toUpper())
            pattern += QLatin1Char('[') + QString(c.toLower()) + c.toUpper() + QLatin1Char(']');
        else
            pattern += isSpecial ? QLatin1Char('[') + QString(c) + QLatin1Char(']') : QString(c);
    }
    return pattern + QLatin1Char('*');
}

template <class Record> int Query::newestId(const char *condition)
{
    return firstInteger(QStringLiteral("SELECT coalesce(max(id), 0) FROM %1%2")
                            .arg(QLatin1String(TableColumns<Record>::table), QLatin1String(condition)));
}

int Query::newestInvoiceId() { return newestId<Invoice>(); }

int Query::newestCustomerId() { return newestId<Customer>(" WHERE NOT deleted"); }

int Query::newestProductId() { return newestId<Product>(); }

int Query::newestBankAccountId() { return newestId<BankAccount>(" WHERE NOT deleted"); }

int Query::newestPaymentId() { return newestId<Payment>(); }

bool Query::fetchProductsByNumber(const QString &number)
{
    return execute(
        QStringLiteral("SELECT %1 FROM product WHERE number = ? ORDER BY id").arg(selectedColumns<Product>()),
        {number});
}

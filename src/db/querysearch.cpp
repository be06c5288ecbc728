// The searches by criteria; the rest of Query is in query.cpp.

#include "invoice.h"
#include "invoicecriteria.h"
#include "invoiceitem.h"
#include "payment.h"
#include "paymentcriteria.h"
#include "query.h"
#include "tablecolumns.h"
#include "whereclause.h"

namespace {

// "%1" is the prefix; an invoice without a delivery date counts with its own date.
constexpr char deliveryBetween[] = "((%1delivery_date IS NOT NULL AND %1delivery_date BETWEEN ? AND ?) OR "
                                   "(%1delivery_date IS NULL AND %1date BETWEEN ? AND ?))";
constexpr char deliveryFrom[] = "((%1delivery_date IS NOT NULL AND %1delivery_date >= ?) OR "
                                "(%1delivery_date IS NULL AND %1date >= ?))";
constexpr char deliveryTo[] = "((%1delivery_date IS NOT NULL AND %1delivery_date <= ?) OR "
                              "(%1delivery_date IS NULL AND %1date <= ?))";

constexpr int summaryTotalColumn = 8;
constexpr int detailTotalColumn = 13;
constexpr int invoiceAndPaymentTotalColumn = 6;

const QString where = QStringLiteral(" WHERE ");

QString descending(const InvoiceCriteria *c) { return c->descending ? QStringLiteral(" DESC") : QString(); }

/** The earlier of two dates; an invalid one does not count. */
QDate earlier(const QDate &a, const QDate &b)
{
    if (!a.isValid() || (b.isValid() && b < a))
        return b;
    return a;
}

/** The condition for a bit set of invoice types; empty when none of the known types is in it. */
QString typeCondition(int types)
{
    QStringList pieces;
    for (int type = 0; types >= 0 && type < Invoice::typeCount; ++type) {
        if (types & (1 << type))
            pieces.append(QStringLiteral("%1type = ") + QString::number(type));
    }
    return pieces.isEmpty() ? QString() : QLatin1Char('(') + pieces.join(QLatin1String(" OR ")) + QLatin1Char(')');
}

void addDeliveryDate(WhereClause &clause, const QDate &from, const QDate &to)
{
    if (from.isValid() && to.isValid())
        clause.addAll(deliveryBetween, {from, to, from, to});
    else if (from.isValid())
        clause.addAll(deliveryFrom, {from, from});
    else if (to.isValid())
        clause.addAll(deliveryTo, {to, to});
}

} // namespace

bool Query::buildInvoiceWhereClause(const InvoiceCriteria *c, QString &sql, QList<QVariant> &params,
                                    const QString &prefix, const QString &keyword) const
{
    WhereClause clause(prefix);
    clause.add("%1date >= ?", c->dateFrom);
    clause.add("%1date <= ?", earlier(c->dateTo, c->balanceDate));
    clause.add("%1date = ?", c->date);
    clause.add("%1due_date >= ?", c->dueDateFrom);
    clause.add("%1due_date <= ?", c->dueDateTo);
    addDeliveryDate(clause, c->deliveryDateFrom, c->deliveryDateTo);
    clause.add("%1number >= ?", c->numberFrom);
    clause.add("%1number <= ?", c->numberTo);
    clause.add("%1number = ?", c->number);
    clause.add("%1id = ?", c->id);
    clause.add("%1customer_id = ?", c->customerId);
    clause.add(QStringLiteral("%1reference_number = ?"), c->referenceNumber);
    const QString types = typeCondition(c->types);
    if (!types.isEmpty())
        clause.add(types.toLatin1().constData());
    if (!c->balanceDate.isValid() && c->paymentState == InvoiceCriteria::paid)
        clause.add("%1balance = 0");
    if (!c->balanceDate.isValid() && c->paymentState == InvoiceCriteria::open)
        clause.add("%1balance <> 0");
    clause.add(QStringLiteral("%1id IN (SELECT invoice_id FROM invoice_item WHERE text ") + likeOperator() +
                   QLatin1String(" ?") + escapeClause() + QLatin1Char(')'),
               c->text);
    if (c->selection) {
        QVariantList values;
        const QString ids = invoiceListIds(*c->selection, values);
        clause.addAll((QLatin1String("%1id IN (") + ids + QLatin1Char(')')).toLatin1().constData(), values);
    }
    return clause.appendTo(sql, params, keyword);
}

bool Query::buildPaymentWhereClause(const PaymentCriteria *p, const InvoiceCriteria *c, QString &sql,
                                    QList<QVariant> &params, const QString &prefix, const QString &keyword) const
{
    WhereClause clause(prefix);
    clause.add("%1date >= ?", p->dateFrom);
    clause.add("%1date <= ?", c ? earlier(p->dateTo, c->balanceDate) : p->dateTo);
    clause.add("%1id >= ?", p->idFrom);
    clause.add("%1id <= ?", p->idTo);
    clause.add("%1invoice_id = ?", p->invoiceId);
    clause.add("%1bank_account_id = ?", p->bankAccountId);
    return clause.appendTo(sql, params, keyword);
}

/** Restricts a column to the ids of the criteria's first invoices; a limit of 0 lets none through. */
void Query::appendLimitedInvoices(const InvoiceCriteria *c, const QString &column, QString &sql,
                                  QList<QVariant> &params, const QString &keyword) const
{
    sql += keyword + column + QLatin1String(" IN (SELECT j.id FROM invoice j");
    buildInvoiceWhereClause(c, sql, params, QStringLiteral("j."), where);
    sql += QLatin1String(" ORDER BY j.number") + descending(c) + QLatin1String(" LIMIT ") + QString::number(c->limit) +
           QLatin1Char(')');
}

/** The invoice part of a payment search. */
void Query::appendInvoiceRestriction(const InvoiceCriteria *c, QString &sql, QList<QVariant> &params,
                                     bool hasConditions) const
{
    const QString keyword = hasConditions ? QStringLiteral(" AND ") : where;
    if (c->limit < 0)
        buildInvoiceWhereClause(c, sql, params, QStringLiteral("i."), keyword);
    else
        appendLimitedInvoices(c, QStringLiteral("p.invoice_id"), sql, params, keyword);
}

int Query::fetchInvoiceCount(const InvoiceCriteria *c)
{
    QString sql = QStringLiteral("SELECT count(*) FROM invoice");
    QList<QVariant> params;
    buildInvoiceWhereClause(c, sql, params, QString(), where);
    return firstInteger(sql, params);
}

bool Query::fetchInvoices(const QString &columns, int totalColumn, const InvoiceCriteria *c)
{
    if (!fetchPaymentAmounts(c))
        return false;
    QString sql = QStringLiteral("SELECT ") + columns + QLatin1String(" FROM invoice");
    QList<QVariant> params;
    buildInvoiceWhereClause(c, sql, params, QString(), where);
    sql += QLatin1String(" ORDER BY number") + descending(c);
    if (c->limit > 0)
        sql += QLatin1String(" LIMIT ") + QString::number(c->limit);
    m_totalColumn = totalColumn;
    m_invoiceCriteria = *c;
    return execute(sql, params);
}

bool Query::fetchInvoiceSummaries(const InvoiceCriteria *c)
{
    return fetchInvoices(QStringLiteral("id, customer_id, type, number, date, due_date, delivery_date, "
                                        "reference_number, total_amount, balance"),
                         summaryTotalColumn, c);
}

bool Query::fetchInvoiceDetails(const InvoiceCriteria *c)
{
    return fetchInvoices(selectedColumns<Invoice>(), detailTotalColumn, c);
}

bool Query::fetchInvoiceItems(const InvoiceCriteria *c)
{
    QString sql = QStringLiteral("SELECT ") + selectedColumns<InvoiceItem>(QStringLiteral("r.")) +
                  QLatin1String(" FROM invoice_item r INNER JOIN invoice i ON r.invoice_id = i.id");
    QList<QVariant> params;
    if (c->limit < 0)
        buildInvoiceWhereClause(c, sql, params, QStringLiteral("i."), where);
    else
        appendLimitedInvoices(c, QStringLiteral("r.invoice_id"), sql, params, where);
    return execute(sql + QLatin1String(" ORDER BY i.number, r.row_number"), params);
}

bool Query::fetchPayments(const PaymentCriteria *p)
{
    QString sql = QStringLiteral("SELECT ") + selectedColumns<Payment>() + QLatin1String(" FROM payment");
    QList<QVariant> params;
    buildPaymentWhereClause(p, nullptr, sql, params, QString(), where);
    return execute(sql + QLatin1String(" ORDER BY date, bank_account_id"), params);
}

bool Query::fetchPayments(const PaymentCriteria *p, const InvoiceCriteria *c)
{
    QString sql = QStringLiteral("SELECT ") + selectedColumns<Payment>(QStringLiteral("p.")) +
                  QLatin1String(" FROM payment p INNER JOIN invoice i ON p.invoice_id = i.id");
    QList<QVariant> params;
    const bool restricted = buildPaymentWhereClause(p, c, sql, params, QStringLiteral("p."), where);
    appendInvoiceRestriction(c, sql, params, restricted);
    return execute(sql + QLatin1String(" ORDER BY i.number, p.date, p.bank_account_id"), params);
}

static QString selectInvoicesAndPayments()
{
    return QStringLiteral("SELECT i.id, i.customer_id, i.number, i.date, i.due_date, i.delivery_date, i.total_amount, "
                          "i.balance, ") +
           selectedColumns<Payment>(QStringLiteral("p.")) +
           QLatin1String(" FROM payment p INNER JOIN invoice i ON p.invoice_id = i.id");
}

bool Query::fetchInvoicesAndPayments(const PaymentCriteria *p)
{
    QString sql = selectInvoicesAndPayments();
    QList<QVariant> params;
    buildPaymentWhereClause(p, nullptr, sql, params, QStringLiteral("p."), where);
    return execute(sql + QLatin1String(" ORDER BY p.date, i.number"), params);
}

bool Query::fetchInvoicesAndPayments(const InvoiceCriteria *c, const PaymentCriteria *p)
{
    if (!fetchPaymentAmounts(c))
        return false;
    QString sql = selectInvoicesAndPayments();
    QList<QVariant> params;
    const bool restricted = buildPaymentWhereClause(p, c, sql, params, QStringLiteral("p."), where);
    appendInvoiceRestriction(c, sql, params, restricted);
    m_totalColumn = invoiceAndPaymentTotalColumn;
    m_invoiceCriteria = *c;
    return execute(sql + QLatin1String(" ORDER BY p.date, i.number"), params);
}

bool Query::fetchPaymentAmounts(const InvoiceCriteria *c)
{
    if (!c->balanceDate.isValid())
        return true;
    PaymentCriteria untilBalanceDate;
    untilBalanceDate.dateTo = c->balanceDate;
    if (!fetchPayments(&untilBalanceDate, c))
        return false;
    return readAll([this] {
        Payment record;
        payment(&record);
        m_paidAmounts[record.invoiceId] += record.amount;
    });
}

bool Query::nextInvoice()
{
    if (!m_invoiceCriteria.balanceDate.isValid())
        return next();
    while (next()) {
        const int balance = m_cursor->integer(m_totalColumn) - m_paidAmounts.value(m_cursor->integer(0));
        const bool isPaid = balance == 0;
        const int wanted = m_invoiceCriteria.paymentState;
        if ((wanted != InvoiceCriteria::paid || isPaid) && (wanted != InvoiceCriteria::open || !isPaid))
            return true;
    }
    return false;
}

void Query::invoiceSummary(Invoice *record) const
{
    record->id = m_cursor->integer(0);
    record->customerId = m_cursor->integer(1);
    record->type = m_cursor->integer(2);
    record->number = m_cursor->integer(3);
    record->date = m_cursor->date(4);
    record->dueDate = m_cursor->date(5);
    record->deliveryDate = m_cursor->date(6);
    record->referenceNumber = m_cursor->text(7);
    record->totalAmount = m_cursor->integer(8);
    record->balance = m_cursor->integer(9);
    if (m_invoiceBalanceMode == 1 && m_invoiceCriteria.balanceDate.isValid())
        record->balance = record->totalAmount - m_paidAmounts.value(record->id);
}

void Query::invoiceAndPayment(Invoice *invoice, Payment *payment) const
{
    invoice->id = m_cursor->integer(0);
    invoice->customerId = m_cursor->integer(1);
    invoice->number = m_cursor->integer(2);
    invoice->date = m_cursor->date(3);
    invoice->dueDate = m_cursor->date(4);
    invoice->deliveryDate = m_cursor->date(5);
    invoice->totalAmount = m_cursor->integer(6);
    invoice->balance = m_cursor->integer(7);
    TableColumns<Payment>::read(*m_cursor, 8, *payment);
}

#include "invoicecriteria.h"
#include "paymentcriteria.h"
#include "postgresqlquery.h"
#include "query.h"

#include <QtTest>

Q_DECLARE_METATYPE(InvoiceCriteria)
Q_DECLARE_METATYPE(PaymentCriteria)

/** The text and the bound values that criteria turn into; tst_search looks at what they find. */
class WhereClauseTest : public QObject {
    Q_OBJECT
private slots:
    void invoices_data();
    void invoices();
    void payments_data();
    void payments();
    void textOperatorOfTheServer();
};

static const QDate june30(2015, 6, 30), january1(2015, 1, 1), december31(2015, 12, 31), nextYear(2016, 1, 31);

void WhereClauseTest::invoices_data()
{
    QTest::addColumn<InvoiceCriteria>("criteria");
    QTest::addColumn<QString>("sql"); // after " WHERE ", with the prefix "i."
    QTest::addColumn<QVariantList>("values");
    const auto row = [](const char *name, void (*set)(InvoiceCriteria &), const char *sql, const QVariantList &values) {
        InvoiceCriteria criteria;
        set(criteria);
        QTest::newRow(name) << criteria << QString::fromLatin1(sql) << values;
    };
    using C = InvoiceCriteria;
    row("nothing", [](C &) {}, "", {});
    row("limit and order are no conditions", [](C &c) { c.limit = 0, c.descending = true; }, "", {});
    row("from", [](C &c) { c.dateFrom = january1; }, "i.date >= ?", {january1});
    row("to", [](C &c) { c.dateTo = december31; }, "i.date <= ?", {december31});
    row("balance date before the end", [](C &c) { c.dateTo = december31, c.balanceDate = june30; }, "i.date <= ?",
        {june30});
    row("balance date after the end", [](C &c) { c.dateTo = december31, c.balanceDate = nextYear; }, "i.date <= ?",
        {december31});
    row("balance date alone", [](C &c) { c.balanceDate = june30; }, "i.date <= ?", {june30});
    row("day", [](C &c) { c.date = june30; }, "i.date = ?", {june30});
    row("due", [](C &c) { c.dueDateFrom = january1, c.dueDateTo = june30; }, "i.due_date >= ? AND i.due_date <= ?",
        {january1, june30});
    row("delivery between", [](C &c) { c.deliveryDateFrom = january1, c.deliveryDateTo = june30; },
        "((i.delivery_date IS NOT NULL AND i.delivery_date BETWEEN ? AND ?) OR "
        "(i.delivery_date IS NULL AND i.date BETWEEN ? AND ?))",
        {january1, june30, january1, june30});
    row("delivery from", [](C &c) { c.deliveryDateFrom = january1; },
        "((i.delivery_date IS NOT NULL AND i.delivery_date >= ?) OR (i.delivery_date IS NULL AND i.date >= ?))",
        {january1, january1});
    row("delivery to", [](C &c) { c.deliveryDateTo = june30; },
        "((i.delivery_date IS NOT NULL AND i.delivery_date <= ?) OR (i.delivery_date IS NULL AND i.date <= ?))",
        {june30, june30});
    row("numbers", [](C &c) { c.numberFrom = 0, c.numberTo = 9, c.number = 5; },
        "i.number >= ? AND i.number <= ? AND i.number = ?", {0, 9, 5});
    row("negative numbers", [](C &c) { c.numberFrom = -2, c.number = -2, c.id = -2; }, "", {});
    row("ids and reference", [](C &c) { c.id = 0, c.customerId = 3, c.referenceNumber = QStringLiteral("%1"); },
        "i.id = ? AND i.customer_id = ? AND i.reference_number = ?", {0, 3, "%1"});
    row("two types", [](C &c) { c.types = 5; }, "(i.type = 0 OR i.type = 2)", {});
    row("all types", [](C &c) { c.types = 15; }, "(i.type = 0 OR i.type = 1 OR i.type = 2 OR i.type = 3)", {});
    row("one type and unknown ones", [](C &c) { c.types = 16 + 8; }, "(i.type = 3)", {});
    row("no type", [](C &c) { c.types = 0; }, "", {});
    row("unknown type", [](C &c) { c.types = 16; }, "", {});
    row("paid", [](C &c) { c.paymentState = 0; }, "i.balance = 0", {});
    row("open", [](C &c) { c.paymentState = 1; }, "i.balance <> 0", {});
    row("both", [](C &c) { c.paymentState = 2; }, "", {});
    row("paid at a date", [](C &c) { c.paymentState = 0, c.balanceDate = june30; }, "i.date <= ?", {june30});
    row("text", [](C &c) { c.text = QStringLiteral("%a\\%%"); },
        "i.id IN (SELECT invoice_id FROM invoice_item WHERE text LIKE ? ESCAPE '\\')", {"%a\\%%"});
    row("the order of all",
        [](C &c) {
            c.text = QStringLiteral("t"), c.paymentState = 1, c.types = 1, c.referenceNumber = QStringLiteral("r");
            c.customerId = 2, c.id = 1, c.number = 5, c.numberTo = 9, c.numberFrom = 3, c.deliveryDateTo = june30;
            c.dueDateTo = june30, c.dueDateFrom = june30, c.date = june30, c.dateTo = june30, c.dateFrom = january1;
        },
        "i.date >= ? AND i.date <= ? AND i.date = ? AND i.due_date >= ? AND i.due_date <= ? AND "
        "((i.delivery_date IS NOT NULL AND i.delivery_date <= ?) OR (i.delivery_date IS NULL AND i.date <= ?)) AND "
        "i.number >= ? AND i.number <= ? AND i.number = ? AND i.id = ? AND i.customer_id = ? AND "
        "i.reference_number = ? AND (i.type = 0) AND i.balance <> 0 AND "
        "i.id IN (SELECT invoice_id FROM invoice_item WHERE text LIKE ? ESCAPE '\\')",
        {january1, june30, june30, june30, june30, june30, june30, 3, 9, 5, 1, 2, "r", "t"});
}

void WhereClauseTest::invoices()
{
    QFETCH(InvoiceCriteria, criteria);
    QFETCH(QString, sql);
    const Query query(nullptr, nullptr);
    QString built = QStringLiteral("X");
    QVariantList params{"first"};
    QCOMPARE(query.buildInvoiceWhereClause(&criteria, built, params, QStringLiteral("i."), QStringLiteral(" WHERE ")),
             !sql.isEmpty());
    QCOMPARE(built, sql.isEmpty() ? QStringLiteral("X") : QLatin1String("X WHERE ") + sql);
    QCOMPARE(params.takeFirst(), QVariant("first"));
    QTEST(params, "values");
    built.clear();
    query.buildInvoiceWhereClause(&criteria, built, params, QString(), QStringLiteral(" AND "));
    QCOMPARE(built, sql.isEmpty() ? QString() : QLatin1String(" AND ") + sql.remove(QLatin1String("i.")));
}

void WhereClauseTest::payments_data()
{
    QTest::addColumn<PaymentCriteria>("criteria");
    QTest::addColumn<QDate>("balanceDate");
    QTest::addColumn<QString>("sql");
    QTest::addColumn<QVariantList>("values");
    PaymentCriteria none, all, until;
    until.dateTo = june30;
    all.dateFrom = january1;
    all.dateTo = june30;
    all.idFrom = 0;
    all.idTo = 9;
    all.invoiceId = 3;
    all.bankAccountId = 4;
    QTest::newRow("nothing") << none << QDate() << "" << QVariantList();
    QTest::newRow("all") << all << QDate()
                         << " AND p.date >= ? AND p.date <= ? AND p.id >= ? AND p.id <= ? AND p.invoice_id = ? AND "
                            "p.bank_account_id = ?"
                         << QVariantList{january1, june30, 0, 9, 3, 4};
    QTest::newRow("balance date") << none << june30 << " AND p.date <= ?" << QVariantList{june30};
    QTest::newRow("earlier balance date") << until << january1 << " AND p.date <= ?" << QVariantList{january1};
    QTest::newRow("later balance date") << until << december31 << " AND p.date <= ?" << QVariantList{june30};
}

void WhereClauseTest::payments()
{
    QFETCH(PaymentCriteria, criteria);
    QFETCH(QDate, balanceDate);
    InvoiceCriteria invoices;
    invoices.balanceDate = balanceDate;
    QString sql;
    QVariantList params;
    const bool added = Query(nullptr, nullptr)
                           .buildPaymentWhereClause(&criteria, balanceDate.isValid() ? &invoices : nullptr, sql, params,
                                                    QStringLiteral("p."), QStringLiteral(" AND "));
    QTEST(sql, "sql");
    QCOMPARE(added, !sql.isEmpty());
    QTEST(params, "values");
}

void WhereClauseTest::textOperatorOfTheServer()
{
    InvoiceCriteria criteria;
    criteria.text = QStringLiteral("a");
    QString sql;
    QVariantList params;
    PostgreSQLQuery(nullptr, nullptr).buildInvoiceWhereClause(&criteria, sql, params, QString(), QString());
    QCOMPARE(sql, QStringLiteral("id IN (SELECT invoice_id FROM invoice_item WHERE text ILIKE ? ESCAPE E'\\\\')"));
}

QTEST_GUILESS_MAIN(WhereClauseTest)
#include "tst_whereclause.moc"

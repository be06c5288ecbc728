#include "customerlistprintmodel.h"
#include "invoicelistprintmodel.h"
#include "paymentprintmodel.h"
#include "printdatabase.h"
#include "productlistprintmodel.h"

/** The value paths, sort orders and CSV files of the four lists. */
class ListPrintModelsTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void invoiceValues();
    void invoiceOrders_data();
    void invoiceOrders();
    void invoiceOrderSurvivesRun();
    void columns();
    void balanceDate();
    void invoiceCsv();
    void paymentValues();
    void paymentOrders_data();
    void paymentOrders();
    void paymentCsv();
    void customers();
    void products();
    void emptyLists();
    void queryFailures();

private:
    void addInvoices();
    void addPayments();
    QStringList csv(PrintModel &model) { return csvLines(model, m_data.filePath("a.csv")); }

    PrintDatabase m_data;
    QVector<int> m_customers, m_invoices, m_accounts; ///< ids
};

namespace {

/** The values at a path, `*` standing for each index of its list, joined by blanks. */
QString each(PrintModel &model, const QString &path)
{
    const int star = path.indexOf('*');
    QStringList texts;
    const int count = model.value(path.left(star) + "length").toInt();
    for (int i = 0; i < count; ++i) {
        const QVariant value = model.value(QString(path).replace(star, 1, QString::number(i)));
        texts << (value.isValid() ? value.toString() : "-");
    }
    return texts.join(' ');
}

QString date(const QDate &date)
{
    const QString text = QLocale::system().toString(date, QLocale::ShortFormat);
    return text.contains(' ') ? '"' + text + '"' : text;
}

/** The lines with "~" for the decimal point and "{n}" for the day n of January 2024, as they stand in a file. */
QStringList localized(QStringList lines)
{
    for (QString &line : lines) {
        line.replace('~', QLocale::system().decimalPoint());
        for (int day = 1; day <= 9; ++day)
            line.replace(QStringLiteral("{%1}").arg(day), date(QDate(2024, 1, day)));
    }
    return lines;
}

} // namespace

void ListPrintModelsTest::init()
{
    m_data.clear();
    m_data.settings().sellerName = QString::fromUtf8(u8"Myyjä");
    m_customers.clear();
    m_invoices.clear();
    m_accounts.clear();
}

/**
 * Four invoices; number, date, due date, delivery date, customer, sum at 14 %, sum at 25,5 %, balance:
 * 1 on the 4th, 5th, 9th, "b" (9),  100,00,  0,00, 5,00
 * 2 on the 3rd, 5th,    , "B" (10),  20,00, 50,00, 0,00
 * 3 on the 2nd, 6th, 1st, "a" (2),   70,00,  0,00, 3,00
 * 4 on the 1st,    , 2nd, unknown,    0,00, 60,00, 4,00
 */
void ListPrintModelsTest::addInvoices()
{
    m_customers = {m_data.addCustomer(9, "b"), m_data.addCustomer(10, "B"), m_data.addCustomer(2, "a"), 999};
    const QDate newYear(2024, 1, 1);
    const struct {
        int day, dueDay, deliveryDay, low, high, balance;
    } rows[] = {{4, 5, 9, 10000, 0, 500}, {3, 5, 0, 2000, 5000, 0}, {2, 6, 1, 7000, 0, 300}, {1, 0, 2, 0, 6000, 400}};
    for (int i = 0; i < 4; ++i) {
        Invoice invoice;
        invoice.number = i + 1;
        invoice.type = i;
        invoice.customerId = m_customers.at(i);
        const auto day = [newYear](int day) { return day ? newYear.addDays(day - 1) : QDate(); };
        invoice.date = day(rows[i].day);
        invoice.dueDate = day(rows[i].dueDay);
        invoice.deliveryDate = day(rows[i].deliveryDay);
        invoice.totalAmount = rows[i].low + rows[i].high;
        invoice.balance = rows[i].balance;
        invoice.referenceNumber = "1234561";
        m_invoices << m_data.add(invoice);
        if (rows[i].low)
            m_data.addRow(m_invoices.last(), rows[i].low, 1400, 0);
        if (rows[i].high)
            m_data.addRow(m_invoices.last(), rows[i].high, 2550, 1);
    }
    m_data.fetch();
}

void ListPrintModelsTest::invoiceValues()
{
    addInvoices();
    InvoiceListPrintModel model(m_data.registry());
    model.criteria()->numberFrom = 1;
    QVERIFY(model.run());
    QCOMPARE(each(model, "invoices/*/number"), QString("1 2 3 4"));
    QCOMPARE(each(model, "invoices/*/type"), QString("0 1 2 3")); // as stored
    QCOMPARE(each(model, "invoices/*/hasDeliveryDate"), QString("true false true true"));
    QCOMPARE(each(model, "invoices/*/totalAmount"), QString("10000 7000 7000 6000"));
    QCOMPARE(each(model, "invoices/*/totalVatAmount"), QString("1228 1262 860 1219"));
    QCOMPARE(each(model, "invoices/*/totalAmountVatExcluded"), QString("8772 5738 6140 4781"));
    QCOMPARE(each(model, "invoices/*/customer/number"), QString("9 10 2 -"));
    QCOMPARE(each(model, "invoices/*/referenceNumber"), QString("12 34561 12 34561 12 34561 12 34561"));
    QCOMPARE(each(model, "vat/*/percent"), QString("1400 2550"));
    QCOMPARE(each(model, "vat/*/amount"), QString("19000 11000"));
    // Of the list's sums, which differ by a cent from the sums of the invoices' VAT.
    QCOMPARE(each(model, "vat/*/vatAmount"), QString("2333 2235"));
    QCOMPARE(model.value(QString("totalVatAmount")), QVariant(2333 + 2235));
    QCOMPARE(model.value(QString("totalAmountVatExcluded")), QVariant(30000 - 2333 - 2235));
    QCOMPARE(model.value(QString("totalAmount")), QVariant(30000));
    QCOMPARE(model.value(QString("totalBalance")), QVariant(1200));
    QCOMPARE(model.value(QString("name")), QVariant(QString::fromUtf8(u8"Myyjä")));
    QCOMPARE(each(model, "criteria/*"), QString("Laskut 1 -"));
    for (const char *path : {"invoices/4/number", "invoices/0", "invoices/0/items/length", "criteria/1", "criteria",
                             "columns", "columns/", "columns/name", "balance", "title"})
        QVERIFY2(!model.value(QString(path)).isValid(), path);
}

void ListPrintModelsTest::invoiceOrders_data()
{
    QTest::addColumn<int>("order");
    QTest::addColumn<QString>("numbers");
    QTest::newRow("number") << 0 << "1 2 3 4";
    QTest::newRow("date") << 1 << "4 3 2 1";
    QTest::newRow("due date, none first, equal ones by number") << 2 << "4 1 2 3";
    QTest::newRow("delivery date") << 3 << "2 3 4 1";
    QTest::newRow("customer number, unknown first") << 4 << "4 3 1 2";
    QTest::newRow("customer name by code units") << 5 << "4 2 3 1";
    QTest::newRow("total without VAT") << 6 << "4 2 3 1";
    QTest::newRow("VAT") << 7 << "3 4 1 2";
    QTest::newRow("total, equal ones by number") << 8 << "4 2 3 1";
    QTest::newRow("balance") << 9 << "2 3 4 1";
    QTest::newRow("number, descending") << int(InvoiceListPrintModel::byNumberDescending) << "4 3 2 1";
    QTest::newRow("below the first") << -1 << "1 2 3 4";
    QTest::newRow("past the last") << 11 << "1 2 3 4";
}

void ListPrintModelsTest::invoiceOrders()
{
    addInvoices();
    InvoiceListPrintModel model(m_data.registry());
    QVERIFY(model.run());
    QFETCH(int, order);
    model.sort(order);
    QTEST(each(model, "invoices/*/number"), "numbers");
}

/** Sorting before the list is loaded sorts it all the same, by VAT too, which comes with the rows. */
void ListPrintModelsTest::invoiceOrderSurvivesRun()
{
    addInvoices();
    InvoiceListPrintModel model(m_data.registry());
    model.sort(InvoiceListPrintModel::byVatAmount);
    QVERIFY(model.run());
    QCOMPARE(each(model, "invoices/*/number"), QString("3 4 1 2"));
    model.criteria()->descending = true;
    model.criteria()->limit = 2;
    model.sort(InvoiceListPrintModel::byNumber);
    QVERIFY(model.run());
    QCOMPARE(each(model, "invoices/*/number"), QString("3 4"));
    QCOMPARE(model.value(QString("totalAmount")), QVariant(13000)); // not added to the sums before
}

void ListPrintModelsTest::columns()
{
    const QStringList names = QString("number date dueDate deliveryDate customerNumber customerName "
                                      "totalAmountVatExcluded totalVatAmount totalAmountVatIncluded balance "
                                      "referenceNumber")
                                  .split(' ');
    InvoiceListPrintModel invoices(m_data.registry());
    for (int i = 0; i < names.size(); ++i)
        QCOMPARE(invoices.value("columns/" + names.at(i)), QVariant(i < 9)); // the default
    const QStringList paymentNames = QString("number date dueDate deliveryDate customerNumber customerName totalAmount "
                                             "paymentAmount paymentDate bankAccount")
                                         .split(' ');
    PaymentPrintModel payments(m_data.registry());
    for (int i = 0; i < paymentNames.size(); ++i) {
        invoices.setColumnFlags(1 << i);
        payments.setColumnFlags(1 << i);
        for (int j = 0; j < paymentNames.size(); ++j) {
            QCOMPARE(invoices.value("columns/" + names.at(j)), QVariant(i == j));
            QCOMPARE(payments.value("columns/" + paymentNames.at(j)), QVariant(i == j));
        }
    }
    payments.setColumnFlags(0);
    QCOMPARE(payments.value(QString("columns/number")), QVariant(false));
}

/** A list for a date tells the balances of that date. */
void ListPrintModelsTest::balanceDate()
{
    addInvoices();
    addPayments();
    InvoiceListPrintModel model(m_data.registry());
    model.criteria()->balanceDate = QDate(2024, 1, 7);
    model.criteria()->paymentState = InvoiceCriteria::open;
    QVERIFY(model.run());
    QCOMPARE(each(model, "invoices/*/number"), QString("1 2 3 4"));
    QCOMPARE(each(model, "invoices/*/balance"), QString("5000 7000 7000 6000"));
    QCOMPARE(model.value(QString("totalBalance")), QVariant(25000));
    QCOMPARE(each(model, "criteria/*"), QString("Avoimet laskut 7.1.2024"));
    model.criteria()->paymentState = InvoiceCriteria::paid;
    model.criteria()->balanceDate = QDate(2024, 1, 9);
    QVERIFY(model.run());
    QCOMPARE(each(model, "invoices/*/number"), QString("1 2"));
    QCOMPARE(model.value(QString("totalAmount")), QVariant(17000)); // rows of other invoices do not count
}

void ListPrintModelsTest::invoiceCsv()
{
    addInvoices();
    m_data.registry()->appSettings()->setValue(
        "invoiceListPrint/extraFields", QString::fromUtf8(u8" maa ,ALV-erittely,, tuntematon , sähköpostiosoite"));
    InvoiceListPrintModel model(m_data.registry());
    model.criteria()->numberTo = 2;
    QVERIFY(model.run());
    QCOMPARE(csv(model),
             localized({
                 QString::fromUtf8(
                     u8"Numero;Päivämäärä;Eräpäivä;Toimituspäivä;Asiakasnumero;Nimi;Veroton;ALV;Verollinen;"
                     u8"\"Avoin saldo\";Viitenumero;maa;\"Veroton (14 %)\";\"ALV (14 %)\";\"Verollinen (14 %)\";"
                     u8"\"Veroton (25~5 %)\";\"ALV (25~5 %)\";\"Verollinen (25~5 %)\";sähköpostiosoite"),
                 "1;{4};{5};{9};9;b;87~72;12~28;100~00;5~00;1234561;;87~72;12~28;100~00;0~00;0~00;0~00;",
                 "2;{3};{5};;10;B;57~38;12~62;70~00;0~00;1234561;;17~54;2~46;20~00;39~84;10~16;50~00;",
                 "",
             }));
}

/** Payments of the invoices 2, 1 (in two parts, the later first by amount) and 4. */
void ListPrintModelsTest::addPayments()
{
    BankAccount account;
    account.name = "Pankki";
    account.shortName = "PA";
    account.iban = "FI2112345600000785";
    account.bic = "NDEAFIHH";
    m_accounts << m_data.add(account);
    const struct {
        int invoice, day, account, amount;
    } rows[] = {{1, 8, 0, 7000}, {0, 6, 0, 5000}, {0, 9, -1, 5000}, {3, 8, 0, 1000}};
    for (const auto &row : rows) {
        Payment payment;
        payment.invoiceId = m_invoices.at(row.invoice);
        payment.date = QDate(2024, 1, row.day);
        payment.bankAccountId = row.account < 0 ? -1 : m_accounts.at(row.account);
        payment.amount = row.amount;
        m_data.add(payment);
    }
    m_data.fetch();
}

void ListPrintModelsTest::paymentValues()
{
    addInvoices();
    addPayments();
    PaymentPrintModel model(m_data.registry());
    QVERIFY(model.run());
    QCOMPARE(each(model, "payments/*/invoice/number"), QString("1 2 4 1")); // by date
    QCOMPARE(each(model, "payments/*/date"), QString("2024-01-06 2024-01-08 2024-01-08 2024-01-09"));
    QCOMPARE(each(model, "payments/*/amount"), QString("5000 7000 1000 5000"));
    QCOMPARE(each(model, "payments/*/invoice/type"), QString("0 1 3 0"));
    QCOMPARE(each(model, "payments/*/invoice/totalAmount"), QString("10000 7000 6000 10000"));
    QCOMPARE(each(model, "payments/*/customer/name"), QString("b B - b"));
    QCOMPARE(each(model, "payments/*/bankAccount/shortName"), QString("PA PA PA -"));
    QCOMPARE(model.value(QString("payments/0/bankAccount/iban")), QVariant("FI21 1234 5600 0007 85"));
    QCOMPARE(model.value(QString("payments/0/bankAccount/bban")), QVariant("123456-785"));
    QCOMPARE(model.value(QString("totalPaymentAmount")), QVariant(18000));
    QCOMPARE(model.value(QString("totalAmount")), QVariant(23000)); // invoice 1 once
    model.paymentCriteria()->dateFrom = QDate(2024, 1, 9);
    QVERIFY(model.run());
    QCOMPARE(each(model, "payments/*/invoice/number"), QString("1"));
    QCOMPARE(each(model, "criteria/*"), QString("Maksusuoritukset ajalta 9.1.2024 -"));
}

void ListPrintModelsTest::paymentOrders_data()
{
    QTest::addColumn<int>("order");
    QTest::addColumn<QString>("amounts"); // payments of 1, 2, 4 and 1: a, b, c and d
    QTest::newRow("invoice number") << 0 << "a d b c";
    QTest::newRow("invoice date") << 1 << "c b a d";
    QTest::newRow("due date") << 2 << "c a b d";
    QTest::newRow("delivery date") << 3 << "b c a d";
    QTest::newRow("customer number") << 4 << "c a d b";
    QTest::newRow("customer name by code units") << 5 << "c b a d";
    QTest::newRow("invoice total") << 6 << "c b a d";
    QTest::newRow("payment amount") << 7 << "c a d b";
    QTest::newRow("payment date") << 8 << "a b c d";
    QTest::newRow("bank account, none first") << 9 << "d a b c";
    QTest::newRow("descending invoice number") << 10 << "c b a d";
    QTest::newRow("unknown") << 11 << "a b c d";
}

void ListPrintModelsTest::paymentOrders()
{
    addInvoices();
    addPayments();
    PaymentPrintModel model(m_data.registry());
    QVERIFY(model.run());
    QHash<int, QString> names; // by payment id
    for (int i = 0; i < model.entries().size(); ++i)
        names.insert(model.entries().at(i).payment.id, QString(QChar('a' + i)));
    QFETCH(int, order);
    model.sort(order);
    QStringList actual;
    for (const PaymentPrintModel::Entry &entry : model.entries())
        actual << names.value(entry.payment.id);
    QTEST(actual.join(' '), "amounts");
}

void ListPrintModelsTest::paymentCsv()
{
    addInvoices();
    addPayments();
    m_data.registry()->appSettings()->setValue("paymentPrint/extraFields", "bic, IBAN ,tilinumero,pankki,maa,muu");
    PaymentPrintModel model(m_data.registry());
    QVERIFY(model.run());
    model.sort(PaymentPrintModel::byNumber);
    const QString account = "Pankki;NDEAFIHH;\"FI21 1234 5600 0007 85\";123456-785;Pankki;";
    QCOMPARE(
        csv(model),
        localized({
            QString::fromUtf8(u8"Numero;Päivämäärä;Eräpäivä;Asiakasnumero;Nimi;Yhteensä;Suoritus;Maksupäivä;Pankkitili;"
                              u8"bic;IBAN;tilinumero;pankki;maa"),
            "1;{4};{5};9;b;100~00;50~00;{6};" + account,
            "1;{4};{5};9;b;100~00;50~00;{9};;;;;;",
            "2;{3};{5};10;B;70~00;70~00;{8};" + account,
            "4;{1};;;;60~00;10~00;{8};" + account,
            "",
        }));
}

void ListPrintModelsTest::customers()
{
    Customer customer;
    customer.number = 3;
    customer.name = "b";
    customer.streetName = "Katu 1";
    customer.vatNumber = "0737546-2";
    customer.paymentTerms = "7 pv";
    customer.setProperty("e1", "E1");
    customer.setProperty("c2", "C2");
    m_data.add(customer);
    m_data.addCustomer(1, "b");
    m_data.addCustomer(2, "B");
    customer.clear();
    customer.number = 0;
    customer.deleted = true;
    m_data.add(customer);
    m_data.fetch();
    CustomerListPrintModel model(m_data.registry());
    model.copyCustomersFromRegistry();
    QCOMPARE(each(model, "customers/*/number"), QString("1 2 3")); // no removed ones
    model.sort(CustomerListPrintModel::byName);
    QCOMPARE(each(model, "customers/*/number"), QString("2 1 3")); // "B" before "b", equal ones as they were
    model.sort(CustomerListPrintModel::byContact + 1);
    QCOMPARE(each(model, "customers/*/number"), QString("2 1 3"));
    QCOMPARE(model.value(QString("customers/2/vatNumber")), QVariant("0737546-2"));
    QVERIFY(!model.value(QString("customers/2/paymentTerms")).isValid());
    QCOMPARE(model.value(QString("name")), QVariant(QString::fromUtf8(u8"Myyjä")));
    QCOMPARE(csv(model),
             (QStringList{QString::fromUtf8(u8"Nro;Nimi;Lähiosoite;Postinumero;Postitoimipaikka;Maa;Yhteyshenkilö;"
                                            u8"Sähköpostiosoite;Puhelinnumero;VAT-numero;Viitenumero;Maksuehdot;"
                                            u8"\"Verkkolaskuvälittäjän tunnus\";Verkkolaskuosoite;\"Oma 1\";\"Oma 2\""),
                          "2;B;;;;;;;;;;;;;;", "1;b;;;;;;;;;;;;;;", "3;b;\"Katu 1\";;;;;;;0737546-2;;\"7 pv\";E1;;;C2",
                          ""}));
}

void ListPrintModelsTest::products()
{
    Product product;
    const struct {
        const char *number, *name;
        long long amount;
        bool vatExcluded;
    } rows[] = {{"10", "b", 100000, true}, {"9", "B", 120000, false}, {"A", "a", 90000, false}};
    for (const auto &row : rows) {
        product.number = row.number;
        product.name = row.name;
        product.unitCode = "kpl";
        product.amount = row.amount;
        product.vatExcluded = row.vatExcluded;
        product.vatRate = 2550;
        m_data.add(product);
    }
    m_data.fetch();
    ProductListPrintModel model(m_data.registry());
    model.copyProductsFromRegistry();
    QCOMPARE(each(model, "products/*/amount"), QString("125500 120000 90000"));
    QCOMPARE(each(model, "products/*/amountVatExcluded"), QString("100000 95600 71700"));
    model.sort(ProductListPrintModel::byAmountVatIncluded);
    QCOMPARE(each(model, "products/*/number"), QString("A 9 10"));
    model.sort(ProductListPrintModel::byName);
    QCOMPARE(each(model, "products/*/number"), QString("9 A 10"));
    model.sort(ProductListPrintModel::byNumber); // as texts
    QCOMPARE(each(model, "products/*/number"), QString("10 9 A"));
    QCOMPARE(csv(model),
             localized({QString::fromUtf8(u8"Nro;Nimi;Yksikkö;Veroton;Verollinen;ALV-%;Tuoteryhmä"),
                        "10;b;kpl;10~00;12~55;25~5;", "9;B;kpl;9~56;12~00;25~5;", "A;a;kpl;7~17;9~00;25~5;", ""}));
}

void ListPrintModelsTest::emptyLists()
{
    CustomerListPrintModel customers(m_data.registry());
    ProductListPrintModel products(m_data.registry());
    InvoiceListPrintModel invoices(m_data.registry());
    PaymentPrintModel payments(m_data.registry());
    const struct {
        PrintModel *model;
        const char *list, *title;
    } rows[] = {{&customers, "customers", "Asiakasluettelo"},
                {&products, "products", "Tuoteluettelo"},
                {&invoices, "invoices", "Laskuluettelo"},
                {&payments, "payments", u8"Suorituspäiväkirja"}};
    for (const auto &row : rows) {
        QVERIFY(row.model->run());
        QCOMPARE(row.model->value(row.list + QString("/length")), QVariant(0));
        QVERIFY(!row.model->value(row.list + QString("/0/number")).isValid());
        QCOMPARE(row.model->title(), QString::fromUtf8(row.title));
        QCOMPARE(csv(*row.model).size(), 2); // the header and its end
        QVERIFY(!row.model->exportToCSV("/nonexistent/a.csv", ","));
        QCOMPARE(row.model->lastError(), QString("No such file or directory"));
    }
    QCOMPARE(invoices.value(QString("criteria/length")), QVariant(0));
    QCOMPARE(payments.value(QString("totalAmount")), QVariant(0));
}

void ListPrintModelsTest::queryFailures()
{
    addInvoices();
    InvoiceListPrintModel invoices(m_data.registry());
    PaymentPrintModel payments(m_data.registry());
    QVERIFY(invoices.run());
    m_data.database().run("ALTER TABLE invoice_item RENAME TO gone");
    const bool listed = invoices.run();
    m_data.database().run("ALTER TABLE gone RENAME TO invoice_item");
    m_data.database().run("ALTER TABLE payment RENAME TO gone");
    const bool found = payments.run();
    m_data.database().run("ALTER TABLE gone RENAME TO payment");
    QVERIFY(!listed && invoices.lastError().contains("invoice_item"));
    QCOMPARE(invoices.value(QString("invoices/length")), QVariant(0));
    QVERIFY(!found && payments.lastError().contains("payment"));
}

QTEST_MAIN(ListPrintModelsTest)
#include "tst_listprintmodels.moc"

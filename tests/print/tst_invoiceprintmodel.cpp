#include "invoiceprintmodel.h"

#include "printdatabase.h"
#include "xmlscriptmodel.h"

#include <QBuffer>

/** The value paths of invoices, and their CSV file. */
class InvoicePrintModelTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void values_data();
    void values();
    void undefined_data();
    void undefined();
    void missingRecords();
    void typeCodes_data();
    void typeCodes();
    void shortWebAddresses_data();
    void shortWebAddresses();
    void settingKeys();
    void rowsBelongToTheirInvoice();
    void roundingModes_data();
    void roundingModes();
    void order_data();
    void order();
    void copies();
    void logo();
    void xmlModel_data();
    void xmlModel();
    void csv();
    void csvOfLargePrice();
    void csvFailures();
    void queryFailure();

private:
    void addInvoice();

    PrintDatabase m_data;
    Customer m_customer;
    Invoice m_invoice;
};

void InvoicePrintModelTest::init()
{
    m_data.clear();
    m_customer.clear();
    m_invoice.clear();
}

/** One invoice with rows of two VAT rates, the first in two prices; two accounts of which one is printed. */
void InvoicePrintModelTest::addInvoice()
{
    Settings &settings = m_data.settings();
    settings.sellerName = QString::fromUtf8(u8"Myyjä Oy");
    settings.setProperty("settings/periodForComplaints", "8 pv");
    settings.setProperty("seller/webAddress", "https://myyja.example/");

    m_customer.number = 12;
    m_customer.name = QString::fromUtf8(u8"Äijä; Oy");
    m_customer.vatNumber = "0737546-2";
    m_customer.setProperty("l", "sv");
    m_customer.setProperty("c2", "oma");
    m_customer.setProperty("e1", "NDEAFIHH");
    m_customer.setProperty("e2", "003712345678");
    m_invoice.customerId = m_data.add(m_customer);
    m_invoice.number = 5;
    m_invoice.date = QDate(2024, 2, 29);
    m_invoice.dueDate = QDate(2024, 3, 14);
    m_invoice.paymentTerms = "14 pv";
    m_invoice.interestOnArrears = 850;
    m_invoice.referenceNumber = "12344";
    m_invoice.totalAmount = 5199;
    m_invoice.balance = 100;
    m_invoice.setProperty("t1", QString::fromUtf8(u8"yksi\nkaksi"));
    m_invoice.id = m_data.add(m_invoice);

    InvoiceItem item;
    item.invoiceId = m_invoice.id;
    item.productNumber = "A1";
    item.productName = "Tuote \"x\"";
    item.quantity = 20000;
    item.unitCode = "kpl";
    item.amount = 125000;
    item.vatRate = 2550;
    item.vatExcluded = true;
    item.discount = 1000;
    item.rowNumber = 1;
    m_data.add(item); // 22,50 + 5,74
    m_data.addRow(m_invoice.id, 1140, 1400, 2);
    m_data.addRow(m_invoice.id, 1235, 1400, 3);

    BankAccount account;
    account.name = "Piilo";
    account.iban = "FI7944052020036082";
    account.visible = false;
    m_data.add(account);
    account.name = "Pankki";
    account.iban = "FI2112345600000785";
    account.visible = true;
    account.rowNumber = 1;
    m_data.add(account);
    m_data.fetch();
}

void InvoicePrintModelTest::values_data()
{
    QTest::addColumn<QVariant>("value");
    const QString barcode = "421"
                            "12345600000785"
                            "00005199"
                            "000"
                            "00000000000000012344"
                            "240314";
    const struct {
        const char *path;
        QVariant value;
    } rows[] = {
        {"invoices/length", 1},
        {"invoices/0/number", 5},
        {"invoices/0/number/and/more", 5},
        {"invoices/0/date", QDate(2024, 2, 29)},
        {"invoices/0/deliveryDate", QDate()},
        {"invoices/0/hasDeliveryDate", false},
        {"invoices/0/paymentTerms", "14 pv"},
        {"invoices/0/interestOnArrears", 850},
        {"invoices/0/totalAmount", 5199},
        {"invoices/0/balance", 100},
        {"invoices/0/totalAmountVatExcluded", 2250 + 2083},
        {"invoices/0/totalVatAmount", 574 + 292},
        {"invoices/0/periodForComplaints", "8 pv"},
        {"invoices/0/referenceNumber", "12344"},
        {"invoices/0/referenceNumberSpy", "00000000000000012344"},
        {"invoices/0/referenceNumberRf", "RF08 1234 4"},
        {"invoices/0/referenceNumberRfRaw", "RF0812344"},
        {"invoices/0/barcode", barcode},
        {"invoices/0/barcode4", barcode},
        {"invoices/0/barcode5", "521"
                                "12345600000785"
                                "00005199"
                                "00000000000000000812344"
                                "240314"},
        {"invoices/0/noticeText1", "yksi\nkaksi"},
        {"invoices/0/noticeText2", ""},
        {"invoices/0/items/length", 3},
        {"invoices/0/items/0/productNumber", "A1"},
        {"invoices/0/items/0/amount", 156900LL},
        {"invoices/0/items/0/amountVatExcluded", 125000LL},
        {"invoices/0/items/0/vatAmount", 31900LL},
        {"invoices/0/items/0/quantity", 20000},
        {"invoices/0/items/0/vatRate", 2550},
        {"invoices/0/items/0/discountPercent", 1000},
        {"invoices/0/items/0/totalAmount", 2824},
        {"invoices/0/items/0/totalAmountVatExcluded", 2250},
        {"invoices/0/items/0/totalVatAmount", 574},
        {"invoices/0/items/0/discountAmount", 314},
        {"invoices/0/items/2/totalAmount", 1235},
        {"invoices/0/vat/length", 2},
        {"invoices/0/vat/0/percent", 1400},
        {"invoices/0/vat/0/amount", 2375},
        {"invoices/0/vat/0/amountVatExcluded", 2083},
        {"invoices/0/vat/0/vatAmount", 292},
        {"invoices/0/vat/1/percent", 2550},
        {"invoices/0/vat/1/vatAmount", 574},
        {"invoices/0/customer/number", 12},
        {"invoices/0/customer/vatNumber", "0737546-2"},
        {"invoices/0/customer/businessId", "0737546-2"},
        {"invoices/0/customer/hasBusinessId", true},
        {"invoices/0/customer/hasVatNumber", false},
        {"invoices/0/customer/language", "sv"},
        {"invoices/0/customer/custom1", ""},
        {"invoices/0/customer/custom2", "oma"},
        {"invoices/0/customer/intermediatorId", "NDEAFIHH"},
        {"invoices/0/customer/receiverId", "003712345678"},
        {"seller/name", QString::fromUtf8(u8"Myyjä Oy")},
        {"seller/name/extra", QString::fromUtf8(u8"Myyjä Oy")},
        {"seller/phoneNumber", ""},
        {"seller/webAddressShort", "myyja.example"},
        {"seller/hasLogo", false},
        {"seller/bankAccounts/length", 1},
        {"seller/bankAccounts/0/name", "Pankki"},
        {"seller/bankAccounts/0/iban", "FI21 1234 5600 0007 85"},
        {"seller/bankAccounts/0/ibanRaw", "FI2112345600000785"},
        {"seller/bankAccounts/0/bban", "123456-785"},
        {"seller/bankAccounts/0/bbanRaw", "12345600000785"},
        {"seller/bankAccounts/0/visible", true},
        {"seller/bankAccountsAll/length", 2},
        {"seller/bankAccountsAll/0/visible", false},
    };
    for (const auto &row : rows)
        QTest::newRow(row.path) << row.value;
}

void InvoicePrintModelTest::values()
{
    addInvoice();
    InvoicePrintModel model(m_data.registry());
    QVERIFY(model.run());
    const QVariant actual = model.value(QString(QTest::currentDataTag()));
    QFETCH(QVariant, value);
    QCOMPARE(actual.type(), value.type()); // scripts see the type
    QCOMPARE(actual, value);
}

void InvoicePrintModelTest::undefined_data()
{
    QTest::addColumn<QString>("path");
    for (const char *path : {"",
                             "/",
                             "invoices",
                             "invoices/",
                             "invoices/0",
                             "invoices/0/",
                             "invoices/1/number",
                             "invoices/-1/number",
                             "invoices/x/number",
                             "invoices/1.0/number",
                             "invoices/ 0/number",
                             "invoices//0/number",
                             "Invoices/length",
                             "invoices/Length",
                             "invoices/0/Number",
                             "invoices/0/items",
                             "invoices/0/items/3/text",
                             "invoices/0/items/0",
                             "invoices/0/vat/2/percent",
                             "invoices/0/customer",
                             "invoices/0/customer/id",
                             "seller",
                             "Seller/name",
                             "seller/logo",
                             "seller/bankAccounts/1/name",
                             "settings",
                             "settings/senderId",
                             "invoice/number"})
        QTest::newRow(*path ? path : "empty") << QString(path);
}

void InvoicePrintModelTest::undefined()
{
    addInvoice();
    InvoicePrintModel model(m_data.registry());
    QVERIFY(model.run());
    QFETCH(QString, path);
    QVERIFY(!model.value(path).isValid());
}

void InvoicePrintModelTest::missingRecords()
{
    m_invoice.customerId = 999; // not in the registry
    m_data.add(m_invoice);
    InvoicePrintModel model(m_data.registry());
    QCOMPARE(model.value(QString("invoices/length")), QVariant(0)); // before run()
    QVERIFY(model.run());
    QVERIFY(!model.value(QString("invoices/0/customer/name")).isValid());
    QVERIFY(!model.value(QString("invoices/0/customer/hasVatNumber")).isValid());
    QCOMPARE(model.value(QString("invoices/0/items/length")), QVariant(0));
    QCOMPARE(model.value(QString("invoices/0/vat/length")), QVariant(0));
    QCOMPARE(model.value(QString("invoices/0/totalVatAmount")), QVariant(0));
    QCOMPARE(model.value(QString("invoices/0/barcode")), QVariant(QString())); // no account
}

void InvoicePrintModelTest::typeCodes_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("printType");
    QTest::addColumn<int>("code");
    QTest::newRow("invoice") << 0 << 0 << 0;
    QTest::newRow("credit note") << 2 << 0 << 2;
    QTest::newRow("stored as 3") << 3 << 0 << 5;
    QTest::newRow("reminder of a credit note") << 2 << 3 << 3;
    QTest::newRow("delivery note") << 0 << 5 << 5;
}

void InvoicePrintModelTest::typeCodes()
{
    QFETCH(int, type);
    QFETCH(int, printType);
    m_invoice.type = type;
    m_data.add(m_invoice);
    InvoicePrintModel model(m_data.registry());
    model.setPrintType(printType);
    QVERIFY(model.run());
    QFETCH(int, code);
    QCOMPARE(model.value(QString("invoices/0/type")), QVariant(code));
}

void InvoicePrintModelTest::shortWebAddresses_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<QString>("shown");
    QTest::newRow("host") << "https://a.fi/"
                          << "a.fi";
    QTest::newRow("path keeps its slash") << "http://a.fi/b/"
                                          << "a.fi/b/";
    QTest::newRow("path without one") << "http://a.fi/b"
                                      << "a.fi/b";
    QTest::newRow("no protocol") << "a.fi/"
                                 << "a.fi";
    QTest::newRow("case counts") << "HTTP://a.fi/"
                                 << "HTTP://a.fi/";
    QTest::newRow("one protocol only") << "http://https://a.fi"
                                       << "https://a.fi";
    QTest::newRow("a slash alone") << "/"
                                   << "";
    QTest::newRow("none") << ""
                          << "";
}

void InvoicePrintModelTest::shortWebAddresses()
{
    QFETCH(QString, address);
    m_data.settings().setProperty("seller/webAddress", address);
    InvoicePrintModel model(m_data.registry());
    QTEST(model.value(QString("seller/webAddressShort")).toString(), "shown");
}

void InvoicePrintModelTest::settingKeys()
{
    InvoicePrintModel model(m_data.registry());
    const auto value = [&model](const char *key) { return model.value("settings/" + QString(key)); };
    QCOMPARE(value("barcodeVisible"), QVariant(true));
    QCOMPARE(value("logoHeight"), QVariant(17.0));
    QVERIFY(!value("footerText1").isValid());
    Settings &settings = m_data.settings();
    // As the database keeps them: texts.
    settings.propertiesFromString("invoiceForm/barcodeVisible=false\ninvoiceForm/logoHeight=12.5\n"
                                  "invoiceForm/footer/text2=kaksi\ninvoiceForm/footer/textX=iks\n"
                                  "invoiceForm/footer/text=\nfinvoice/epiInstructionId=epi\n");
    QCOMPARE(value("barcodeVisible"), QVariant(false));
    QCOMPARE(value("logoHeight"), QVariant(12.5));
    QCOMPARE(value("footerText2"), QVariant("kaksi"));
    QCOMPARE(value("footerTextX"), QVariant("iks"));
    QCOMPARE(value("footerText"), QVariant(QString("")));
    QCOMPARE(value("epiPaymentInstructionId"), QVariant("epi"));
    QVERIFY(!value("FooterText2").isValid());
    QVERIFY(!value("epiInstructionId").isValid());
}

/** Two invoices of one number: the rows come mixed, and each invoice still has its own, in their order. */
void InvoicePrintModelTest::rowsBelongToTheirInvoice()
{
    m_invoice.number = 7;
    const int first = m_data.add(m_invoice);
    const int second = m_data.add(m_invoice);
    for (int row = 0; row < 3; ++row) {
        m_data.addRow(first, 100 + row, 2550, row);
        m_data.addRow(second, 200 + row, 1400, row);
    }
    m_invoice.number = 8;
    m_data.add(m_invoice); // without rows
    InvoicePrintModel model(m_data.registry());
    QVERIFY(model.run());
    const auto value = [&model](const char *path) { return model.value(QString(path)).toInt(); };
    QCOMPARE(value("invoices/length"), 3);
    for (int i : {1, 0, 2, 1, 0}) { // in any order
        const QByteArray invoice = "invoices/" + QByteArray::number(i);
        QCOMPARE(value(invoice + "/items/length"), i == 2 ? 0 : 3);
        QCOMPARE(value(invoice + "/items/2/totalAmount"), i == 0 ? 102 : i == 1 ? 202 : 0);
        QCOMPARE(value(invoice + "/vat/0/percent"), i == 0 ? 2550 : i == 1 ? 1400 : 0);
        QCOMPARE(value(invoice + "/vat/0/amount"), i == 0 ? 303 : i == 1 ? 603 : 0);
    }
}

void InvoicePrintModelTest::roundingModes_data()
{
    QTest::addColumn<QVariant>("mode");
    QTest::addColumn<int>("vatAmount");
    QTest::newRow("unset") << QVariant() << 31;
    QTest::newRow("per rate") << QVariant("1") << 31;
    QTest::newRow("per row") << QVariant("2") << 30;
}

/** Three rows of 0,50 hold 0,1016 of VAT each: 0,30 added up, 0,3048 together. */
void InvoicePrintModelTest::roundingModes()
{
    QFETCH(QVariant, mode);
    if (mode.isValid())
        m_data.settings().setProperty("invoiceForm/roundingMode", mode);
    const int id = m_data.add(m_invoice);
    for (int row = 0; row < 3; ++row)
        m_data.addRow(id, 51, 2550, row);
    InvoicePrintModel model(m_data.registry());
    QVERIFY(model.run());
    QTEST(model.value(QString("invoices/0/totalVatAmount")).toInt(), "vatAmount");
    InvoicePrintModel copy(m_data.registry());
    copy.copyInvoice(&model, 0);
    QTEST(copy.value(QString("invoices/0/vat/0/vatAmount")).toInt(), "vatAmount");
}

void InvoicePrintModelTest::order_data()
{
    QTest::addColumn<bool>("descending");
    QTest::addColumn<int>("limit");
    QTest::addColumn<QVector<int>>("numbers");
    QTest::newRow("all") << false << -1 << QVector<int>{1, 2, 3};
    QTest::newRow("first two") << false << 2 << QVector<int>{1, 2};
    QTest::newRow("last two, still ascending on paper") << true << 2 << QVector<int>{2, 3};
}

void InvoicePrintModelTest::order()
{
    for (int number : {3, 1, 2}) {
        m_invoice.number = number;
        m_data.addRow(m_data.add(m_invoice), number, 0);
    }
    InvoicePrintModel model(m_data.registry());
    QFETCH(bool, descending);
    QFETCH(int, limit);
    model.criteria()->descending = descending;
    model.criteria()->limit = limit;
    QVERIFY(model.run());
    QFETCH(QVector<int>, numbers);
    QCOMPARE(model.invoiceCount(), numbers.size());
    for (int i = 0; i < numbers.size(); ++i) {
        QCOMPARE(model.invoice(i)->number, numbers.at(i));
        QCOMPARE(model.value(QStringLiteral("invoices/%1/items/0/totalAmount").arg(i)), QVariant(numbers.at(i)));
    }
}

void InvoicePrintModelTest::copies()
{
    for (int number : {1, 2}) {
        m_invoice.number = number;
        m_data.addRow(m_data.add(m_invoice), 100 * number, 2550);
    }
    InvoicePrintModel all(m_data.registry());
    QVERIFY(all.run());
    InvoicePrintModel single(m_data.registry());
    single.setPrintType(InvoicePrintModel::reminder);
    for (int i : {0, 1, 1, 0}) {
        single.clear();
        single.copyInvoice(&all, i);
        QCOMPARE(single.value(QString("invoices/length")), QVariant(1));
        QCOMPARE(single.value(QString("invoices/0/number")), QVariant(i + 1));
        QCOMPARE(single.value(QString("invoices/0/items/0/totalAmount")), QVariant(100 * (i + 1)));
        QCOMPARE(single.value(QString("invoices/0/vat/0/amount")), QVariant(100 * (i + 1)));
        QCOMPARE(single.value(QString("invoices/0/type")), QVariant(3));
    }
}

void InvoicePrintModelTest::logo()
{
    QImage image(4, 2, QImage::Format_RGB32);
    image.fill(Qt::red);
    QBuffer buffer(&m_data.settings().sellerLogo);
    QVERIFY(buffer.open(QIODevice::WriteOnly) && image.save(&buffer, "PNG"));
    InvoicePrintModel model(m_data.registry());
    QCOMPARE(model.value(QString("seller/hasLogo")), QVariant(true));
    QCOMPARE(model.image(QString("seller/logo")).size(), QSize(4, 2));
    for (const char *path : {"", "seller", "logo", "Seller/logo", "seller/Logo", "seller//logo"})
        QVERIFY2(model.image(QString(path)).isNull(), path);
    m_data.settings().sellerLogo = "no image";
    InvoicePrintModel broken(m_data.registry());
    QCOMPARE(broken.value(QString("seller/hasLogo")), QVariant(false));
}

void InvoicePrintModelTest::xmlModel_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("vatNumber");
    QTest::addColumn<QString>("businessId");
    QTest::newRow("business ID") << "0737546-2"
                                 << "FI07375462"
                                 << "0737546-2";
    QTest::newRow("Finnish VAT number") << "FI07375462"
                                        << "FI07375462"
                                        << "0737546-2";
    QTest::newRow("foreign VAT number") << "SE556677889901"
                                        << "SE556677889901"
                                        << "";
    QTest::newRow("neither") << "0737546-3"
                             << ""
                             << "";
}

void InvoicePrintModelTest::xmlModel()
{
    QFETCH(QString, field);
    m_customer.vatNumber = field;
    m_invoice.customerId = m_data.add(m_customer);
    m_invoice.number = 9;
    m_data.fetch();
    XmlScriptModel model(m_data.registry());
    QVERIFY(!model.value(QString("invoice/number")).isValid()); // no invoice
    m_data.add(m_invoice);
    QVERIFY(model.run());
    QTEST(model.value(QString("invoice/customer/vatNumber")).toString(), "vatNumber");
    QTEST(model.value(QString("invoice/customer/businessId")).toString(), "businessId");
    QFETCH(QString, vatNumber);
    QCOMPARE(model.value(QString("invoice/customer/hasVatNumber")), QVariant(!vatNumber.isEmpty()));
    QCOMPARE(model.value(QString("invoice/number")), QVariant(9));
    QVERIFY(!model.value(QString("invoices/length")).isValid());
    QVERIFY(!model.value(QString("invoice/0/number")).isValid());
    QCOMPARE(model.title(), QString());
}

void InvoicePrintModelTest::csv()
{
    addInvoice();
    InvoicePrintModel model(m_data.registry());
    QVERIFY(model.run());
    const QStringList lines = csvLines(model, m_data.filePath("a.csv"));
    const auto date = [](const QDate &date) {
        const QString text = QLocale::system().toString(date, QLocale::ShortFormat);
        return text.contains(' ') ? '"' + text + '"' : text;
    };
    QStringList expected{
        QString::fromUtf8(u8"Numero;Asiakasnumero;Nimi;Lähiosoite;Postinumero;Postitoimipaikka;Tyyppi;Päivämäärä;"
                          u8"Eräpäivä;Maksuehdot;Toimitus;Viitteenne;Viitteemme;Viivästyskorko;Viitenumero;Veroton;ALV;"
                          u8"Verollinen;\"Avoin saldo\""),
        QString::fromUtf8(u8"5;12;\"Äijä; Oy\";;;;lasku;%1;%2;\"14 pv\";;;;8~5;12344;43~33;8~66;51~99;1~00")
            .arg(date(m_invoice.date), date(m_invoice.dueDate)),
        QString::fromUtf8(u8"Numero;Tuotenumero;Nimi;Selite;Määrä;Yksikkö;à-hinta;Veroton;ALV-%;ALV;Verollinen"),
        "5;A1;\"Tuote \"\"x\"\"\";;2;kpl;12~50;22~50;25~5;5~74;28~24",
        "5;;;;1;;10~00;10~00;14;1~40;11~40",
        "5;;;;1;;10~83;10~83;14;1~52;12~35",
        "",
    };
    for (QString &line : expected)
        line.replace('~', QLocale::system().decimalPoint());
    QCOMPARE(lines, expected);
}

/** Four decimals of three million do not fit 32 bits. */
void InvoicePrintModelTest::csvOfLargePrice()
{
    m_data.addRow(m_data.add(m_invoice), 300000000, 0);
    InvoicePrintModel model(m_data.registry());
    QVERIFY(model.run());
    const QString sum = "3000000" + QString(QLocale::system().decimalPoint()) + "00";
    QCOMPARE(csvLines(model, m_data.filePath("a.csv")).at(3),
             QStringLiteral("0;;;;1;;%1;%1;0;%2;%1").arg(sum, "0" + sum.mid(7)));
}

void InvoicePrintModelTest::csvFailures()
{
    InvoicePrintModel model(m_data.registry());
    QVERIFY(!model.exportToCSV("/nonexistent/a.csv", ","));
    QCOMPARE(model.lastError(), QString("No such file or directory"));
    QVERIFY(!model.exportToCSV("/dev/full", ","));
    QCOMPARE(model.lastError(), QString("No space left on device"));
}

void InvoicePrintModelTest::queryFailure()
{
    m_data.database().run("ALTER TABLE invoice_item RENAME TO gone");
    InvoicePrintModel model(m_data.registry());
    const bool ok = model.run();
    m_data.database().run("ALTER TABLE gone RENAME TO invoice_item");
    QVERIFY(!ok);
    QVERIFY2(model.lastError().contains("invoice_item"), qPrintable(model.lastError()));
}

QTEST_MAIN(InvoicePrintModelTest)
#include "tst_invoiceprintmodel.moc"

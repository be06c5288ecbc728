#include "paper.h"
#include "samplecompany.h"

#include <QApplication>
#include <QtTest>

using Sample::Document;

Q_DECLARE_METATYPE(Sample::Document)

/** Prints documents of a sample company with the built-in layout and reads the paper. */
class InvoiceScriptTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase();
    void titles_data();
    void titles();
    void contents_data();
    void contents();
    void rowsOnPages_data();
    void rowsOnPages();
    void alignment();
    void barcode_data();
    void barcode();
    void longTexts_data();
    void longTexts();
    void oddSettings_data();
    void oddSettings();
    void severalInvoices();

private:
    Sample::Company m_company;
};

void InvoiceScriptTest::initTestCase() { QCOMPARE(m_company.open(), QString()); }

void InvoiceScriptTest::titles_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("other"); ///< another word of the language
    const struct {
        const char *language;
        QStringList titles;
        QString other, otherOnDeliveryNote;
    } languages[] = {
        {"fi", {"LASKU", "KORKOLASKU", "HYVITYSLASKU", "MAKSUMUISTUTUS", "KUITTI", "LÄHETE"}, "Eräpäivä", "Määrä"},
        {"sv - ruotsi",
         {"FAKTURA", "RÄNTEFAKTURA", "KREDITFAKTURA", "BETALNINGSPÅMINNELSE", "KVITTO", "FÖLJESEDEL"},
         "Förfallodag",
         "Antal"},
        {"en",
         {"INVOICE", "INTEREST INVOICE", "CREDIT NOTE", "PAYMENT REMINDER", "RECEIPT", "DELIVERY NOTE"},
         "Due date",
         "Quantity"},
    };
    for (const auto &row : languages) {
        for (int kind = 0; kind < row.titles.size(); ++kind)
            QTest::addRow("%s %d", row.language, kind)
                << row.language << kind << row.titles.at(kind)
                << (kind == InvoicePrintModel::deliveryNote ? row.otherOnDeliveryNote : row.other);
    }
    QTest::newRow("unknown language") << "xx" << 0 << "LASKU"
                                      << "Eräpäivä";
    QTest::newRow("name of a property of every object") << "toString" << 0 << "LASKU"
                                                        << "Eräpäivä";
}

void InvoiceScriptTest::titles()
{
    QFETCH(QString, language);
    QFETCH(int, kind);
    QFETCH(QString, title);
    QFETCH(QString, other);
    Document document = Sample::ordinary();
    document.customer.setProperty("l", language);
    (kind < InvoicePrintModel::reminder ? document.invoice.type : document.printType) = kind;
    const QString pdf = m_company.print(document);
    QVERIFY(!pdf.isEmpty());
    const QString page = Paper::text(pdf);
    QVERIFY2(page.contains(QRegularExpression(QStringLiteral(" %1\n").arg(title))), qPrintable(page));
    QVERIFY2(page.contains(other), qPrintable(page));
    QCOMPARE(page.contains("BIC"), kind != InvoicePrintModel::deliveryNote);
    QCOMPARE(Paper::misplaced(Paper::words(pdf), kind != InvoicePrintModel::deliveryNote), QString());
}

void InvoiceScriptTest::contents_data()
{
    using namespace Sample;
    QTest::addColumn<Document>("document");
    QTest::addColumn<int>("pages");
    QTest::addColumn<QStringList>("present");
    QTest::addColumn<QStringList>("absent");
    QTest::newRow("ordinary") << ordinary() << 1 << QStringList{"Kiitos tilauksesta!", "ALV 25,5.%",
                                                                "Yhteensä EUR +92,69", "11,5.%",
                                                                "Metsälän Putki",      "www.metsalanputki.example",
                                                                "LVI-työt vuodesta"}
                              << QStringList{"Ale-%", "sivu", "Avoinna", "Pyydämme"};
    QTest::newRow("discounted")
        << discounted() << 1
        << QStringList{"Ale-%",  "12,5",     "rahti sisältyy",           "0,125",
                       "8,4321", "1.2.2026", "13,5 +71,06 +9,59 +80,65", "25,5 +70,91 +18,08 +88,99"}
        << QStringList{"ALV 25,5"};
    QTest::newRow("partly paid reminder") << partlyPaid(InvoicePrintModel::reminder, 5000) << 1
                                          << QStringList{"Pyydämme ystävällisesti", "Kiitos tilauksesta!",
                                                         "Maksettu +−42,69", "Avoinna EUR +50,00", "Muistutuspäivä"}
                                          << QStringList{};
    QTest::newRow("receipt") << partlyPaid(InvoicePrintModel::receipt, 0) << 1
                             << QStringList{"Ei maksettavaa", "Yhteensä EUR +92,69", "Avoinna EUR +0,00"}
                             << QStringList{"Käyttäkää", "Pyydämme"};
    QTest::newRow("credit note") << creditNote() << 1 << QStringList{"Ei maksettavaa", "−1,5", "EUR +−92,69"}
                                 << QStringList{"Käyttäkää"};
    QTest::newRow("delivery note") << ofType(Invoice::invoiceType, InvoicePrintModel::deliveryNote) << 1
                                   << QStringList{"Kupariputki", "1,5", "PO-4711", "Kiitos tilauksesta!"}
                                   << QStringList{"25,5", "92,69", "29,56", "Viitenumero", "Eräpäivä", "TILISIIRTO"};
    QTest::newRow("swedish") << inLanguage("sv", discounted()) << 1
                             << QStringList{"Rabatt-%", "Totalt EUR", "Använd referensnumret", "Saajan"}
                             << QStringList{};
    QTest::newRow("english") << inLanguage("en", discounted()) << 1
                             << QStringList{"Disc. %", "Total EUR", "RF60 1001 1720", "Recipient"}
                             << QStringList{"Saaja", "Mottagare"};
    QTest::newRow("extreme") << extreme() << 2 << QStringList{"9 999 999,99", "1 234,5678", "92125 37425 25398 97737",
                                                              "sivu 1/2",     "sivu 2/2",   "Itäväylän laajennus",
                                                              "Kumpp. Oy",    "Toinen rivi"}
                             << QStringList{};
    QTest::newRow("texts of more than a page")
        << endless() << 5 << QStringList{"1003", "Yhteensä EUR", "sivu 5/5", "IBAN"} << QStringList{};
    QTest::newRow("free texts") << freeTexts() << 1
                                << QStringList{"Väliotsikko jatkuu\n", "yksi\n", "neljä\n", "ALV 25,5.%"}
                                << QStringList{"kpl"};
    QTest::newRow("free texts delivered") <<
        [] {
            Document d = freeTexts();
            d.printType = InvoicePrintModel::deliveryNote;
            return d;
        }() << 1 << QStringList{"Väliotsikko jatkuu\n"}
                                          << QStringList{"kpl"};
    QTest::newRow("bare") << bare() << 1 << QStringList{"LASKU", "EUR +0,00"}
                          << QStringList{"Päiväys", "Asiakasnumero", "Kiitos"};
}

void InvoiceScriptTest::contents()
{
    QFETCH(Document, document);
    QFETCH(QStringList, present);
    QFETCH(QStringList, absent);
    const QString pdf = m_company.print(document);
    QVERIFY(!pdf.isEmpty());
    QTEST(Paper::pageCount(pdf), "pages");
    const QString all = Paper::text(pdf);
    for (const QString &pattern : qAsConst(present))
        QVERIFY2(all.contains(QRegularExpression(pattern)),
                 qPrintable(pattern + QStringLiteral(" is missing in\n") + all));
    for (const QString &pattern : qAsConst(absent))
        QVERIFY2(!all.contains(QRegularExpression(pattern)), qPrintable(pattern + QStringLiteral(" is in\n") + all));
    QCOMPARE(Paper::misplaced(Paper::words(pdf), document.printType != InvoicePrintModel::deliveryNote), QString());
}

// One row more, and the totals or the form must go to another page.
void InvoiceScriptTest::rowsOnPages_data()
{
    QTest::addColumn<int>("rows");
    for (int rows : {0, 1, 2, 3, 8, 9, 10, 11, 12, 32, 33, 34, 35, 36, 51, 52, 53, 54, 77, 78, 79, 80, 95})
        QTest::addRow("%d", rows) << rows;
}

void InvoiceScriptTest::rowsOnPages()
{
    QFETCH(int, rows);
    const QString pdf = m_company.print(Sample::manyRows(rows));
    QVERIFY(!pdf.isEmpty());
    const QVector<Paper::Word> all = Paper::words(pdf);
    QCOMPARE(Paper::misplaced(all, true), QString());
    const int lastPage = all.last().page;
    QStringList numbers;
    QSet<int> pagesWithRows;
    int pageNumbers = 0;
    for (const Paper::Word &word : all) {
        const bool inForm = word.page == lastPage && word.box.top() >= Paper::formTop;
        if (word.box.left() < 20.5 && !inForm && word.text.size() == 4 && word.text.toInt() > 0) {
            numbers << word.text;
            pagesWithRows << word.page;
        }
        pageNumbers += word.text == QStringLiteral("%1/%2").arg(word.page).arg(lastPage);
    }
    QStringList expected;
    for (int i = 0; i < rows; ++i)
        expected << QString::number(1001 + i);
    QCOMPARE(numbers, expected);
    QCOMPARE(pagesWithRows.size(), rows > 0 ? lastPage : 0);
    QCOMPARE(pageNumbers, lastPage > 1 ? lastPage : 0);
}

// Every word of a row is printed, on however many pages.
void InvoiceScriptTest::longTexts_data()
{
    QTest::addColumn<int>("row"); ///< of five
    QTest::addColumn<int>("nameWords");
    QTest::addColumn<int>("textWords");
    QTest::newRow("text in the first row") << 0 << 1 << 700;
    QTest::newRow("text in the last row") << 4 << 1 << 300;
    QTest::newRow("text of several pages") << 2 << 1 << 3000;
    QTest::newRow("name") << 1 << 700 << 20;
}

void InvoiceScriptTest::longTexts()
{
    QFETCH(int, row);
    const auto words = [](QChar letter, int count) {
        QStringList result;
        for (int i = 0; i < count; ++i)
            result << letter + QString::number(10000 + i);
        return result;
    };
    QFETCH(int, nameWords);
    QFETCH(int, textWords);
    Document document = Sample::manyRows(5);
    document.items[row].productName = words('N', nameWords).join(' ');
    document.items[row].text = words('T', textWords).join(' ');
    const QString pdf = m_company.print(document);
    const QVector<Paper::Word> all = Paper::words(pdf);
    QCOMPARE(Paper::misplaced(all, true), QString());
    QStringList printed;
    for (const Paper::Word &word : all) {
        if (QRegularExpression("^[NT]1\\d{4}$").match(word.text).hasMatch())
            printed << word.text;
    }
    printed.sort(); // names and numbers of a line may be read in any order
    QCOMPARE(printed, words('N', nameWords) + words('T', textWords));
    QCOMPARE(Paper::text(pdf).count("Tuote"), Paper::pageCount(pdf));
}

// Sums end at the right edge. Quantities, which have one digit before the decimal comma, begin at the same place.
void InvoiceScriptTest::alignment()
{
    const QRegularExpression quantity(QStringLiteral("^\\d(,5)?$"));
    const QRectF quantityColumn(90, 0, 25, 297);
    QVector<double> quantities, sums;
    const QString pdf = m_company.print(Sample::manyRows(12));
    QVERIFY(!pdf.isEmpty());
    for (const Paper::Word &word : Paper::words(pdf)) {
        if (word.page > 1 || word.box.top() > Paper::formTop)
            continue;
        if (quantity.match(word.text).hasMatch() && quantityColumn.contains(word.box))
            quantities << word.box.left();
        if (word.box.right() > 194 && word.text.contains(QLatin1Char(',')))
            sums << word.box.right();
    }
    QVERIFY(quantities.size() >= 10 && sums.size() >= 10);
    for (double left : qAsConst(quantities))
        QVERIFY2(qAbs(left - quantities.first()) < 0.2, qPrintable(QString::number(left)));
    for (double right : qAsConst(sums))
        QVERIFY2(qAbs(right - 195) < 0.2, qPrintable(QString::number(right)));
}

void InvoiceScriptTest::barcode_data()
{
    using namespace Sample;
    QTest::addColumn<Document>("document");
    QTest::addColumn<QByteArray>("digits");
    const QByteArray digits = "421123456000007850000926900000000000000010011720260217";
    QTest::newRow("invoice") << ordinary() << digits;
    QTest::newRow("english") << inLanguage("en", ordinary()) << digits;
    QTest::newRow("last of several pages")
        << manyRows(40) << QByteArray("421123456000007850092904700000000000000010011720260217");
    QTest::newRow("open balance") << partlyPaid(InvoicePrintModel::reminder, 5000)
                                  << QByteArray(digits).replace("00009269", "00005000");
    QTest::newRow("paid") << partlyPaid(InvoicePrintModel::ownType, 0) << QByteArray();
    QTest::newRow("paid too much") << partlyPaid(InvoicePrintModel::ownType, -1) << QByteArray();
    QTest::newRow("receipt") << ofType(Invoice::invoiceType, InvoicePrintModel::receipt) << QByteArray();
    QTest::newRow("credit note") << creditNote() << QByteArray();
    QTest::newRow("credit note of a positive sum") << ofType(Invoice::creditNote) << QByteArray();
    QTest::newRow("delivery note") << ofType(Invoice::invoiceType, InvoicePrintModel::deliveryNote) << QByteArray();
    Document document = ordinary();
    document.settings["invoiceForm/barcodeVisible"] = false;
    QTest::newRow("switched off") << document << QByteArray();
    document = ordinary();
    document.invoice.dueDate = QDate();
    QTest::newRow("no due date") << document << digits.left(48) + "000000";
    document = ordinary();
    document.invoice.referenceNumber.clear();
    QTest::newRow("no reference") << document << QByteArray();
    document.invoice.referenceNumber = "RF6010011720";
    QTest::newRow("letters in the reference") << document << QByteArray();
    document = ordinary();
    document.iban = "MT84MALT011000012345MTLCAST001S";
    QTest::newRow("foreign account") << document << QByteArray();
    document = ordinary();
    document.items[0].amount = 10000000000LL;
    QTest::newRow("a million") << document << QByteArray();
}

void InvoiceScriptTest::barcode()
{
    QFETCH(Document, document);
    const QString pdf = m_company.print(document);
    QVERIFY(!pdf.isEmpty());
    QTEST(Paper::barcode(pdf, m_company.filePath("page")), "digits");
}

void InvoiceScriptTest::oddSettings_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("present");
    QTest::addColumn<QString>("absent");
    const auto options = QStringLiteral("invoiceForm/invoiceItemOptions");
    QTest::newRow("options empty") << options << ""
                                   << "Nro"
                                   << "verollinen";
    QTest::newRow("options no number") << options << "x"
                                       << "Nro"
                                       << "verollinen";
    QTest::newRow("options none") << options << "0"
                                  << "à veroton"
                                  << "Nro";
    QTest::newRow("options price with VAT") << options << "2"
                                            << "à verollinen"
                                            << "à veroton";
    QTest::newRow("options all") << options << "-1"
                                 << "à verollinen"
                                 << "à veroton";
    QTest::newRow("options beyond 32 bits") << options << "99999999999999999999"
                                            << "Tuote"
                                            << "undefined";
    QTest::newRow("logo none") << "invoiceForm/logoHeight"
                               << "-4"
                               << "Tuote"
                               << "undefined";
    QTest::newRow("logo no number") << "invoiceForm/logoHeight"
                                    << "x"
                                    << "Tuote"
                                    << "undefined";
    QTest::newRow("logo huge") << "invoiceForm/logoHeight"
                               << "1e9"
                               << "Tuote"
                               << "undefined";
    QTest::newRow("language") << "invoiceForm/language"
                              << "sv - ruotsi"
                              << "Produkt"
                              << "Tuote";
    QTest::newRow("language unknown") << "invoiceForm/language"
                                      << "-"
                                      << "Tuote"
                                      << "undefined";
    QTest::newRow("web address") << "seller/webAddress" << QString("x").repeated(80) << "xxx"
                                 << "…";
    QTest::newRow("e-mail address, long") << "seller/emailAddress"
                                          << "etunimi.sukunimi-toinen@erittainpitkanimi.example"
                                          << "erittainpitkanimi.example"
                                          << "…";
    QTest::newRow("footer of ten lines") << "invoiceForm/footer/text2" << QString("a\n").repeated(9) + "z"
                                         << "z"
                                         << "undefined";
    QTest::newRow("reminder text") << "invoiceForm/reminderText" << QString("pitkä sana ").repeated(99) << "Tuote"
                                   << "pitkä";
}

void InvoiceScriptTest::oddSettings()
{
    QFETCH(QString, key);
    QFETCH(QString, value);
    QFETCH(QString, present);
    QFETCH(QString, absent);
    Document document = Sample::discounted();
    document.settings[key] = value;
    const QString pdf = m_company.print(document);
    QVERIFY(!pdf.isEmpty());
    const QString all = Paper::text(pdf);
    QVERIFY2(all.contains(present), qPrintable(all));
    QVERIFY2(!all.contains(absent), qPrintable(all));
    QCOMPARE(Paper::misplaced(Paper::words(pdf), true), QString());
}

void InvoiceScriptTest::severalInvoices()
{
    Document finnish = Sample::ordinary();
    Document swedish = Sample::inLanguage("sv", Sample::manyRows(20));
    QVERIFY(m_company.store(finnish) && m_company.store(swedish));
    InvoicePrintModel model(m_company.registry());
    model.criteria()->numberFrom = finnish.invoice.number;
    const QString pdf = m_company.print(model);
    QVERIFY(!pdf.isEmpty());
    QCOMPARE(Paper::pageCount(pdf), 3);
    const QStringList pages = Paper::text(pdf).split(QChar::FormFeed);
    QVERIFY(pages.at(0).contains("LASKU") && pages.at(0).contains("Yhteensä EUR") && !pages.at(0).contains("sivu"));
    QVERIFY(pages.at(1).contains("sida 1/2") && !pages.at(1).contains("IBAN"));
    QVERIFY(pages.at(2).contains("sida 2/2") && pages.at(2).contains("IBAN"));
}

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    InvoiceScriptTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_invoicescript.moc"

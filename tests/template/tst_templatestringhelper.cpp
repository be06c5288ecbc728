#include "bankaccount.h"
#include "customer.h"
#include "invoice.h"
#include "registry.h"
#include "settings.h"
#include "templatestringhelper.h"

#include <QtTest>

class TemplateStringHelperTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void variables_data();
    void variables();
    void withoutRecords();
    void fileNames_data();
    void fileNames();
    void slugs_data();
    void slugs();
    void referenceTemplate_data();
    void referenceTemplate();
    void suffix();
    void barcodeAccount();

private:
    Registry m_registry;
    Invoice m_invoice;
    Customer m_customer;
};

void TemplateStringHelperTest::init()
{
    m_registry.settings()->clear();
    m_registry.settings()->setProperty(QStringLiteral("settings/periodForComplaints"), QString::fromUtf8(u8"8 päivää"));
    m_invoice.clear();
    m_invoice.number = 1234;
    m_invoice.paymentTerms = QStringLiteral("{I} {{number}}");
    m_invoice.interestOnArrears = 850;
    m_invoice.totalAmount = 123456;
    m_invoice.balance = -50;
    m_invoice.referenceNumber = QStringLiteral("12344");
    m_invoice.setProperty(QStringLiteral("t1"), QStringLiteral("huom"));
    m_customer.clear();
    m_customer.number = 7;
    m_customer.name = QString::fromUtf8(u8"Äijä & Co. Oy");
    m_customer.streetName = QStringLiteral("Katu 1/2 A: \"x\"");
    m_customer.vatNumber = QStringLiteral("FI1+2");
    m_customer.emailAddress = QStringLiteral("A.B@c.fi");
    m_customer.setProperty(QStringLiteral("c2"), QStringLiteral("oma"));
}

void TemplateStringHelperTest::variables_data()
{
    QTest::addColumn<QString>("expanded");
    const struct {
        const char *text, *expanded;
    } rows[] = {
        {"a {{number}} b", "a 1234 b"},
        {"{{ number }}{{customer/number}}", "12347"},
        {"{{  number }}", "{{  number }}"}, // one blank at most; too long for a short variable
        {"{{Number}}|{{nothing}}|{{customer/nothing}}", "||"},
        {"{{interestOnArrears}} {{totalAmount}} {{balance}}", u8"8.5 1,234.56 \u22120.50"},
        {"{{referenceNumber}} {{referenceNumberRaw}} {{referenceNumberRf}} {{referenceNumberRfRaw}}",
         "12344 12344 RF08 1234 4 RF0812344"},
        {"{{referenceNumberSpy}}", "00000000000000012344"},
        {"{{noticeText1}}{{noticeText2}}{{customer/custom1}}{{customer/custom2}}", "huomoma"},
        {"{{periodForComplaints}}", u8"8 päivää"},
        {"{{customer/name}} {{customer/vatNumber}}", u8"Äijä & Co. Oy FI1+2"},
        {"{{barcode}}{{barcode4}}{{barcode5}}", ""}, // no bank account
        {"{{paymentTerms}}", "1234 {{number}}"},     // the second pass expands short variables only
        {"{I}", "1234"},
        {"{I6}", "001234"},
        {"{ I6< }", "123400"},
        {"{I6>}", "001234"},
        {"{I6x}", "1234"},
        {"{Ix}", "1234"},
        {"{I3}", "1234"},
        {"{C4}", "0007"},
        {"{C}{I}", "71234"},
        {"{X}{i}{I-6}{I 6}", "1234"}, // {I-6}: a width below the value's; " 6" is no number
        {"{}", "{}"},
        {"{I10000}", "{I10000}"}, // four characters at most
        {"{I", "{I"},
    };
    for (const auto &row : rows)
        QTest::newRow(row.text) << QString::fromUtf8(row.expanded);
}

void TemplateStringHelperTest::variables()
{
    const TemplateStringHelper helper(&m_registry);
    QTEST(helper.substituteVariables(QString::fromLatin1(QTest::currentDataTag()), &m_invoice, &m_customer),
          "expanded");
}

void TemplateStringHelperTest::withoutRecords()
{
    const TemplateStringHelper helper(&m_registry);
    const QString text =
        QStringLiteral("{{number}}{{totalAmount}}{{barcode}}{{customer/name}}{{customer/number}}{I6}{C6}");
    QCOMPARE(helper.substituteVariables(text, nullptr, nullptr), QString());
    QCOMPARE(TemplateStringHelper::substituteShortVariables(QStringLiteral("$I$R$J$N$n"), nullptr, nullptr, 0),
             QString());
}

void TemplateStringHelperTest::fileNames_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("name");
    const auto row = [](const char *text, int type, int kind, const char *name) {
        QTest::addRow("%s of %d as %d", text, type, kind) << type << kind << QString::fromUtf8(name);
    };
    row("$H $I", 0, 4, "Kuitti 1234");
    row("$h-$i.pdf", 0, 4, "kuitti-1234.pdf");
    row("$H", 0, 0, "Lasku");
    row("$H", 1, 0, "Korkolasku");
    row("$H", 2, 2, "Hyvityslasku");
    row("$H", 2, 3, "Maksumuistutus");
    row("$h", 0, 5, "lahete");
    row("$H", 0, 6, "Lasku");
    row("$H", 6, 0, "Lasku");
    row("$H", -1, 0, "Lasku");
    row("$R_$j", 0, 0, "12344_7");
    row("$N $n", 0, 0, u8"Äijä & Co. Oy aija-co-oy");
    row("$S|$s", 0, 0, "Katu 12 A x|katu-12-a-x");
    row("$V$v", 0, 0, "FI12FI12");
    row("$E $e", 0, 0, "A.B@c.fi abcfi");
    row("$$I$$", 0, 0, "$I$");
    row("100 $", 0, 0, "100 ");
}

void TemplateStringHelperTest::fileNames()
{
    QFETCH(int, kind);
    QFETCH(int, type);
    m_invoice.type = type;
    const QString text = QString::fromLatin1(QTest::currentDataTag()).section(QStringLiteral(" of "), 0, 0);
    QTEST(TemplateStringHelper::substituteShortVariables(text, &m_invoice, &m_customer, kind), "name");
}

void TemplateStringHelperTest::slugs_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("slug");
    QTest::addColumn<QString>("valid");
    QTest::newRow("runs") << "--Hello  World--"
                          << "hello-world"
                          << "--Hello  World--";
    QTest::newRow("letters") << u8"ÅÄÖ ß é ñ" << "aao-e-n" << u8"ÅÄÖ ß é ñ";
    QTest::newRow("path") << "a/b:c"
                          << "abc"
                          << "abc";
    QTest::newRow("forbidden") << "|\\!?*<\":>+[]/x.y;z'"
                               << "xyz"
                               << "x.y;z'";
    QTest::newRow("blank around a dropped letter") << "a & b"
                                                   << "a-b"
                                                   << "a & b";
    QTest::newRow("only blanks") << "  - "
                                 << ""
                                 << "  - ";
    QTest::newRow("other digits") << u8"no \u0663" << u8"no-\u0663" << u8"no \u0663";
}

void TemplateStringHelperTest::slugs()
{
    QFETCH(QString, text);
    QTEST(TemplateStringHelper::toAscii(text), "slug");
    QTEST(TemplateStringHelper::removeInvalidCharacters(text), "valid");
}

void TemplateStringHelperTest::referenceTemplate_data()
{
    QTest::addColumn<QString>("form");
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<QString>("base");
    QTest::newRow("neither") << ""
                             << ""
                             << "{I}00";
    QTest::newRow("short suffix") << ""
                                  << "5"
                                  << "{I}05";
    QTest::newRow("long suffix") << ""
                                 << "123"
                                 << "{I}123";
    QTest::newRow("the template wins") << "9{C4}{I}"
                                       << "5"
                                       << "9{C4}{I}";
}

void TemplateStringHelperTest::referenceTemplate()
{
    QFETCH(QString, form);
    QFETCH(QString, suffix);
    m_registry.settings()->setProperty(QStringLiteral("settings/referenceNumberTemplate"), form);
    m_registry.settings()->setProperty(QStringLiteral("settings/referenceNumberSuffix"), suffix);
    QTEST(m_registry.settings()->referenceNumberTemplate(), "base");
}

void TemplateStringHelperTest::suffix()
{
    QTemporaryDir dir;
    const QDir folder(dir.path());
    const auto next = [&](const char *name) {
        return TemplateStringHelper::addSuffixToFilename(QFileInfo(folder, QLatin1String(name))).filePath();
    };
    QCOMPARE(next("report.v2.pdf"), folder.filePath(QStringLiteral("report.v2-1.pdf"))); // never the name itself
    for (const char *name : {"a-1.pdf", "a-2.pdf", "a-4.pdf"}) {
        QFile file(folder.filePath(QLatin1String(name)));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    QCOMPARE(next("a.pdf"), folder.filePath(QStringLiteral("a-3.pdf")));
}

void TemplateStringHelperTest::barcodeAccount()
{
    const TemplateStringHelper helper(&m_registry);
    BankAccount account;
    account.id = 1;
    account.iban = QStringLiteral("FI0000000000000001");
    account.visible = false;
    m_registry.storeBankAccount(account);
    QCOMPARE(helper.createBarcode(&m_invoice, 4), QString());
    for (int id : {2, 3}) {
        account.id = id;
        account.rowNumber = -id; // 3 stands first
        account.iban = QStringLiteral("FI000000000000000%1").arg(id);
        account.visible = true;
        m_registry.storeBankAccount(account);
    }
    QCOMPARE(helper.createBarcode(&m_invoice, 4).mid(16, 1), QStringLiteral("3"));
    QVERIFY(helper.valueForVariable(QStringLiteral("barcode5"), &m_invoice, nullptr).startsWith(QLatin1Char('5')));
}

QTEST_GUILESS_MAIN(TemplateStringHelperTest)
#include "tst_templatestringhelper.moc"

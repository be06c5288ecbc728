#include "finvoicesamples.h"
#include "parsedxml.h"
#include "query.h"
#include "registry.h"
#include "scriptloader.h"
#include "sqlitedatabase.h"
#include "xmlscriptmanager.h"
#include "xmlscriptmodel.h"

#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

using namespace FinvoiceSamples;

Q_DECLARE_METATYPE(FinvoiceSamples::Sample)

namespace {

constexpr char endOfFrame[] = "</SOAP-ENV:Envelope>";

const struct {
    const char *name;
    Sample (*make)();
} samples[] = {
    {"ordinary invoice", ordinary},
    {"several rates", severalRates},
    {"interest invoice", [] { return ofKind(Invoice::interestInvoice); }},
    {"credit note with rows above zero", [] { return ofKind(Invoice::creditNote); }},
    {"credit note with rows below zero", negativeCreditNote},
    {"kind of other programs", [] { return ofKind(3); }},
    {"reminder", [] { return ofKind(Invoice::invoiceType, InvoicePrintModel::reminder); }},
    {"receipt", [] { return ofKind(Invoice::invoiceType, InvoicePrintModel::receipt); }},
    {"delivery note", [] { return ofKind(Invoice::invoiceType, InvoicePrintModel::deliveryNote); }},
    {"foreign buyer", foreignBuyer},
    {"only what is demanded", bare},
    {"extreme lengths", extreme},
    {"odd characters", oddCharacters},
    {"single characters", singleCharacters},
    {"all addresses", allAddresses},
};

Sample changed(Sample sample, void (*change)(Sample &))
{
    change(sample);
    return sample;
}

/** Cents of an amount, and ten-thousandths of a price or quantity, as the message writes them. */
long long scaled(const QString &text, int decimals)
{
    const QStringList parts = text.split(QLatin1Char(','));
    const QString fraction = parts.value(1).leftJustified(decimals, QLatin1Char('0'));
    return (parts.at(0) + fraction).toLongLong();
}

long long cents(const QString &text) { return scaled(text, 2); }

long long sum(const QStringList &amounts)
{
    long long result = 0;
    for (const QString &amount : amounts)
        result += cents(amount);
    return result;
}

} // namespace

/**
 * Writes invoices with the built-in Finvoice script and reads the messages. They are validated with xmllint
 * (libxml2-utils) against the schema file that BILLORA_FINVOICE_SCHEMA names, or the one beside the source folder.
 */
class FinvoiceTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase();
    void schema_data();
    void schema();
    void layout_data() { addSamples(); }
    void layout();
    void elements_data();
    void elements();
    void sums_data();
    void sums();
    void randomRows();
    void splitTexts();
    void characters();
    void refused_data();
    void refused();
    void frames();

private:
    void addSamples();
    bool store(Sample &sample);
    QByteArray write(Sample sample);
    void checkSums(const Sample &sample, const ParsedXml &message);
    void checkRow(const InvoiceItem &item, const QStringList &cells, bool negated);

    QTemporaryDir m_folder;
    SQLiteDatabase m_database;
    std::unique_ptr<Query> m_query;
    Registry m_registry;
    XmlScriptManager m_manager;
    QString m_schema;
};

void FinvoiceTest::initTestCase()
{
    QVERIFY(m_folder.isValid());
    QSettings file(m_folder.filePath("settings.ini"), QSettings::IniFormat);
    file.setValue("filename", m_folder.filePath("finvoice.db"));
    m_database.setCreateIfNotExist(true);
    QVERIFY2(m_database.open(&file), qPrintable(m_database.lastError()));
    QVERIFY(m_database.transaction()); // never committed: nothing waits for the disk
    m_query.reset(m_database.query());
    m_registry.setDatabase(&m_database);
    m_registry.setConnected(true);
    QVERIFY(m_registry.fetchPrintScripts(m_query.get()));
    QVERIFY(ScriptLoader(&m_registry).finvoiceScript().load(m_manager));
    QVERIFY2(!m_manager.hasException(), qPrintable(m_manager.exception()));

    const QString beside = QStringLiteral("/../../../shared/formats/schema/Finvoice1.3.xsd");
    m_schema = qEnvironmentVariable("BILLORA_FINVOICE_SCHEMA", QFileInfo(__FILE__).absolutePath() + beside);
}

void FinvoiceTest::addSamples()
{
    QTest::addColumn<Sample>("sample");
    for (const auto &row : samples)
        QTest::newRow(row.name) << row.make();
}

/** Puts the sample's records in place of the last one's. */
bool FinvoiceTest::store(Sample &sample)
{
    Query *query = m_query.get();
    bool ok = query->saveSettings(&sample.seller);
    for (int i = 0; i < m_registry.bankAccountCount(); ++i)
        ok = ok && query->deleteBankAccount(m_registry.bankAccount(i)->id);
    for (int i = 0; i < sample.accounts.size(); ++i) {
        sample.accounts[i].rowNumber = i;
        ok = ok && query->saveBankAccount(&sample.accounts[i]);
    }
    ok = ok && query->saveCustomer(&sample.customer);
    sample.invoice.customerId = sample.customer.id;
    sample.invoice.totalAmount = sample.totalAddition;
    for (const InvoiceItem &item : qAsConst(sample.items))
        sample.invoice.totalAmount += static_cast<int>(item.totalAmountVatIncluded());
    sample.invoice.balance = sample.invoice.totalAmount - sample.paid;
    ok = ok && query->saveInvoice(&sample.invoice);
    for (int i = 0; i < sample.items.size(); ++i) {
        sample.items[i].invoiceId = sample.invoice.id;
        sample.items[i].rowNumber = i;
        ok = ok && query->saveInvoiceItem(&sample.items[i]);
    }
    return ok && m_registry.fetchSettings(query) && m_registry.fetchBankAccounts(query) &&
           m_registry.fetchCustomers(query);
}

/** @return the file's content; m_manager knows whether the script refused the invoice */
QByteArray FinvoiceTest::write(Sample sample)
{
    if (!store(sample)) {
        qWarning() << m_query->lastError();
        return QByteArray();
    }
    XmlScriptModel model(&m_registry);
    model.criteria()->id = sample.invoice.id;
    model.setPrintType(sample.printType);
    QFile file(m_folder.filePath("message.xml"));
    if (!model.run())
        return QByteArray();
    m_manager.write(file.fileName(), false, &model);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void FinvoiceTest::schema_data()
{
    if (!QFileInfo::exists(m_schema)) {
        QVERIFY2(!qEnvironmentVariableIsSet("BILLORA_FINVOICE_SCHEMA"), qPrintable("No such file: " + m_schema));
        QSKIP(
            "The schema part is not run: no Finvoice 1.3 schema beside the source folder, and BILLORA_FINVOICE_SCHEMA "
            "does not name one");
    }
    addSamples();
    QTest::newRow("partly paid") << changed(ordinary(), [](Sample &s) { s.paid = 1; });
    QTest::newRow("no rows") << changed(ordinary(), [](Sample &s) { s.items.clear(); });
    QTest::newRow("only text rows") << changed(ordinary(), [](Sample &s) {
        s.items = {textRow("Huomio"), textRow("")};
    });
    QTest::newRow("malformed addresses") << changed(ordinary(), [](Sample &s) {
        s.seller.setProperty("finvoice/senderId", QString(40, 'x'));
        s.seller.setProperty("finvoice/intermediatorId", "a b");
        s.seller.setProperty("finvoice/epiInstructionId", "a b");
        s.accounts[0].bic = "NDEA";
        s.customer.country = "fi";
    });
    QTest::newRow("total unlike the rows") << changed(ordinary(), [](Sample &s) { s.totalAddition = 2; });
}

void FinvoiceTest::schema()
{
    QFETCH(Sample, sample);
    for (const int mode : {Vat::roundPerRate, Vat::roundPerRow}) {
        sample.seller.setProperty("invoiceForm/roundingMode", mode);
        const QByteArray message = write(sample);
        QVERIFY2(!m_manager.hasException(), qPrintable(m_manager.exception()));
        QProcess xmllint;
        xmllint.start("xmllint", {"--noout", "--nonet", "--schema", m_schema, m_folder.filePath("message.xml")});
        QVERIFY2(xmllint.waitForFinished(), "xmllint of libxml2-utils is not installed");
        QVERIFY2(xmllint.exitCode() == 0, xmllint.readAllStandardError() + message);
    }
}

/** What the standard says beside the schema, and the order of the top level without it. */
void FinvoiceTest::layout()
{
    QFETCH(Sample, sample);
    const QByteArray message = write(sample);
    QVERIFY2(!m_manager.hasException(), qPrintable(m_manager.exception()));
    QVERIFY(message.startsWith("<?xml version=\"1.0\" encoding=\"ISO-8859-15\"?>\n"
                               "<?xml-stylesheet type=\"text/xsl\" href=\"Finvoice.xsl\"?>\n<Finvoice "));
    const QList<QByteArray> lines = message.trimmed().split('\n');
    for (const QByteArray &line : lines)
        QVERIFY2(line.trimmed().startsWith('<') && line.endsWith('>') && !line.contains('\t'), line);
    QVERIFY2(!message.contains(" </") || QRegularExpression("\\S </").match(message).hasMatch() == false, message);

    const ParsedXml xml(message);
    QCOMPARE(xml.error, QString());
    const auto &root = xml.elements.first();
    QCOMPARE(root.path, QString("Finvoice"));
    QCOMPARE(root.attributes.value("Version").toString(), QString("1.3"));
    QCOMPARE(root.attributes.value("xsi:noNamespaceSchemaLocation").toString(), QString("Finvoice.xsd"));
    const QStringList order = {"MessageTransmissionDetails",
                               "SellerPartyDetails",
                               "SellerOrganisationUnitNumber",
                               "SellerCommunicationDetails",
                               "SellerInformationDetails",
                               "InvoiceRecipientLanguageCode",
                               "BuyerPartyDetails",
                               "BuyerOrganisationUnitNumber",
                               "BuyerContactPersonName",
                               "BuyerCommunicationDetails",
                               "DeliveryDetails",
                               "InvoiceDetails",
                               "PaymentStatusDetails",
                               "VirtualBankBarcode",
                               "InvoiceRow",
                               "EpiDetails"};
    int place = -1;
    for (const QString &name : xml.topLevel()) {
        QVERIFY2(order.indexOf(name) > place, qPrintable(xml.topLevel().join(' ')));
        place = order.indexOf(name);
    }
    for (int i = 0; i < xml.elements.size(); ++i) {
        bool hasChildren = false;
        for (const auto &element : xml.elements)
            hasChildren = hasChildren || element.parent == i;
        const QString &path = xml.elements.at(i).path;
        QVERIFY2(hasChildren || !xml.elements.at(i).text.isEmpty() || path == "InvoiceRow" ||
                     path.endsWith("EpiBfiPartyDetails") || path == "SellerInformationDetails",
                 qPrintable("empty: " + path));
    }
}

void FinvoiceTest::elements_data()
{
    QTest::addColumn<Sample>("sample");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("expected"); // one text for each element, joined by "|"; "-" for none
    const auto row = [](const Sample &sample, const char *path, const char *expected) {
        QTest::addRow("%s = %s", path, expected) << sample << path << utf8(expected);
    };
    const auto with = [](void (*change)(Sample &)) { return changed(ordinary(), change); };

    // Parties
    row(ordinary(), "SellerPartyDetails/SellerPartyIdentifier", "0737546-2");
    row(ordinary(), "SellerPartyDetails/SellerPostalAddressDetails/CountryCode", "FI");
    row(ordinary(), "SellerCommunicationDetails/SellerEmailaddressIdentifier", "laskut@kuusikko.example");
    row(ordinary(), "SellerInformationDetails/SellerWebaddressIdentifier", "kuusikko.example");
    row(ordinary(), "SellerInformationDetails/SellerFreeText", "Kotipaikka Mallila Avoinna 9–17");
    row(ordinary(), "SellerInformationDetails/SellerAccountDetails/SellerAccountID", "FI2112345600000785");
    row(ordinary(), "SellerInformationDetails/SellerAccountDetails/SellerBic", "NDEAFIHH");
    row(ordinary(), "SellerInformationDetails/InvoiceRecipientDetails/InvoiceRecipientAddress", "003707375462");
    row(ordinary(), "BuyerPartyDetails/BuyerPartyIdentifier", "1234567-1");
    row(ordinary(), "BuyerPartyDetails/BuyerOrganisationTaxCode", "FI12345671");
    row(ordinary(), "BuyerContactPersonName", "Åsa Öhman");
    row(ordinary(), "MessageTransmissionDetails", "-");
    row(foreignBuyer(), "BuyerPartyDetails/BuyerPartyIdentifier", "-");
    row(foreignBuyer(), "BuyerPartyDetails/BuyerOrganisationTaxCode", "PL5260001246");
    row(foreignBuyer(), "BuyerPartyDetails/BuyerPostalAddressDetails/BuyerStreetName", "ul. Zażółcona 5|Budynek C");
    row(foreignBuyer(), "BuyerPartyDetails/BuyerPostalAddressDetails/CountryCode", "PL");
    row(foreignBuyer(), "BuyerPartyDetails/BuyerPostalAddressDetails/CountryName", "Puola");
    row(foreignBuyer(), "InvoiceRecipientLanguageCode", "EN");
    row(foreignBuyer(), "InvoiceDetails/InvoiceTypeText", "INVOICE");
    row(bare(), "SellerPartyDetails/SellerOrganisationName", "X.");
    row(bare(), "BuyerPartyDetails/BuyerOrganisationName", "😀.");
    row(bare(), "BuyerPartyDetails/BuyerPostalAddressDetails", "-"); // a street of one letter
    row(bare(), "SellerPartyDetails/SellerPostalAddressDetails", "-");
    row(bare(), "SellerInformationDetails/SellerAccountDetails", "-");
    row(singleCharacters(), "MessageTransmissionDetails", "-");
    row(singleCharacters(), "BuyerPartyDetails/BuyerPostalAddressDetails", "-");
    row(allAddresses(), "SellerOrganisationUnitNumber", "003707375462001");
    row(allAddresses(), "SellerInformationDetails/InvoiceRecipientDetails/InvoiceRecipientAddress", "003707375462001");
    row(allAddresses(), "BuyerOrganisationUnitNumber", "003712345671005");
    row(allAddresses(), "MessageTransmissionDetails/MessageSenderDetails/FromIdentifier", "003707375462");
    row(allAddresses(), "MessageTransmissionDetails/MessageReceiverDetails/ToIntermediator", "OKOYFIHH");
    row(allAddresses(), "EpiDetails/EpiPaymentInstructionDetails/EpiPaymentInstructionId", "ABC-1");
    // VAT is charged, so there is a VAT number
    row(with([](Sample &s) { s.seller.removeProperty("seller/vatNumber"); }),
        "SellerPartyDetails/SellerOrganisationTaxCode", "FI07375462");
    row(with([](Sample &s) {
            s.seller.removeProperty("seller/vatNumber");
            s.items[0].vatRate = 0;
        }),
        "SellerPartyDetails/SellerOrganisationTaxCode", "-");

    // Kinds
    const Sample kinds[] = {ordinary(), ofKind(1), ofKind(2), ofKind(0, 3), ofKind(0, 4), ofKind(0, 5), ofKind(3)};
    const char *codes[] = {"INV01", "INV03", "INV02", "INV08", "INV01", "DEV01", "DEV01"};
    const char *titles[] = {"LASKU", "KORKOLASKU", "HYVITYSLASKU", "MAKSUMUISTUTUS", "KUITTI", "LÄHETE", "LÄHETE"};
    for (int i = 0; i < 7; ++i) {
        QTest::addRow("code %d", i) << kinds[i] << "InvoiceDetails/InvoiceTypeCode" << codes[i];
        QTest::addRow("title %d", i) << kinds[i] << "InvoiceDetails/InvoiceTypeText" << utf8(titles[i]);
    }
    row(ordinary(), "InvoiceDetails/OriginalInvoiceNumber", "-");
    row(ofKind(0, InvoicePrintModel::reminder), "InvoiceDetails/OriginalInvoiceNumber", "1001");
    row(ofKind(0, InvoicePrintModel::receipt), "PaymentStatusDetails/PaymentStatusCode", "PAID");

    // Details
    row(ordinary(), "InvoiceDetails/InvoiceNumber", "1001");
    row(ordinary(), "InvoiceDetails/InvoiceDate", "20260305");
    row(ordinary(), "InvoiceDetails/SellersBuyerIdentifier", "12");
    row(ordinary(), "InvoiceDetails/SellerReferenceIdentifier", "Maija Meikäläinen");
    row(ordinary(), "InvoiceDetails/BuyerReferenceIdentifier", "PO-4711");
    row(severalRates(), "InvoiceDetails/VatSpecificationDetails/VatRatePercent", "0|13,5|25,5");
    row(severalRates(), "DeliveryDetails/DeliveryDate", "20260304");
    row(severalRates(), "DeliveryDetails/DeliveryTermsText", "Vapaasti varastossa");
    row(ordinary(), "InvoiceDetails/InvoiceFreeText", "Kiitos tilauksesta!|Huomautusaika: 8 päivää");
    row(ofKind(0, InvoicePrintModel::reminder), "InvoiceDetails/InvoiceFreeText",
        "Pyydämme maksamaan saatavamme.|Kiitos tilauksesta!|Huomautusaika: 8 päivää");
    row(ordinary(), "InvoiceDetails/InvoiceTotalRoundoffAmount", "-");
    row(with([](Sample &s) { s.totalAddition = -2; }), "InvoiceDetails/InvoiceTotalRoundoffAmount", "-0,02");

    // Terms of payment
    row(ordinary(), "InvoiceDetails/PaymentTermsDetails/PaymentTermsFreeText", "14 pv netto");
    row(ordinary(), "InvoiceDetails/PaymentTermsDetails/InvoiceDueDate", "20260319");
    row(ordinary(), "InvoiceDetails/PaymentTermsDetails/PaymentOverDueFineDetails/PaymentOverDueFinePercent", "11,5");
    row(ordinary(), "InvoiceDetails/PaymentTermsDetails/PaymentOverDueFineDetails/PaymentOverDueFineFreeText",
        "Viivästyskorko 11,5 %");
    row(ofKind(Invoice::creditNote), "InvoiceDetails/PaymentTermsDetails/PaymentOverDueFineDetails", "-");
    row(bare(), "InvoiceDetails/PaymentTermsDetails/PaymentTermsFreeText", "Eräpäivä 5.3.2026");
    row(bare(), "InvoiceDetails/PaymentTermsDetails/InvoiceDueDate", "20260305");
    row(bare(), "InvoiceDetails/PaymentTermsDetails/PaymentOverDueFineDetails", "-");
    row(bare(), "EpiDetails/EpiPaymentInstructionDetails/EpiDateOptionDate", "20260305");

    // Rows
    row(ordinary(), "InvoiceRow/DeliveredQuantity", "2,5");
    row(ordinary(), "InvoiceRow/UnitPriceAmount", "48,3871"); // 60 with VAT: 48,39 would not give the row's sum
    row(ordinary(), "InvoiceRow/RowVatExcludedAmount", "120,97");
    row(severalRates(), "InvoiceRow/ArticleName", "Huolto|Käsikirja|Vakuutus|Pikatoimitus|Hinnan oikaisu");
    row(severalRates(), "InvoiceRow/UnitPriceAmount", "60,00|30,84|12,50|112,50|3,33");
    row(severalRates(), "InvoiceRow/RowDiscountPercent", "10");
    row(severalRates(), "InvoiceRow/RowFreeText", "Toimitettu varastosta.|Rahti sisältyy hintaan.|Korotus 12,5 %");
    row(severalRates(), "InvoiceRow/RowAmount", "188,25|63,00|12,50|141,19|-4,18");
    row(ofKind(Invoice::creditNote), "InvoiceRow/RowAmount", "-188,25|-63,00|-12,50|-141,19|4,18");
    row(negativeCreditNote(), "InvoiceRow/DeliveredQuantity", "-2,5|-2|-1|-1|1");
    row(ofKind(Invoice::creditNote), "InvoiceRow/DeliveredQuantity", "-2,5|-2|-1|-1|1");
    row(with([](Sample &s) {
            s.items = {itemRow("", "", 10000, "h", 123456, 2400, false)};
        }), // four decimals, VAT in it
        "InvoiceRow/UnitPriceAmount", "9,9561");
    row(with([](Sample &s) { s.items = {itemRow("", "Vene", 10000, "kpl", 2500000000, 0)}; }), // beyond 32 bits
        "InvoiceRow/UnitPriceAmount", "250000,00");
    row(with([](Sample &s) { s.items = {itemRow("N", "Näyte", 10000, "kpl", 0, 2550)}; }), "InvoiceRow/RowAmount",
        "0,00");

    // What is to be paid
    const char epi[] = "EpiDetails/EpiPaymentInstructionDetails/EpiInstructedAmount";
    const char reference[] = "EpiDetails/EpiPaymentInstructionDetails/EpiRemittanceInfoIdentifier";
    const char barcode[] = "VirtualBankBarcode";
    const char status[] = "PaymentStatusDetails/PaymentStatusCode";
    row(ordinary(), epi, "150,00");
    row(ordinary(), barcode, "421123456000007850001500000000000000000000012344260319");
    row(ordinary(), status, "-");
    const Sample partly = with([](Sample &s) { s.paid = 10000; });
    row(partly, epi, "50,00");
    row(partly, barcode, "421123456000007850000500000000000000000000012344260319");
    row(partly, status, "PARTLYPAID");
    const Sample overpaid = with([](Sample &s) { s.paid = 15001; });
    row(overpaid, epi, "0,00");
    row(overpaid, barcode, "-");
    row(overpaid, status, "PAID");
    row(negativeCreditNote(), epi, "0,00");
    row(negativeCreditNote(), barcode, "-");
    row(ofKind(Invoice::creditNote), epi, "0,00");
    row(ofKind(0, InvoicePrintModel::reminder), epi, "400,76");
    row(ofKind(0, InvoicePrintModel::receipt), epi, "0,00");
    row(ofKind(0, InvoicePrintModel::deliveryNote), epi, "0,00");
    row(with([](Sample &s) { s.items[0].quantity = -10000; }), epi, "0,00"); // an invoice below zero
    row(ordinary(), reference, "00000000000000012344");
    row(foreignBuyer(), reference, "RF0812344");
    row(foreignBuyer(), barcode, "-"); // no digits for that reference
    row(with([](Sample &s) { s.invoice.dueDate = QDate(); }), barcode, "-");
    row(ordinary(), "EpiDetails/EpiPartyDetails/EpiBfiPartyDetails/EpiBfiIdentifier", "NDEAFIHH");
    row(ordinary(), "EpiDetails/EpiPartyDetails/EpiBeneficiaryPartyDetails/EpiAccountID", "FI2112345600000785");
    row(ordinary(), "EpiDetails/EpiPaymentInstructionDetails/EpiCharge", "SHA");
    row(with([](Sample &s) { s.accounts[0].visible = false; }),
        "EpiDetails/EpiPartyDetails/EpiBeneficiaryPartyDetails/EpiAccountID", "FI7944052020036082");
}

void FinvoiceTest::elements()
{
    QFETCH(Sample, sample);
    QFETCH(QString, path);
    QFETCH(QString, expected);
    const ParsedXml xml(write(sample));
    QVERIFY2(!m_manager.hasException(), qPrintable(m_manager.exception()));
    const QStringList texts = xml.texts(path);
    QCOMPARE(texts.isEmpty() ? QStringLiteral("-") : texts.join(QLatin1Char('|')), expected);

    const struct {
        const char *end, *attribute, *value;
    } attributes[] = {{"Amount", "AmountCurrencyIdentifier", "EUR"},
                      {"Date", "Format", "CCYYMMDD"},
                      {"AccountID", "IdentificationSchemeName", "IBAN"},
                      {"EpiBfiIdentifier", "IdentificationSchemeName", "BIC"},
                      {"EpiCharge", "ChargeOption", "SHA"}};
    for (const auto &row : attributes) {
        if (path.endsWith(QLatin1String(row.end)) && !texts.isEmpty())
            QCOMPARE(xml.attributes(path, row.attribute).first(), QString::fromLatin1(row.value));
    }
    if (path.endsWith("EpiRemittanceInfoIdentifier"))
        QCOMPARE(xml.attributes(path, "IdentificationSchemeName").first(),
                 QString(expected.startsWith("RF") ? "ISO" : "SPY"));
}

void FinvoiceTest::sums_data()
{
    addSamples();
    QTest::newRow("many small rows") << changed(ordinary(), [](Sample &s) {
        for (int i = 0; i < 30; ++i) // each row rounds by nearly half a cent, always the same way
            s.items << itemRow("P", "Pultti", 10000, "kpl", 100, 2550, false)
                    << itemRow("M", "Mutteri", 10000, "kpl", 149, 1350);
    });
}

void FinvoiceTest::sums()
{
    QFETCH(Sample, sample);
    for (const int mode : {Vat::roundPerRate, Vat::roundPerRow}) {
        sample.seller.setProperty("invoiceForm/roundingMode", mode);
        checkSums(sample, ParsedXml(write(sample)));
        if (QTest::currentTestFailed())
            return;
    }
}

/** Rows, rates and totals agree with each other, and with the totals that every document of the invoice shows. */
void FinvoiceTest::checkSums(const Sample &sample, const ParsedXml &message)
{
    QVERIFY2(!m_manager.hasException(), qPrintable(m_manager.exception()));
    Vat vat;
    vat.setRoundingMode(sample.seller.roundingMode());
    QList<InvoiceItem> items; // those that are not only text
    for (const InvoiceItem &item : sample.items) {
        vat.add(static_cast<int>(item.totalAmountVatIncluded()), item.vatRate);
        if (item.amount != 0 || item.quantity != 0)
            items.append(item);
    }
    const QString details = QStringLiteral("InvoiceDetails/");
    const bool negated = sample.invoice.type == Invoice::creditNote && vat.totalAmount() > 0;
    const int sign = negated ? -1 : 1;
    const QStringList rowExcluded = message.texts("InvoiceRow/RowVatExcludedAmount");
    const QStringList rates = message.texts(details + "VatSpecificationDetails/VatRatePercent");
    QCOMPARE(cents(message.text(details + "InvoiceTotalVatExcludedAmount")), sign * vat.totalAmountVatExcluded());
    QCOMPARE(cents(message.text(details + "InvoiceTotalVatAmount")), sign * vat.totalVatAmount());
    QCOMPARE(cents(message.text(details + "InvoiceTotalVatIncludedAmount")), sign * vat.totalAmount());
    QCOMPARE(sum(message.texts("InvoiceRow/RowAmount")), sign * vat.totalAmount());
    QCOMPARE(sum(rowExcluded), sign * vat.totalAmountVatExcluded());
    QCOMPARE(sum(message.texts("InvoiceRow/RowVatAmount")), sign * vat.totalVatAmount());

    for (int i = 0; i < rates.size(); ++i) {
        const int rate = static_cast<int>(scaled(rates.at(i), 2));
        const auto ofRate = [&](const QStringList &amounts) {
            long long result = 0;
            for (int j = 0; j < items.size(); ++j)
                result += items.at(j).vatRate == rate ? cents(amounts.value(j)) : 0;
            return result;
        };
        const QString base = message.texts(details + "VatSpecificationDetails/VatBaseAmount").value(i);
        const QString vatAmount = message.texts(details + "VatSpecificationDetails/VatRateAmount").value(i);
        QCOMPARE(cents(base), sign * vat.totalAmountVatExcluded(rate));
        QCOMPARE(cents(vatAmount), sign * vat.totalVatAmount(rate));
        QCOMPARE(ofRate(rowExcluded), cents(base));
        QCOMPARE(ofRate(message.texts("InvoiceRow/RowVatAmount")), cents(vatAmount));
    }

    const QStringList quantities = message.texts("InvoiceRow/DeliveredQuantity");
    QCOMPARE(quantities.size(), items.size());
    for (int i = 0; i < items.size(); ++i) {
        checkRow(items.at(i),
                 {quantities.at(i), message.texts("InvoiceRow/UnitPriceAmount").value(i), rowExcluded.at(i),
                  message.texts("InvoiceRow/RowAmount").value(i)},
                 negated);
        if (QTest::currentTestFailed())
            return;
    }
}

/** A row's figures are its own, up to the cent that the sums may need; price times quantity less discount is its sum.
 */
void FinvoiceTest::checkRow(const InvoiceItem &item, const QStringList &cells, bool negated)
{
    const int sign = negated ? -1 : 1;
    const QByteArray shown = cells.join(" ").toUtf8() + " at " + QByteArray::number(item.amount);
    const long long quantity = scaled(cells.at(0), 4);
    const long long price = scaled(cells.at(1), 4);
    const long long vatExcluded = cents(cells.at(2));
    QCOMPARE(cents(cells.at(3)), sign * item.totalAmountVatIncluded());
    QVERIFY2(qAbs(vatExcluded - sign * item.totalAmountVatExcluded()) <= 1, shown);
    const double percent = 1 - qMax(0, item.discount) / 10000.0; // a surcharge is in the price
    const double roundedPrice = qAbs(quantity) * 0.005 / 10000;  // cents by the price's last decimal
    const double off = qAbs(quantity / 10000.0 * price / 100.0 * percent - vatExcluded);
    QVERIFY2(off <= 1.52 + roundedPrice, shown);
}

void FinvoiceTest::randomRows()
{
    constexpr int rates[] = {0, 1000, 1350, 2400, 2550};
    constexpr int discounts[] = {0, 0, 500, 3333, -1000, 10000};
    constexpr int decimals[] = {10000, 100, 10, 1}; // of a typed price: none, two, three, four
    QRandomGenerator random(1907);
    for (int i = 0; i < 60; ++i) {
        Sample sample = ordinary();
        sample.invoice.type = random.bounded(3);
        sample.seller.setProperty("invoiceForm/roundingMode", 1 + random.bounded(2));
        sample.items.clear();
        for (int rows = random.bounded(1, 25); rows > 0; --rows) {
            const int step = decimals[random.bounded(4)];
            const int quantity = random.bounded(4) ? random.bounded(1, 20) * 5000 : random.bounded(1, 2000000);
            sample.items << itemRow("T", "Tuote", quantity, "kpl", random.bounded(1, 2000000 / step) * step,
                                    rates[random.bounded(5)], random.bounded(2), discounts[random.bounded(6)]);
        }
        sample.items << itemRow("T", "Tuote", 10000, "kpl", 10000, 2550); // a credit note is not of nothing
        checkSums(sample, ParsedXml(write(sample)));
        if (QTest::currentTestFailed())
            return;
    }
}

void FinvoiceTest::splitTexts()
{
    const Sample sample = extreme();
    const ParsedXml xml(write(sample));
    QVERIFY2(!m_manager.hasException(), qPrintable(m_manager.exception()));
    const auto joined = [&xml](const char *path, int most) {
        const QStringList texts = xml.texts(path);
        for (const QString &text : texts) {
            if (text.size() < 2 || text.size() > most || text != text.trimmed())
                QTest::qFail(qPrintable(text), __FILE__, __LINE__);
        }
        return texts.join(QString());
    };
    const auto withoutBlanks = [](QString text) { return text.remove(QRegularExpression("\\s")); };

    // Nothing is lost where an element may be repeated, and words stay whole.
    QCOMPARE(xml.texts("SellerPartyDetails/SellerOrganisationName"),
             QStringList({utf8("Pohjois-Karjalan Maanrakennus- ja"), utf8("Kuljetusyhtymä Väisänen ja"), "Kumpp. Oy"}));
    QCOMPARE(joined("BuyerPartyDetails/BuyerOrganisationName", 35), sample.customer.name);
    const QString freeText = withoutBlanks(joined("InvoiceDetails/InvoiceFreeText", 512));
    QVERIFY(freeText.startsWith(withoutBlanks(sample.invoice.property("t1").toString())));
    QVERIFY(freeText.contains(sample.invoice.property("t2").toString()));
    QVERIFY(freeText.contains(withoutBlanks(sample.invoice.buyerRef)));
    QVERIFY(freeText.contains(withoutBlanks(sample.invoice.paymentTerms)));
    const InvoiceItem &item = sample.items.at(6);
    const QString name = xml.texts("InvoiceRow/ArticleName").at(5);
    QVERIFY(name.size() <= 100);
    const QString rowText = withoutBlanks(joined("InvoiceRow/RowFreeText", 512));
    QVERIFY(rowText.contains(item.productNumber + item.productName.mid(name.size()) + withoutBlanks(item.text)));

    // What may not be repeated is cut, but no cut mail address is written.
    QCOMPARE(xml.texts("BuyerPartyDetails/BuyerPostalAddressDetails/BuyerStreetName").size(), 3);
    joined("BuyerPartyDetails/BuyerPostalAddressDetails/BuyerTownName", 35);
    joined("InvoiceDetails/BuyerReferenceIdentifier", 35);
    QCOMPARE(xml.texts("InvoiceDetails/PaymentTermsDetails/PaymentTermsFreeText").size(), 2);
    joined("InvoiceDetails/PaymentTermsDetails/PaymentTermsFreeText", 35);
    QCOMPARE(xml.text("BuyerContactPersonName"), utf8("😀").repeated(17)); // no half of a character
    QCOMPARE(xml.texts("BuyerCommunicationDetails/BuyerEmailaddressIdentifier"), QStringList());
    QCOMPARE(xml.texts("InvoiceRow/UnitPriceAmount").mid(6), QStringList({"1234567,8901", "0,0012"}));
}

void FinvoiceTest::characters()
{
    const QByteArray message = write(oddCharacters());
    const ParsedXml xml(message);
    QCOMPARE(xml.error, QString());
    QCOMPARE(xml.text("BuyerPartyDetails/BuyerOrganisationName"), QString("Ab c <&>\"'"));
    QCOMPARE(xml.texts("InvoiceDetails/InvoiceFreeText").first(), utf8("€ Š ž Œ ł – “lainaus” 😀 loppu"));
    QCOMPARE(xml.attributes("InvoiceRow/DeliveredQuantity", "QuantityUnitCode").first(), utf8("m² “\""));
    QCOMPARE(xml.attributes("InvoiceRow/UnitPriceAmount", "UnitPriceUnitCode").first(), utf8("m² “\""));
    QVERIFY2(message.contains("\xA4 \xA6 \xB8 \xBC &#"), message); // the first four are in the character set
    for (const char byte : message)
        QVERIFY2(static_cast<unsigned char>(byte) >= ' ' || byte == '\n', message);
}

void FinvoiceTest::refused_data()
{
    QTest::addColumn<Sample>("sample");
    QTest::addColumn<QString>("error");
    const QString prefix = QStringLiteral("Finvoice-laskua ei voi kirjoittaa, ");
    const auto row = [&prefix](const char *name, void (*change)(Sample &), const char *error) {
        QTest::newRow(name) << changed(ordinary(), change) << prefix + utf8(error);
    };
    row(
        "no reference", [](Sample &s) { s.invoice.referenceNumber.clear(); }, "tiedoista puuttuu: viitenumero");
    row(
        "blank reference", [](Sample &s) { s.invoice.referenceNumber = "  "; }, "tiedoista puuttuu: viitenumero");
    row(
        "malformed reference", [](Sample &s) { s.invoice.referenceNumber = "12a"; }, "viitenumero ei kelpaa: 12A");
    row(
        "reference too long", [](Sample &s) { s.invoice.referenceNumber = QString(21, '1'); },
        "viitenumero ei kelpaa: 111111111111111111111");
    row(
        "no account", [](Sample &s) { s.accounts.clear(); },
        "tiedoista puuttuu: laskulla näkyvän pankkitilin IBAN-tilinumero");
    row(
        "only hidden accounts", [](Sample &s) { s.accounts = {account("FI2112345600000785", "NDEAFIHH", false)}; },
        "tiedoista puuttuu: laskulla näkyvän pankkitilin IBAN-tilinumero");
    row(
        "account without IBAN", [](Sample &s) { s.accounts = {account("123456-785", "NDEAFIHH")}; },
        "tiedoista puuttuu: laskulla näkyvän pankkitilin IBAN-tilinumero");
    row(
        "no seller", [](Sample &s) { s.seller.sellerName = " "; }, "tiedoista puuttuu: myyjän nimi");
    row(
        "no customer name", [](Sample &s) { s.customer.name.clear(); }, "tiedoista puuttuu: asiakkaan nimi");
    row(
        "no date", [](Sample &s) { s.invoice.date = QDate(); }, "tiedoista puuttuu: laskun päivämäärä");
    row(
        "several at once",
        [](Sample &s) {
            s.invoice.number = 0;
            s.invoice.referenceNumber.clear();
            s.seller.sellerName.clear();
        },
        "tiedoista puuttuu: laskun numero, viitenumero, myyjän nimi");
    row(
        "credit note of nothing",
        [](Sample &s) {
            s.invoice.type = Invoice::creditNote;
            s.items.clear();
        },
        "hyvityslaskun loppusumma on nolla");
    row(
        "negative VAT", [](Sample &s) { s.items[0].vatRate = -100; }, "prosenttiluku ei kelpaa: -1");
    row(
        "VAT of 1000 %", [](Sample &s) { s.items[0].vatRate = 100000; }, "prosenttiluku ei kelpaa: 1000");
}

void FinvoiceTest::refused()
{
    QFETCH(Sample, sample);
    QFETCH(QString, error);
    write(sample);
    QVERIFY(m_manager.hasException());
    QCOMPARE(m_manager.exception(), error);
    write(ordinary()); // an error is that of its own invoice
    QVERIFY(!m_manager.hasException());
}

/** Two invoices appended to one file: a frame directly in front of each document. */
void FinvoiceTest::frames()
{
    const QString fileName = m_folder.filePath("frames.xml");
    m_manager.setSoapEnvEnabled(true);
    for (const int number : {5, 1001}) {
        Sample sample = allAddresses();
        sample.invoice.number = number;
        QVERIFY(store(sample));
        XmlScriptModel model(&m_registry);
        model.criteria()->id = sample.invoice.id;
        QVERIFY(model.run());
        m_manager.write(fileName, true, &model);
        QVERIFY2(!m_manager.hasException(), qPrintable(m_manager.exception()));
    }
    m_manager.setSoapEnvEnabled(false);

    QFile file(fileName);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QByteArray rest = file.readAll();
    for (const char *number : {"5", "1001"}) {
        QVERIFY2(rest.startsWith("<SOAP-ENV:Envelope "), rest);
        const int frameLength = rest.indexOf(endOfFrame) + static_cast<int>(strlen(endOfFrame));
        const QByteArray between = "\n<?xml version=\"1.0\" encoding=\"ISO-8859-15\"?>\n";
        QVERIFY2(rest.mid(frameLength).startsWith(between), rest);
        const ParsedXml frame(rest.left(frameLength));
        QCOMPARE(frame.error, QString());
        const QString header = QStringLiteral("SOAP-ENV:Header/eb:MessageHeader/");
        QCOMPARE(frame.texts(header + "eb:From/eb:PartyId"), QStringList({"003707375462", "NDEAFIHH"}));
        QCOMPARE(frame.texts(header + "eb:To/eb:PartyId"), QStringList({"003712345671", "OKOYFIHH"}));
        QCOMPARE(frame.text(header + "eb:MessageData/eb:MessageId"), QString(number));
        rest = rest.mid(frameLength + 1);

        const QByteArray end = "</Finvoice>\n";
        const int length = rest.indexOf(end) + end.size();
        const ParsedXml document(rest.left(length));
        QCOMPARE(document.error, QString());
        QCOMPARE(document.text("InvoiceDetails/InvoiceNumber"), QString(number));
        const QString transmission = QStringLiteral("MessageTransmissionDetails/");
        QCOMPARE(document.text(transmission + "MessageReceiverDetails/ToIdentifier"), QString("003712345671"));
        QCOMPARE(document.text(transmission + "MessageDetails/MessageIdentifier"),
                 QString(number).rightJustified(2, '0'));
        rest = rest.mid(length);
    }
    QCOMPARE(rest, QByteArray());
}

QTEST_GUILESS_MAIN(FinvoiceTest)
#include "tst_finvoice.moc"

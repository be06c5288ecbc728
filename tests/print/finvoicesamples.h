#ifndef FINVOICESAMPLES_H
#define FINVOICESAMPLES_H

#include "bankaccount.h"
#include "customer.h"
#include "invoice.h"
#include "invoiceitem.h"
#include "invoiceprintmodel.h"
#include "settings.h"
#include "vat.h"

#include <QVector>

/** Invoices as a small business sends them, and harder ones. */
namespace FinvoiceSamples {

/** Everything that one message comes from. */
struct Sample {
    Settings seller;
    QVector<BankAccount> accounts;
    Customer customer;
    Invoice invoice; ///< its total is that of the items, its balance the total less `paid`
    QVector<InvoiceItem> items;
    int paid = 0;          ///< cents
    int totalAddition = 0; ///< cents that the stored total is off the sum of the rows
    int printType = InvoicePrintModel::ownType;
};

inline QString utf8(const char *text) { return QString::fromUtf8(text); }

inline BankAccount account(const char *iban, const char *bic, bool visible = true)
{
    BankAccount result;
    result.iban = QLatin1String(iban);
    result.bic = QLatin1String(bic);
    result.visible = visible;
    return result;
}

/** A row; quantity and price in ten-thousandths, rate and discount in hundredths of a percent. */
inline InvoiceItem itemRow(const char *number, const char *name, long long quantity, const char *unit, long long price,
                           int rate, bool vatExcluded = true, int discount = 0)
{
    InvoiceItem result;
    result.productNumber = utf8(number);
    result.productName = utf8(name);
    result.quantity = quantity;
    result.unitCode = utf8(unit);
    result.amount = price;
    result.vatRate = rate;
    result.vatExcluded = vatExcluded;
    result.discount = discount;
    return result;
}

inline InvoiceItem textRow(const char *text, int rate = 0)
{
    InvoiceItem result;
    result.text = utf8(text);
    result.vatRate = rate;
    return result;
}

inline Settings seller()
{
    Settings settings;
    settings.sellerName = utf8("Kuusikon Pyörähuolto Oy");
    settings.sellerStreetName = utf8("Esimerkkikatu 12 A");
    settings.sellerPostCode = QStringLiteral("99999");
    settings.sellerTownName = utf8("Mallila");
    settings.sellerCountry = utf8("Suomi");
    settings.sellerBusinessId = QStringLiteral("0737546-2");
    settings.setProperty(QStringLiteral("seller/vatNumber"), QStringLiteral("FI07375462"));
    settings.setProperty(QStringLiteral("seller/phoneNumber"), QStringLiteral("040 123 4567"));
    settings.setProperty(QStringLiteral("seller/emailAddress"), QStringLiteral("laskut@kuusikko.example"));
    settings.setProperty(QStringLiteral("seller/webAddress"), QStringLiteral("https://kuusikko.example/"));
    settings.setProperty(QStringLiteral("finvoice/senderId"), QStringLiteral("003707375462"));
    settings.setProperty(QStringLiteral("finvoice/intermediatorId"), QStringLiteral("NDEAFIHH"));
    settings.setProperty(QStringLiteral("settings/periodForComplaints"), utf8("8 päivää"));
    settings.setProperty(QStringLiteral("invoiceForm/reminderText"), utf8("Pyydämme maksamaan saatavamme."));
    settings.setProperty(QStringLiteral("invoiceForm/footer/text1"), utf8("Kotipaikka Mallila"));
    settings.setProperty(QStringLiteral("invoiceForm/footer/text3"), utf8("Avoinna\n9–17"));
    return settings;
}

inline Sample ordinary()
{
    Sample sample;
    sample.seller = seller();
    sample.accounts = {account("FI2112345600000785", "NDEAFIHH"), account("FI7944052020036082", "")};
    sample.customer.number = 12;
    sample.customer.name = utf8("Taloyhtiö Mäntyranta");
    sample.customer.streetName = utf8("Mallitie 3");
    sample.customer.postCode = QStringLiteral("99998");
    sample.customer.townName = utf8("Mallila");
    sample.customer.contact = utf8("Åsa Öhman");
    sample.customer.emailAddress = QStringLiteral("isannointi@mantyranta.example");
    sample.customer.vatNumber = QStringLiteral("1234567-1");
    sample.invoice.number = 1001;
    sample.invoice.date = QDate(2026, 3, 5);
    sample.invoice.dueDate = QDate(2026, 3, 19);
    sample.invoice.paymentTerms = utf8("14 pv netto");
    sample.invoice.interestOnArrears = 1150;
    sample.invoice.referenceNumber = QStringLiteral("12344");
    sample.invoice.buyerRef = QStringLiteral("PO-4711");
    sample.invoice.sellerRef = utf8("Maija Meikäläinen");
    sample.invoice.setProperty(QStringLiteral("t1"), utf8("Kiitos tilauksesta!"));
    sample.items = {itemRow("H1", "Huolto & säätö", 25000, "h", 600000, 2400, false)};
    return sample;
}

/** Buyer and seller with all their e-invoice addresses. */
inline Sample allAddresses()
{
    Sample sample = ordinary();
    sample.customer.setProperty(QStringLiteral("e1"), QStringLiteral("OKOYFIHH"));
    sample.customer.setProperty(QStringLiteral("e2"), QStringLiteral("003712345671"));
    sample.customer.setProperty(QStringLiteral("e3"), QStringLiteral("003712345671005"));
    sample.seller.setProperty(QStringLiteral("finvoice/edi"), QStringLiteral("003707375462001"));
    sample.seller.setProperty(QStringLiteral("finvoice/epiInstructionId"), QStringLiteral("ABC-1"));
    return sample;
}

inline Sample severalRates()
{
    Sample sample = ordinary();
    sample.invoice.delivery = utf8("Vapaasti varastossa");
    sample.invoice.deliveryDate = QDate(2026, 3, 4);
    sample.items = {itemRow("H1", "Huolto", 25000, "h", 600000, 2550),
                    itemRow("K-7", "Käsikirja", 20000, "kpl", 350000, 1350, false, 1000),
                    textRow("Toimitettu varastosta.\n\nRahti sisältyy hintaan.", 1000),
                    itemRow("V", "Vakuutus", 10000, "", 125000, 0),
                    itemRow("P", "Pikatoimitus", 10000, "kpl", 1000000, 2550, true, -1250),
                    itemRow("", "Hinnan oikaisu", -10000, "kpl", 33300, 2550)};
    return sample;
}

inline Sample ofKind(int type, int printType = InvoicePrintModel::ownType)
{
    Sample sample = severalRates();
    sample.invoice.type = type;
    sample.printType = printType;
    return sample;
}

inline Sample negativeCreditNote()
{
    Sample sample = ofKind(Invoice::creditNote);
    for (InvoiceItem &item : sample.items)
        item.quantity = -item.quantity;
    return sample;
}

inline Sample foreignBuyer()
{
    Sample sample = ordinary();
    sample.customer.name = utf8("Łódź–Kraków “Transport” Sp. z o.o. €Š");
    sample.customer.streetName = utf8("ul. Zażółcona 5\nBudynek C");
    sample.customer.country = utf8("Puola");
    sample.customer.vatNumber = QStringLiteral("PL5260001246");
    sample.customer.setProperty(QStringLiteral("l"), utf8("en - englanti"));
    sample.invoice.referenceNumber = QStringLiteral("RF0812344");
    sample.items[0].vatRate = 0;
    return sample;
}

/** Nothing but what the schema demands. */
inline Sample bare()
{
    Sample sample;
    sample.seller.sellerName = utf8("X");
    sample.seller.sellerTownName = utf8("Mallila");
    sample.accounts = {account("FI7944052020036082", "", true)};
    sample.customer.name = utf8("😀");
    sample.customer.streetName = utf8("A");
    sample.customer.townName = utf8("Mallila");
    sample.customer.postCode = utf8("99998");
    sample.invoice.number = 7;
    sample.invoice.date = QDate(2026, 3, 5);
    sample.invoice.referenceNumber = QStringLiteral("1232");
    return sample;
}

inline Sample extreme()
{
    Sample sample = severalRates();
    const QString word = utf8("Maanrakennusyhtymä");
    sample.seller.sellerName = utf8("Pohjois-Karjalan Maanrakennus- ja Kuljetusyhtymä Väisänen ja Kumpp. Oy");
    sample.customer.name = word.repeated(20);
    sample.customer.streetName = utf8("Kaivosmiehenkadun risteyksen takaisen polun pään kuja 123 B 4\n").repeated(3);
    sample.customer.townName = word.repeated(3);
    sample.customer.contact = utf8("😀").repeated(40);
    sample.customer.emailAddress = word.repeated(9);
    sample.customer.country = utf8("Yhdistynyt kuningaskunta ja Pohjois-Irlanti");
    sample.invoice.number = std::numeric_limits<int>::max();
    sample.invoice.buyerRef = utf8("Tilausnumero 4500012345678 / kustannuspaikka 998877 / projekti Itäväylä");
    sample.invoice.paymentTerms = utf8("60 päivää netto, 14 päivää −2 % käteisalennus koko summasta, muuten netto");
    sample.invoice.referenceNumber = QStringLiteral("92125374252539897737");
    sample.invoice.setProperty(QStringLiteral("t1"), utf8("sana ").repeated(300));
    sample.invoice.setProperty(QStringLiteral("t2"), QLatin1Char('x') + utf8("😀").repeated(700));
    sample.items << itemRow("1234567890123456789012345678901234567890", "", 1, "rullakkoa täynnä", 1, 2550);
    sample.items.last().productName = word.repeated(30);
    sample.items.last().text = utf8("pitkä rivi ").repeated(200);
    // A price beyond 32 bits, a quantity of fourteen characters
    sample.items << itemRow("V", "Vene", 1000, "kpl", 12345678901234LL / 1000, 0)
                 << itemRow("R", "Ruuvi", -2147483647, "kpl", 12, 2550);
    return sample;
}

/** One character, two units of UTF-16, where the schema wants two characters or nothing. */
inline Sample singleCharacters()
{
    Sample sample = allAddresses();
    const QString text = utf8("😀");
    sample.seller.sellerName = sample.seller.sellerTownName = text;
    for (QString Customer::*field : {&Customer::name, &Customer::postCode, &Customer::country, &Customer::contact})
        sample.customer.*field = text;
    sample.customer.setProperty(QStringLiteral("e2"), text);
    sample.invoice.paymentTerms = text;
    sample.items[0].unitCode = sample.items[0].productName = text;
    return sample;
}

/** Texts with what XML forbids and with what ISO-8859-15 lacks. */
inline Sample oddCharacters()
{
    Sample sample = ordinary();
    sample.customer.name = utf8("\x01 Ab\x0B\x0C"
                                "c\t<&>\"'\x7F ");
    sample.invoice.setProperty(QStringLiteral("t1"), utf8("€ Š ž Œ ł – “lainaus” 😀\u00A0loppu"));
    sample.items[0].unitCode = utf8("m²\n“\"");
    return sample;
}

} // namespace FinvoiceSamples

#endif

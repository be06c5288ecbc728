#ifndef SAMPLEDOCUMENTS_H
#define SAMPLEDOCUMENTS_H

#include "customer.h"
#include "invoice.h"
#include "invoiceitem.h"
#include "invoiceprintmodel.h"

/** Documents as a small business makes them, and harder ones. */
namespace Sample {

/** Everything that one printed document comes from. */
struct Document {
    Customer customer;
    bool hasCustomer = true;
    Invoice invoice;
    QVector<InvoiceItem> items;
    int printType = InvoicePrintModel::ownType;
    QMap<QString, QVariant> settings; ///< properties besides those of the sample company
    bool hasLogo = false;
    QString iban;            ///< of the seller's first account, when not the usual one
    bool hasBalance = false; ///< whether the invoice's balance is set already; else nothing is paid
};

inline InvoiceItem item(const char *number, const QString &name, double quantity, const char *unit, double price,
                        int vatRate)
{
    InvoiceItem result;
    result.productNumber = QLatin1String(number);
    result.productName = name;
    result.quantity = qRound64(quantity * 10000);
    result.unitCode = QLatin1String(unit);
    result.setAmountVatExcluded(qRound64(price * 10000));
    result.vatRate = vatRate;
    return result;
}

inline void addRows(Document &document, int count)
{
    const QStringList names = {QStringLiteral("Asennustyö"), QStringLiteral("Kupariputki 15 mm, kova"),
                               QStringLiteral("Matkakorvaus"), QStringLiteral("Sulkuventtiili, messinkiä")};
    for (int i = 0; i < count; ++i) {
        document.items << item(qPrintable(QString::number(1001 + i)), names.at(i % names.size()), 1 + i % 7 * 0.5,
                               i % 2 ? "m" : "h", 12.5 + i * 3.2, 2550);
    }
}

inline Document ordinary()
{
    Document document;
    document.customer.number = 17;
    document.customer.name = QStringLiteral("Rakennusliike Möttönen Oy");
    document.customer.contact = QStringLiteral("Äijälä Åke");
    document.customer.streetName = QStringLiteral("Hämeenkatu 12 A 4");
    document.customer.postCode = QStringLiteral("33100");
    document.customer.townName = QStringLiteral("TAMPERE");
    document.customer.vatNumber = QStringLiteral("0737546-2");
    Invoice &invoice = document.invoice;
    invoice.date = QDate(2026, 2, 3);
    invoice.dueDate = QDate(2026, 2, 17);
    invoice.paymentTerms = QStringLiteral("14 päivää netto");
    invoice.referenceNumber = Invoice::appendCheckDigitToReferenceNumber(QStringLiteral("1001172"));
    invoice.interestOnArrears = 1150;
    invoice.buyerRef = QStringLiteral("PO-4711");
    invoice.sellerRef = QStringLiteral("Maija Meikäläinen");
    invoice.setProperty(QStringLiteral("t1"), QStringLiteral("Kiitos tilauksesta!"));
    addRows(document, 3);
    return document;
}

inline Document discounted()
{
    Document document = ordinary();
    document.hasLogo = true;
    document.items[1].discount = 1250;
    document.items[1].text = QStringLiteral("Toimitettu varastosta Lahdesta, rahti sisältyy hintaan.");
    document.items << item("K-7", QStringLiteral("Käsikirja, sidottu"), 2, "kpl", 35, 1350)
                   << item("R-1", QStringLiteral("Ruokatarvikkeet"), 0.125, "kg", 8.4321, 1350);
    document.invoice.deliveryDate = QDate(2026, 2, 1);
    document.invoice.delivery = QStringLiteral("Vapaasti varastossa");
    return document;
}

inline Document manyRows(int count)
{
    Document document = ordinary();
    document.items.clear();
    addRows(document, count);
    return document;
}

inline Document ofType(int type, int printType = InvoicePrintModel::ownType)
{
    Document document = ordinary();
    document.invoice.type = type;
    document.printType = printType;
    return document;
}

inline Document creditNote()
{
    Document document = ofType(Invoice::creditNote);
    for (InvoiceItem &row : document.items)
        row.quantity = -row.quantity;
    return document;
}

/** With an open balance in cents. */
inline Document partlyPaid(int printType, int balance)
{
    Document document = ofType(Invoice::invoiceType, printType);
    document.invoice.balance = balance;
    document.hasBalance = true;
    return document;
}

inline Document inLanguage(const char *language, Document document)
{
    document.customer.setProperty(QStringLiteral("l"), QLatin1String(language));
    return document;
}

inline Document extreme()
{
    Document document = discounted();
    document.customer.name =
        QStringLiteral("Pohjois-Karjalan Maanrakennus- ja Kuljetusyhtymä Väisänen, Väänänen ja Kumpp. Oy");
    document.customer.contact = QStringLiteral("Ostoreskontra, toimitusjohtaja Anna-Kaarina von Wirsén-Mäkeläinen");
    document.customer.streetName = QStringLiteral("Kaivosmiehenkadunristeyksentakaisenpolunpäänkuja 123 B 45");
    document.customer.country = QStringLiteral("SUOMI");
    Invoice &invoice = document.invoice;
    invoice.paymentTerms = QStringLiteral("60 päivää netto, 14 päivää −2 % käteisalennus koko summasta");
    invoice.buyerRef =
        QStringLiteral("Tilausnumero 4500012345678 / kustannuspaikka 998877, projekti Itäväylän laajennus");
    invoice.referenceNumber = QStringLiteral("92125374252539897737");
    invoice.setProperty(QStringLiteral("t1"), QStringLiteral("Lisätiedot osoitteessa https://www.example.com/") +
                                                  QString(90, QLatin1Char('x')) + QStringLiteral(" ja puhelimitse."));
    document.items[0].amount = 99999999900LL;
    document.items[0].quantity = 10000;
    document.items[0].vatRate = 0;
    document.items[1].productName =
        QStringLiteral("Kuusikulmioruuvi M12×120 kuumasinkitty, 8.8, sis. mutteri, aluslevy");
    document.items[1].productNumber = QStringLiteral("6418677000123-ABC");
    document.items[1].quantity = 12345678;
    document.items[2].productName = QString(60, QLatin1Char('W'));
    document.items[2].unitCode = QStringLiteral("rullakkoa");
    document.items[2].text = QStringLiteral("Ensimmäinen rivi\nToinen rivi, ") +
                             QStringLiteral("joka on niin pitkä, että se jatkuu seuraavalle riville ").repeated(3);
    return document;
}

inline Document endless()
{
    Document document = ordinary();
    document.invoice.setProperty(QStringLiteral("t1"), QStringLiteral("Ehdot jatkuvat. ").repeated(400));
    document.items[0].productName = QStringLiteral("Tuotenimi ").repeated(300);
    document.items[1].text = QStringLiteral("Selitettä riittää, ").repeated(500);
    return document;
}

/** Rows that sell nothing, with a VAT rate of their own, and other line separators than the usual one. */
inline Document freeTexts()
{
    Document document = ordinary();
    InvoiceItem row = item("", QStringLiteral("Väliotsikko\u2028jatkuu"), 0, "kpl", 0, 0);
    row.text = QStringLiteral("yksi\u2028kaksi\u2029kolme\vneljä\fviisi");
    document.items.insert(1, row);
    return document;
}

inline Document bare()
{
    Document document;
    document.hasCustomer = false;
    document.customer = Customer();
    return document;
}

} // namespace Sample

#endif

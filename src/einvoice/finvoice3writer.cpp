#include "finvoice3writer.h"

#include "decimaltext.h"
#include "invoice.h"
#include "xmlencoding.h"
#include "xmltext.h"

namespace {

using namespace EInvoice;

constexpr int nameLength = 70, streetLength = 35, mostStreets = 3, freeTextLength = 512, unitLength = 14;
constexpr int termsLength = 70;
constexpr int mostPriceDecimals = 5;

const QString currency = QStringLiteral("AmountCurrencyIdentifier=\"EUR\"");
const QString dateFormat = QStringLiteral("Format=\"CCYYMMDD\"");

QString date(const QDate &date) { return date.toString(QStringLiteral("yyyyMMdd")); }
QString amount(long long cents) { return decimalText(cents, 2, 2, QLatin1Char(',')); }
QString percent(int hundredths) { return decimalText(hundredths, 2, 0, QLatin1Char(',')); }
QString quoted(const char *name, const QString &value)
{
    return QLatin1String(name) + QLatin1String("=\"") + value.toHtmlEscaped() + QLatin1Char('"');
}
QString lineUp(QString text) { return text.replace(QLatin1Char('\n'), QLatin1Char(' ')); }

/** The lines of a text in pieces of a length, each an element of its own. */
void texts(XmlText &xml, const char *name, const QString &text, int length, int most = 1000)
{
    int count = 0;
    for (const QString &line : text.split(QLatin1Char('\n'))) {
        for (int i = 0; i < line.size() && count < most; i += length, ++count)
            xml.leaf(name, line.mid(i, length).trimmed());
    }
}

void address(XmlText &xml, const Party &party, const char *group, const char *street, const char *town,
             const char *postCode)
{
    xml.open(group);
    int count = 0;
    for (const QString &line : party.streets) {
        if (line.size() > 1 && ++count <= mostStreets) // the format takes two characters or none
            xml.leaf(street, line.left(streetLength));
    }
    xml.leaf(town, party.town.left(streetLength));
    xml.leaf(postCode, party.postCode.left(streetLength));
    xml.leaf("CountryCode", party.country);
    xml.close();
}

void transmission(XmlText &xml, const Document &d)
{
    const auto scheme = [](const Party &party) { return quoted("SchemeID", party.endpointScheme); };
    xml.open("MessageTransmissionDetails");
    xml.open("MessageSenderDetails");
    xml.leaf("FromIdentifier", d.seller.endpoint, scheme(d.seller));
    xml.leaf("FromIntermediator", d.seller.operatorId);
    xml.close();
    xml.open("MessageReceiverDetails");
    xml.leaf("ToIdentifier", d.buyer.endpoint, scheme(d.buyer));
    xml.leaf("ToIntermediator", d.buyer.operatorId);
    xml.close();
    xml.open("MessageDetails");
    xml.leaf("MessageIdentifier", QString::number(d.number).rightJustified(2, QLatin1Char('0'))); // two at least
    // Of the document and not of the moment: the same invoice gives the same bytes.
    xml.leaf("MessageTimeStamp", d.date.toString(Qt::ISODate) + QLatin1String("T00:00:00"));
    xml.leaf("SpecificationIdentifier", QStringLiteral("EN16931"));
    xml.close();
    xml.close();
}

void seller(XmlText &xml, const Document &d)
{
    const Party &p = d.seller;
    xml.open("SellerPartyDetails");
    xml.leaf("SellerPartyIdentifier", p.businessId);
    xml.leaf("SellerOrganisationName", p.name.left(nameLength));
    if (p.tradeName.size() > 1)
        xml.leaf("SellerOrganisationTradingName", p.tradeName.left(nameLength));
    xml.leaf("SellerOrganisationTaxCode", p.vatNumber);
    address(xml, p, "SellerPostalAddressDetails", "SellerStreetName", "SellerTownName", "SellerPostCodeIdentifier");
    xml.close();
    if (p.endpointScheme == QLatin1String("0216"))
        xml.leaf("SellerOrganisationUnitNumber", p.endpoint);
    xml.leaf("SellerContactPersonName", p.contact.left(nameLength));
    xml.open("SellerCommunicationDetails");
    xml.leaf("SellerPhoneNumberIdentifier", p.phone.left(35));
    xml.leaf("SellerEmailaddressIdentifier", p.email.left(70));
    xml.close();
    xml.open("SellerInformationDetails");
    xml.leaf("SellerTaxRegistrationText", p.taxRegistration.left(35));
    xml.leaf("SellerAdditionalLegalInfo", p.legalInfo);
    for (const Account &account : d.accounts) {
        if (account.bic.isEmpty())
            continue; // the group has no place for an account without one
        xml.open("SellerAccountDetails");
        xml.leaf("SellerAccountID", account.iban, quoted("IdentificationSchemeName", QStringLiteral("IBAN")));
        xml.leaf("SellerBic", account.bic, quoted("IdentificationSchemeName", QStringLiteral("BIC")));
        xml.leaf("SellerAccountName", account.name.left(35));
        xml.close();
    }
    xml.close();
}

void buyer(XmlText &xml, const Document &d)
{
    const Party &p = d.buyer;
    xml.open("BuyerPartyDetails");
    xml.leaf("BuyerPartyIdentifier", p.businessId);
    xml.leaf("BuyerOrganisationName", p.name.left(nameLength));
    xml.leaf("BuyerOrganisationTaxCode", p.vatNumber);
    address(xml, p, "BuyerPostalAddressDetails", "BuyerStreetName", "BuyerTownName", "BuyerPostCodeIdentifier");
    xml.close();
    if (p.endpointScheme == QLatin1String("0216"))
        xml.leaf("BuyerOrganisationUnitNumber", p.endpoint);
    xml.leaf("BuyerContactPersonName", p.contact.left(nameLength));
    xml.open("BuyerCommunicationDetails");
    xml.leaf("BuyerPhoneNumberIdentifier", p.phone.left(35));
    xml.leaf("BuyerEmailaddressIdentifier", p.email.left(70));
    xml.close();
    const Party &to = d.deliverTo;
    const bool isWhole = to.streets.value(0).size() > 1 && to.town.size() > 1 && to.postCode.size() > 1;
    if (d.hasDeliverTo && isWhole) { // the group is all or nothing
        xml.open("DeliveryPartyDetails");
        xml.leaf("DeliveryOrganisationName", (to.name.size() < 2 ? p.name : to.name).left(streetLength));
        address(xml, to, "DeliveryPostalAddressDetails", "DeliveryStreetName", "DeliveryTownName",
                "DeliveryPostCodeIdentifier");
        xml.close();
    }
    xml.open("DeliveryDetails");
    xml.leaf("DeliveryDate", date(d.deliveryDate), dateFormat);
    xml.close();
}

QDate dueDate(const Document &d) { return d.dueDate.isValid() ? d.dueDate : d.date; }

void details(XmlText &xml, const Document &d, int sign)
{
    const bool isCredit = d.kind == Document::creditNote;
    xml.open("InvoiceDetails");
    xml.leaf("InvoiceTypeCode", isCredit ? QStringLiteral("INV02") : QStringLiteral("INV01"));
    xml.leaf("InvoiceTypeCodeUN", isCredit ? QStringLiteral("381") : QStringLiteral("380"));
    xml.leaf("InvoiceTypeText", isCredit ? QStringLiteral("HYVITYSLASKU") : QStringLiteral("LASKU"));
    xml.leaf("OriginCode", QStringLiteral("Original"));
    xml.leaf("InvoiceNumber", QString::number(d.number));
    xml.leaf("InvoiceDate", date(d.date), dateFormat);
    xml.leaf("OriginalInvoiceNumber", d.precedingNumber);
    xml.leaf("OriginalInvoiceDate", date(d.precedingDate), dateFormat);
    xml.leaf("InvoicingPeriodStartDate", date(d.periodStart), dateFormat);
    xml.leaf("InvoicingPeriodEndDate", date(d.periodEnd), dateFormat);
    xml.leaf("SellerReferenceIdentifier", d.sellerReference.left(70));
    xml.leaf("SellersBuyerIdentifier", d.buyerNumber > 0 ? QString::number(d.buyerNumber) : QString());
    xml.leaf("OrderIdentifier", d.order);
    xml.leaf("AgreementIdentifier", d.contract);
    xml.leaf("BuyerReferenceIdentifier", d.buyerReference);
    xml.leaf("ProjectReferenceIdentifier", d.project.left(70));
    xml.leaf("RowsTotalVatExcludedAmount", amount(sign * d.net), currency);
    xml.leaf("InvoiceTotalVatExcludedAmount", amount(sign * d.net), currency);
    xml.leaf("InvoiceTotalVatAmount", amount(sign * d.tax), currency);
    xml.leaf("InvoiceTotalVatIncludedAmount", amount(sign * d.total), currency);
    if (d.rounding != 0)
        xml.leaf("InvoiceTotalRoundoffAmount", amount(sign * d.rounding), currency);
    if (d.paid != 0)
        xml.leaf("InvoicePaidAmount", amount(sign * d.paid), currency);
    xml.leaf("AccountDimensionText", d.accounting.left(35));
    for (const Tax &tax : d.taxes) {
        xml.open("VatSpecificationDetails");
        xml.leaf("VatBaseAmount", amount(sign * tax.base), currency);
        xml.leaf("VatRatePercent", percent(tax.rate));
        xml.leaf("VatCode", tax.category);
        xml.leaf("VatRateAmount", amount(sign * tax.tax), currency);
        texts(xml, "VatFreeText", tax.reason, 70, 3);
        xml.leaf("VatExemptionReasonCode", tax.reasonCode.left(20));
        xml.close();
    }
    if (d.buyer.name.size() > nameLength)
        texts(xml, "InvoiceFreeText", d.buyer.name, freeTextLength);
    for (const QString &note : d.notes)
        texts(xml, "InvoiceFreeText", note, freeTextLength);
    const QString stop = QStringLiteral(". ");
    const QString terms[] = {lineUp(d.terms.value(0)), lineUp(QStringList(d.terms.mid(1)).join(stop))}; // two at most
    if (terms[0].size() > termsLength || terms[1].size() > termsLength)
        texts(xml, "InvoiceFreeText", lineUp(d.terms.join(stop)), freeTextLength);
    xml.open("PaymentTermsDetails");
    for (const QString &text : terms)
        xml.leaf("PaymentTermsFreeText", text.left(termsLength));
    xml.leaf("InvoiceDueDate", date(dueDate(d)), dateFormat);
    if (d.interestOnArrears > 0) {
        xml.open("PaymentOverDueFineDetails");
        xml.leaf("PaymentOverDueFinePercent", percent(d.interestOnArrears));
        xml.close();
    }
    xml.close();
    xml.close();
}

void row(XmlText &xml, const Line &line, int id, int sign)
{
    const QString unit = line.unitCode.isEmpty() ? QStringLiteral("C62") : line.unitCode;
    const QString unitPrice = currency + QLatin1Char(' ') + quoted("QuantityUnitCodeUN", unit);
    QString units = quoted("QuantityUnitCodeUN", unit);
    if (!line.unitText.isEmpty())
        units.prepend(quoted("QuantityUnitCode", line.unitText.left(unitLength)) + QLatin1Char(' '));
    // A price of more decimals than the format takes is that of ten, a hundred ... of them.
    int decimals = line.priceDecimals;
    QString baseQuantity;
    if (decimals > mostPriceDecimals) {
        baseQuantity = QLatin1Char('1') + QString(decimals - mostPriceDecimals, QLatin1Char('0'));
        decimals = mostPriceDecimals;
    }
    const QString price = decimalText(line.price, decimals, 2, QLatin1Char(','));
    xml.open("InvoiceRow");
    xml.leaf("ArticleIdentifier", line.articleId.left(70));
    xml.leaf("ArticleName", line.name.left(100));
    xml.leaf("InvoicedQuantity", decimalText(sign * line.quantity, 4, 0, QLatin1Char(',')), units);
    xml.leaf("UnitPriceAmount", price, unitPrice);
    xml.leaf("UnitPriceNetAmount", price, unitPrice);
    xml.leaf("UnitPriceBaseQuantity", baseQuantity,
             baseQuantity.isEmpty() ? QString() : quoted("QuantityUnitCodeUN", unit));
    xml.leaf("RowPositionIdentifier", QString::number(id));
    if (line.name.size() > 100)
        texts(xml, "RowFreeText", line.name.mid(100), freeTextLength);
    texts(xml, "RowFreeText", line.note, freeTextLength);
    if (line.allowance > 0 || (line.allowance < 0 && line.base < 0)) {
        if (line.percent != 0)
            xml.leaf("RowDiscountPercent", percent(line.percent));
        xml.leaf("RowDiscountAmount", amount(sign * line.allowance), currency);
        if (line.percent != 0)
            xml.leaf("RowDiscountBaseAmount", amount(sign * line.base), currency);
        xml.leaf("RowDiscountTypeCode", QStringLiteral("95"));
        xml.leaf("RowDiscountTypeText", QStringLiteral("Alennus"));
    } else if (line.allowance < 0) {
        xml.open("RowChargeDetails");
        xml.leaf("ReasonText", QStringLiteral("Korotus"));
        if (line.percent != 0)
            xml.leaf("Percent", percent(line.percent));
        xml.leaf("Amount", amount(-sign * line.allowance), currency);
        if (line.percent != 0)
            xml.leaf("BaseAmount", amount(sign * line.base), currency);
        xml.close();
    }
    xml.leaf("RowVatRatePercent", percent(line.vatRate));
    xml.leaf("RowVatCode", line.category);
    xml.leaf("RowVatExcludedAmount", amount(sign * line.net), currency);
    xml.close();
}

void payment(XmlText &xml, const Document &d, int sign)
{
    const Account account = d.accounts.value(0);
    const bool isRf = d.reference.startsWith(QLatin1String("RF"));
    xml.open("EpiDetails");
    xml.open("EpiIdentificationDetails");
    xml.leaf("EpiDate", date(d.date), dateFormat);
    xml.leaf("EpiReference", QString::number(d.number));
    xml.close();
    xml.open("EpiPartyDetails");
    xml.open("EpiBfiPartyDetails");
    xml.leaf("EpiBfiIdentifier", account.bic, quoted("IdentificationSchemeName", QStringLiteral("BIC")));
    xml.close();
    xml.open("EpiBeneficiaryPartyDetails");
    xml.leaf("EpiNameAddressDetails", account.name.left(35));
    xml.leaf("EpiAccountID", account.iban, quoted("IdentificationSchemeName", QStringLiteral("IBAN")));
    xml.close();
    xml.close();
    xml.open("EpiPaymentInstructionDetails");
    xml.leaf("EpiRemittanceInfoIdentifier", isRf ? d.reference : Invoice::formatSpyReferenceNumber(d.reference),
             quoted("IdentificationSchemeName", isRf ? QStringLiteral("ISO") : QStringLiteral("SPY")));
    xml.leaf("EpiInstructedAmount", amount(sign * d.payable), currency);
    xml.leaf("EpiCharge", QStringLiteral("SHA"), quoted("ChargeOption", QStringLiteral("SHA")));
    xml.leaf("EpiDateOptionDate", date(dueDate(d)), dateFormat);
    xml.leaf("EpiPaymentMeansCode", QStringLiteral("58"));
    xml.close();
    xml.close();
}

} // namespace

QByteArray EInvoice::writeFinvoice3(const Document &document)
{
    const int sign = document.kind == Document::creditNote ? -1 : 1;
    XmlText xml(QLatin1String(XmlEncoding::declaration) +
                QLatin1String("\n<?xml-stylesheet type=\"text/xsl\" href=\"Finvoice.xsl\"?>\n"));
    xml.open("Finvoice", QStringLiteral("Version=\"3.0\" xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\" "
                                        "xsi:noNamespaceSchemaLocation=\"Finvoice3.0.xsd\""));
    transmission(xml, document);
    seller(xml, document);
    buyer(xml, document);
    details(xml, document, sign);
    for (int i = 0; i < document.lines.size(); ++i)
        row(xml, document.lines.at(i), i + 1, sign);
    payment(xml, document, sign);
    xml.close();
    return XmlEncoding::encode(xml.text());
}

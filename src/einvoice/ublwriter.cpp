#include "ublwriter.h"

#include "decimaltext.h"
#include "xmltext.h"

namespace {

using namespace EInvoice;

constexpr char namespaces[] = "xmlns:cac=\"urn:oasis:names:specification:ubl:schema:xsd:CommonAggregateComponents-2\" "
                              "xmlns:cbc=\"urn:oasis:names:specification:ubl:schema:xsd:CommonBasicComponents-2\" "
                              "xmlns=\"urn:oasis:names:specification:ubl:schema:xsd:";
const QString currency = QStringLiteral("currencyID=\"EUR\"");

QString date(const QDate &date) { return date.toString(Qt::ISODate); }
QString amount(long long cents) { return decimalText(cents, 2, 2, QLatin1Char('.')); }
QString percent(int hundredths) { return decimalText(hundredths, 2, 0, QLatin1Char('.')); }
QString scheme(const QString &code)
{
    return code.isEmpty() ? QString() : QLatin1String("schemeID=\"") + code.toHtmlEscaped() + QLatin1Char('"');
}

void taxScheme(XmlText &xml, const char *id = "VAT")
{
    xml.open("cac:TaxScheme");
    xml.leaf("cbc:ID", QLatin1String(id));
    xml.close();
}

void taxCategory(XmlText &xml, const char *name, const QString &category, int rate,
                 const QString &reasonCode = QString(), const QString &reason = QString())
{
    xml.open(name);
    xml.leaf("cbc:ID", category);
    if (category != QLatin1String("O"))
        xml.leaf("cbc:Percent", percent(rate));
    xml.leaf("cbc:TaxExemptionReasonCode", reasonCode);
    xml.leaf("cbc:TaxExemptionReason", reason);
    taxScheme(xml);
    xml.close();
}

void address(XmlText &xml, const char *name, const Party &party)
{
    xml.open(name);
    xml.leaf("cbc:StreetName", party.streets.value(0));
    xml.leaf("cbc:AdditionalStreetName", party.streets.value(1));
    xml.leaf("cbc:CityName", party.town);
    xml.leaf("cbc:PostalZone", party.postCode);
    xml.open("cac:AddressLine");
    xml.leaf("cbc:Line", QStringList(party.streets.mid(2)).join(QLatin1String(", ")));
    xml.close();
    xml.open("cac:Country");
    xml.leaf("cbc:IdentificationCode", party.country);
    xml.close();
    xml.close();
}

void party(XmlText &xml, const char *name, const Party &party)
{
    xml.open(name);
    xml.open("cac:Party");
    xml.leaf("cbc:EndpointID", party.endpoint, scheme(party.endpointScheme));
    xml.open("cac:PartyName");
    xml.leaf("cbc:Name", party.tradeName);
    xml.close();
    address(xml, "cac:PostalAddress", party);
    const struct {
        const QString &id;
        const char *scheme;
    } registrations[] = {{party.vatNumber, "VAT"}, {party.taxRegistration, "TAX"}};
    for (const auto &registration : registrations) {
        if (registration.id.isEmpty())
            continue;
        xml.open("cac:PartyTaxScheme");
        xml.leaf("cbc:CompanyID", registration.id);
        taxScheme(xml, registration.scheme);
        xml.close();
    }
    xml.open("cac:PartyLegalEntity");
    xml.leaf("cbc:RegistrationName", party.name);
    xml.leaf("cbc:CompanyID", party.businessId, scheme(QStringLiteral("0212")));
    xml.leaf("cbc:CompanyLegalForm", party.legalInfo);
    xml.close();
    xml.open("cac:Contact");
    xml.leaf("cbc:Name", party.contact);
    xml.leaf("cbc:Telephone", party.phone);
    xml.leaf("cbc:ElectronicMail", party.email);
    xml.close();
    xml.close();
    xml.close();
}

/** An element that holds one other. */
void reference(XmlText &xml, const char *name, const QString &id)
{
    xml.open(name);
    xml.leaf("cbc:ID", id);
    xml.close();
}

void delivery(XmlText &xml, const Document &d)
{
    xml.open("cac:Delivery");
    xml.leaf("cbc:ActualDeliveryDate", date(d.deliveryDate));
    if (d.hasDeliverTo) {
        xml.open("cac:DeliveryLocation");
        address(xml, "cac:Address", d.deliverTo);
        xml.close();
        xml.open("cac:DeliveryParty");
        xml.open("cac:PartyName");
        xml.leaf("cbc:Name", d.deliverTo.name);
        xml.close();
        xml.close();
    }
    xml.close();
}

void payment(XmlText &xml, const Document &d, bool isCredit)
{
    for (const Account &account : d.accounts) {
        xml.open("cac:PaymentMeans");
        xml.leaf("cbc:PaymentMeansCode", QStringLiteral("58"));
        if (isCredit)
            xml.leaf("cbc:PaymentDueDate", date(d.dueDate));
        xml.leaf("cbc:PaymentID", d.reference);
        xml.open("cac:PayeeFinancialAccount");
        xml.leaf("cbc:ID", account.iban);
        xml.leaf("cbc:Name", account.name);
        reference(xml, "cac:FinancialInstitutionBranch", account.bic);
        xml.close();
        xml.close();
    }
    xml.open("cac:PaymentTerms");
    xml.leaf("cbc:Note", d.terms.join(QLatin1Char('\n')));
    xml.close();
}

void sums(XmlText &xml, const Document &d)
{
    xml.open("cac:TaxTotal");
    xml.leaf("cbc:TaxAmount", amount(d.tax), currency);
    for (const Tax &tax : d.taxes) {
        xml.open("cac:TaxSubtotal");
        xml.leaf("cbc:TaxableAmount", amount(tax.base), currency);
        xml.leaf("cbc:TaxAmount", amount(tax.tax), currency);
        taxCategory(xml, "cac:TaxCategory", tax.category, tax.rate, tax.reasonCode, tax.reason);
        xml.close();
    }
    xml.close();
    xml.open("cac:LegalMonetaryTotal");
    xml.leaf("cbc:LineExtensionAmount", amount(d.net), currency);
    xml.leaf("cbc:TaxExclusiveAmount", amount(d.net), currency);
    xml.leaf("cbc:TaxInclusiveAmount", amount(d.total), currency);
    if (d.paid != 0)
        xml.leaf("cbc:PrepaidAmount", amount(d.paid), currency);
    if (d.rounding != 0)
        xml.leaf("cbc:PayableRoundingAmount", amount(d.rounding), currency);
    xml.leaf("cbc:PayableAmount", amount(d.payable), currency);
    xml.close();
}

void line(XmlText &xml, const Line &line, int id, bool isCredit)
{
    const QString unit = line.unitCode.isEmpty() ? QStringLiteral("C62") : line.unitCode;
    xml.open(isCredit ? "cac:CreditNoteLine" : "cac:InvoiceLine");
    xml.leaf("cbc:ID", QString::number(id));
    xml.leaf("cbc:Note", line.note);
    xml.leaf(isCredit ? "cbc:CreditedQuantity" : "cbc:InvoicedQuantity",
             decimalText(line.quantity, 4, 0, QLatin1Char('.')),
             QLatin1String("unitCode=\"") + unit + QLatin1Char('"'));
    xml.leaf("cbc:LineExtensionAmount", amount(line.net), currency);
    if (line.allowance != 0) {
        const bool isCharge = line.allowance < 0 && line.base >= 0;
        xml.open("cac:AllowanceCharge");
        xml.leaf("cbc:ChargeIndicator", isCharge ? QStringLiteral("true") : QStringLiteral("false"));
        if (!isCharge)
            xml.leaf("cbc:AllowanceChargeReasonCode", QStringLiteral("95"));
        xml.leaf("cbc:AllowanceChargeReason", isCharge ? QStringLiteral("Korotus") : QStringLiteral("Alennus"));
        if (line.percent != 0)
            xml.leaf("cbc:MultiplierFactorNumeric", percent(line.percent));
        xml.leaf("cbc:Amount", amount(isCharge ? -line.allowance : line.allowance), currency);
        if (line.percent != 0)
            xml.leaf("cbc:BaseAmount", amount(line.base), currency);
        xml.close();
    }
    xml.open("cac:Item");
    xml.leaf("cbc:Name", line.name);
    reference(xml, "cac:SellersItemIdentification", line.articleId);
    taxCategory(xml, "cac:ClassifiedTaxCategory", line.category, line.vatRate);
    xml.close();
    xml.open("cac:Price");
    xml.leaf("cbc:PriceAmount", decimalText(line.price, line.priceDecimals, 2, QLatin1Char('.')), currency);
    xml.close();
    xml.close();
}

} // namespace

QByteArray EInvoice::writeUbl(const Document &d)
{
    const bool isCredit = d.kind == Document::creditNote;
    const char *root = isCredit ? "CreditNote" : "Invoice";
    XmlText xml(QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"));
    xml.open(root, QLatin1String(namespaces) + QLatin1String(root) + QLatin1String("-2\""));
    xml.leaf("cbc:CustomizationID", QStringLiteral("urn:cen.eu:en16931:2017#compliant#urn:fdc:peppol.eu:2017:poacc:"
                                                   "billing:3.0"));
    xml.leaf("cbc:ProfileID", QStringLiteral("urn:fdc:peppol.eu:2017:poacc:billing:01:1.0"));
    xml.leaf("cbc:ID", QString::number(d.number));
    xml.leaf("cbc:IssueDate", date(d.date));
    if (!isCredit)
        xml.leaf("cbc:DueDate", date(d.dueDate));
    xml.leaf(isCredit ? "cbc:CreditNoteTypeCode" : "cbc:InvoiceTypeCode",
             isCredit ? QStringLiteral("381") : QStringLiteral("380"));
    QStringList notes = d.notes; // the format takes one
    if (!d.sellerReference.isEmpty())
        notes.append(d.sellerReference);
    xml.leaf("cbc:Note", notes.join(QLatin1Char('\n')));
    xml.leaf("cbc:DocumentCurrencyCode", QStringLiteral("EUR"));
    xml.leaf("cbc:AccountingCost", d.accounting);
    xml.leaf("cbc:BuyerReference", d.buyerReference);
    xml.open("cac:InvoicePeriod");
    xml.leaf("cbc:StartDate", date(d.periodStart));
    xml.leaf("cbc:EndDate", date(d.periodEnd));
    xml.close();
    reference(xml, "cac:OrderReference", d.order);
    xml.open("cac:BillingReference");
    xml.open("cac:InvoiceDocumentReference");
    xml.leaf("cbc:ID", d.precedingNumber);
    xml.leaf("cbc:IssueDate", date(d.precedingDate));
    xml.close();
    xml.close();
    reference(xml, "cac:ContractDocumentReference", d.contract);
    if (isCredit && !d.project.isEmpty()) {
        xml.open("cac:AdditionalDocumentReference");
        xml.leaf("cbc:ID", d.project);
        xml.leaf("cbc:DocumentTypeCode", QStringLiteral("50"));
        xml.close();
    } else {
        reference(xml, "cac:ProjectReference", d.project);
    }
    party(xml, "cac:AccountingSupplierParty", d.seller);
    party(xml, "cac:AccountingCustomerParty", d.buyer);
    delivery(xml, d);
    payment(xml, d, isCredit);
    sums(xml, d);
    for (int i = 0; i < d.lines.size(); ++i)
        line(xml, d.lines.at(i), i + 1, isCredit);
    xml.close();
    return xml.text().toUtf8();
}

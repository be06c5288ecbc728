#include "einvoicerules.h"

#include "checkdigits.h"
#include "customer.h"
#include "decimaltext.h"
#include "einvoicecodes.h"
#include "iban.h"
#include "integer.h"
#include "invoice.h"

#include <QRegularExpression>

#include <algorithm>
#include <cstring>

namespace {

using EInvoice::Document;
using EInvoice::Format;
using EInvoice::Line;
using EInvoice::Party;
using EInvoice::Severity;
using EInvoice::Tax;

/** What a condition tells of each breach: the value that stands in the sentence. */
using Breaches = QStringList;

struct Rule {
    enum For : unsigned { finvoice = 1, peppol = 2, both = 3 };

    const char *id;
    Severity severity;
    unsigned formats;
    const char *term, *field;
    Breaches (*breaches)(const Document &);
    const char *finnish, *english; ///< "%1" is the breach's value
};

constexpr Severity error = Severity::error, warning = Severity::warning, note = Severity::note;

/** One breach without a value. */
Breaches when(bool isBroken) { return isBroken ? Breaches{QString()} : Breaches(); }

bool has(const Document &document, const char *category)
{
    return std::any_of(document.taxes.begin(), document.taxes.end(),
                       [category](const Tax &tax) { return tax.category == QLatin1String(category); });
}

/** Finvoice wants two characters of each. */
bool lacksAddress(const Party &party)
{
    return party.streets.value(0).size() < 2 || party.town.size() < 2 || party.postCode.size() < 2;
}

/** The positions of the lines that a test holds for. */
template <class Test> Breaches lines(const Document &document, Test test)
{
    Breaches breaches;
    for (const Line &line : document.lines) {
        if (test(line))
            breaches.append(QString::number(line.position));
    }
    return breaches;
}

Breaches wrongVatPrefix(const Party &party)
{
    const QString &number = party.vatNumber;
    const bool isRight = number.isEmpty() || EInvoiceCodes::contains("vatprefix", number.left(2));
    return isRight ? Breaches() : Breaches{number};
}

Breaches wrongScheme(const Party &party, const char *list)
{
    const QString &scheme = party.endpointScheme;
    return scheme.isEmpty() || EInvoiceCodes::contains(list, scheme) ? Breaches() : Breaches{scheme};
}

/** Whether an exempt category has a code that another one demands. */
Breaches notExempt(const Document &document, const char *code)
{
    const auto isWrong = [code](const Tax &tax) {
        return tax.reasonCode == QLatin1String(code) && tax.category != QLatin1String("E");
    };
    const bool isAny = std::any_of(document.taxes.begin(), document.taxes.end(), isWrong);
    return isAny ? Breaches{QLatin1String(code)} : Breaches();
}

/** Tax rows whose reason code is another category's. */
Breaches wrongReason(const Document &document, const char *category, const char *code)
{
    for (const Tax &tax : document.taxes) {
        const bool isCode = tax.reasonCode == QLatin1String(code);
        if ((tax.category == QLatin1String(category) && !tax.reasonCode.isEmpty() && !isCode) ||
            (tax.category != QLatin1String(category) && isCode))
            return {tax.reasonCode};
    }
    return {};
}

bool isSent(const Document &document) { return document.kind != Document::notSent; }

bool isReferenceForm(const QString &reference)
{
    static const QRegularExpression form(QStringLiteral("^([0-9]{2,20}|RF[0-9]{2}[0-9A-Za-z]{1,21})$"));
    return reference.isEmpty() || form.match(reference).hasMatch();
}

/** A reference of the right form with a wrong check digit. */
bool isWrongReference(const QString &reference)
{
    if (reference.isEmpty() || !isReferenceForm(reference))
        return false;
    if (reference.startsWith(QLatin1String("RF")))
        return CheckDigits::modulo97((reference.mid(4) + reference.left(4)).toUpper()) != 1;
    return reference.size() < 4 || Invoice::calculateReferenceNumberCheckDigit(reference.chopped(1)) !=
                                       reference.at(reference.size() - 1).digitValue();
}

/** An OVT code's business ID with a wrong check digit. */
Breaches wrongOvt(const Party &party)
{
    if (party.endpointScheme != QLatin1String("0216"))
        return {};
    const QString id = party.endpoint.mid(4, 7) + QLatin1Char('-') + party.endpoint.mid(11, 1);
    const bool isRight = party.endpoint.startsWith(QLatin1String("0037")) && Customer::isValidBusinessId(id);
    return isRight ? Breaches() : Breaches{party.endpoint};
}

/** Modulo 11 of digits by the weights of their places. */
int moduloEleven(const QString &digits, std::initializer_list<int> weights)
{
    int sum = 0, place = 0;
    for (const int weight : weights)
        sum += weight * digits.at(place++).digitValue();
    return sum % 11;
}

bool isNorwegian(const QString &id)
{
    const int check = 11 - moduloEleven(id, {3, 2, 7, 6, 5, 4, 3, 2});
    return (check == 11 ? 0 : check) == id.at(8).digitValue();
}

bool isDanish(const QString &id) { return moduloEleven(id, {2, 7, 6, 5, 4, 3, 2, 1}) == 0; }

bool isBelgian(const QString &id) { return 97 - id.leftRef(8).toInt() % 97 == id.rightRef(2).toInt(); }

bool isSwedish(const QString &id)
{
    int sum = 0;
    for (int i = 0; i < id.size(); ++i) {
        const int weighed = id.at(i).digitValue() * (i % 2 == 0 ? 2 : 1);
        sum += weighed / 10 + weighed % 10;
    }
    return sum % 10 == 0;
}

/** A buyer's address of a national scheme: so many digits, with a check, perhaps behind the country's letters. */
Breaches wrongNational(const Document &document, const char *scheme, int digits, bool (*isRight)(const QString &),
                       const char *letters = "")
{
    const Party &buyer = document.buyer;
    const bool isOther = buyer.endpointScheme != QLatin1String(scheme) || buyer.endpoint.isEmpty();
    const bool hasLetters = buyer.endpoint.startsWith(QLatin1String(letters));
    const QString id = hasLetters ? buyer.endpoint.mid(static_cast<int>(std::strlen(letters))) : buyer.endpoint;
    const bool isForm = id.size() == digits && Integer::isDigits(id);
    return isOther || (isForm && isRight(id)) ? Breaches() : Breaches{buyer.endpoint};
}

Breaches wrongGln(const Party &party)
{
    const bool isWrong = party.endpointScheme == QLatin1String("0088") && !EInvoiceCodes::isGln(party.endpoint);
    return isWrong ? Breaches{party.endpoint} : Breaches();
}

QString cents(long long amount)
{
    const long long size = amount < 0 ? -amount : amount;
    return (amount < 0 ? QStringLiteral("-") : QString()) + QString::number(size / 100) + QLatin1Char(',') +
           QString::number(size % 100).rightJustified(2, QLatin1Char('0'));
}

Breaches tooLong(const QString &text, int most) { return text.size() > most ? Breaches{text} : Breaches(); }

/** An identifier that is there, but outside of the lengths that the format takes. */
Breaches misfit(const QString &text, int least, int most)
{
    const bool fits = text.isEmpty() || (text.size() >= least && text.size() <= most);
    return fits ? Breaches() : Breaches{text};
}

/** Finvoice has no place for a part of an address. */
bool isPartOfAddress(const Document &document) { return document.hasDeliverTo && lacksAddress(document.deliverTo); }

using D = const Document &;

constexpr Rule table[] = {
    {"KIND-01", error, Rule::both, "BT-3", "type", [](D d) { return isSent(d) ? Breaches() : Breaches{d.kindText}; },
     "%1 ei ole standardin lasku: sitä ei lähetetä verkkolaskuna", "%1 is no invoice of the standard and is not sent as an e-invoice"},
    {"KIND-02", error, Rule::finvoice, "BT-3", "type", [](D d) { return when(d.kind == Document::interest); },
     "korkolaskua ei merkitä standardin mukaiseksi: vie se Finvoice 1.3:na", "an interest invoice is not marked by the standard: export it as Finvoice 1.3"},
    {"KIND-03", error, Rule::finvoice, "BT-112", "rows", [](D d) { return when(d.kind == Document::creditNote && d.total == 0); },
     "hyvityslaskun summa on nolla", "the total of the credit note is zero"},
    {"SUM-01", error, Rule::both, "BT-112", "total", [](D d) { return when(d.isTotalWrong); },
     "tallennettu summa ei ole rivien summa: billora check --repair-totals", "the stored total is not the sum of the rows: billora check --repair-totals"},
    {"SUM-02", error, Rule::both, "BT-131", "rows.quantity", [](D d) { return d.overflowRow > 0 ? Breaches{QString::number(d.overflowRow)} : Breaches(); },
     "rivin %1 summa on liian suuri", "the total of row %1 is too large"},
    {"BR-02", error, Rule::both, "BT-1", "number", [](D d) { return when(d.number <= 0); }, "laskun numero puuttuu", "the invoice number is missing"},
    {"BR-03", error, Rule::both, "BT-2", "date", [](D d) { return when(!d.date.isValid()); }, "laskun päivä puuttuu", "the invoice date is missing"},
    {"BR-06", error, Rule::both, "BT-27", "settings.sellerName", [](D d) { return when(d.seller.name.isEmpty()); }, "myyjän nimi puuttuu", "the seller's name is missing"},
    {"BR-07", error, Rule::both, "BT-44", "customer.name", [](D d) { return when(d.buyer.name.isEmpty()); }, "ostajan nimi puuttuu", "the buyer's name is missing"},
    {"BR-08", error, Rule::finvoice, "BG-5", "settings.sellerStreetName", [](D d) { return when(lacksAddress(d.seller)); },
     "myyjän osoite on vajaa: katuosoite, postinumero ja postitoimipaikka tarvitaan", "the seller's address is incomplete: street, post code and town are needed"},
    {"BR-09", error, Rule::both, "BT-40", "settings.sellerCountry", [](D d) { return d.seller.country.isEmpty() ? Breaches{d.seller.countryText} : Breaches(); },
     "myyjän maa puuttuu tai sitä ei tunneta: \"%1\"", "the seller's country is missing or not known: \"%1\""},
    {"BR-10", error, Rule::finvoice, "BG-8", "customer.street", [](D d) { return when(lacksAddress(d.buyer)); },
     "ostajan osoite on vajaa: katuosoite, postinumero ja postitoimipaikka tarvitaan", "the buyer's address is incomplete: street, post code and town are needed"},
    {"BR-11", error, Rule::both, "BT-55", "customer.country", [](D d) { return d.buyer.country.isEmpty() ? Breaches{d.buyer.countryText} : Breaches(); },
     "ostajan maa puuttuu tai sitä ei tunneta: \"%1\"", "the buyer's country is missing or not known: \"%1\""},
    {"BR-16", error, Rule::both, "BG-25", "rows", [](D d) { return when(d.lines.isEmpty()); }, "laskulla ei ole rivejä", "the invoice has no lines"},
    {"BR-25", error, Rule::both, "BT-153", "rows.name", [](D d) { return lines(d, [](const Line &l) { return l.name.isEmpty(); }); },
     "riviltä %1 puuttuu nimi", "row %1 has no name"},
    {"BR-29", error, Rule::both, "BT-74", "periodEnd", [](D d) { return when(d.periodStart.isValid() && d.periodEnd.isValid() && d.periodEnd < d.periodStart); },
     "laskutuskausi päättyy ennen kuin alkaa", "the invoicing period ends before it begins"},
    {"BR-55", error, Rule::both, "BT-25", "creditedInvoice", [](D d) { return when(d.precedingDate.isValid() && d.precedingNumber.isEmpty()); },
     "hyvitettävän laskun numero puuttuu", "the number of the credited invoice is missing"},
    {"BR-57", error, Rule::both, "BT-80", "deliveryCountry", [](D d) { return d.hasDeliverTo && d.deliverTo.country.isEmpty() ? Breaches{d.deliverTo.countryText} : Breaches(); },
     "toimitusosoitteen maa puuttuu tai sitä ei tunneta: \"%1\"", "the country of delivery is missing or not known: \"%1\""},
    {"BR-50", warning, Rule::peppol, "BT-84", "account.iban", [](D d) { return when(d.accounts.isEmpty()); },
     "pankkitiliä ei ole: maksutiedot jäävät pois", "there is no bank account: the payment details are left out"},
    {"BR-62", error, Rule::both, "BT-34-1", "settings.finvoice/senderScheme", [](D d) { return !d.seller.endpoint.isEmpty() && d.seller.endpointScheme.isEmpty() ? Breaches{d.seller.endpoint} : Breaches(); },
     "myyjän verkkolaskuosoitteen laji ei selviä: %1", "the scheme of the seller's e-invoice address is not clear: %1"},
    {"BR-63", error, Rule::both, "BT-49-1", "customer.einvoiceScheme", [](D d) { return !d.buyer.endpoint.isEmpty() && d.buyer.endpointScheme.isEmpty() ? Breaches{d.buyer.endpoint} : Breaches(); },
     "ostajan verkkolaskuosoitteen laji ei selviä: %1", "the scheme of the buyer's e-invoice address is not clear: %1"},
    {"BR-CO-04", error, Rule::both, "BT-151", "vatCategory", [](D d) { return lines(d, [](const Line &l) { return l.category.isEmpty(); }); },
     "rivin %1 vero on 0 %, eikä sen syytä ole sanottu (AE K G E O Z)", "row %1 is at 0 % and nobody said why (AE K G E O Z)"},
    {"BR-CO-09", error, Rule::both, "BT-31", "settings.seller/vatNumber", [](D d) { return wrongVatPrefix(d.seller); },
     "myyjän ALV-numero ei ala maatunnuksella: %1", "the seller's VAT number does not begin with a country: %1"},
    {"BR-CO-09", error, Rule::both, "BT-48", "customer.vatNumber", [](D d) { return wrongVatPrefix(d.buyer); },
     "ostajan ALV-numero ei ala maatunnuksella: %1", "the buyer's VAT number does not begin with a country: %1"},
    {"BR-CO-26", error, Rule::both, "BT-30", "settings.sellerBusinessId", [](D d) { return when(d.seller.businessId.isEmpty() && d.seller.vatNumber.isEmpty()); },
     "myyjän Y-tunnus ja ALV-numero puuttuvat", "the seller's business ID and VAT number are missing"},
    {"BR-S-02", error, Rule::both, "BT-31", "settings.seller/vatNumber", [](D d) { return when(has(d, "S") && d.seller.vatNumber.isEmpty() && d.seller.taxRegistration.isEmpty()); },
     "myyjän ALV-numero puuttuu", "the seller's VAT number is missing"},
    {"BR-Z-02", error, Rule::both, "BT-31", "settings.seller/vatNumber", [](D d) { return when(has(d, "Z") && d.seller.vatNumber.isEmpty() && d.seller.taxRegistration.isEmpty()); },
     "myyjän ALV-numero puuttuu", "the seller's VAT number is missing"},
    {"BR-E-02", error, Rule::both, "BT-31", "settings.seller/vatNumber", [](D d) { return when(has(d, "E") && d.seller.vatNumber.isEmpty() && d.seller.taxRegistration.isEmpty()); },
     "myyjän ALV-numero puuttuu", "the seller's VAT number is missing"},
    {"BR-E-10", error, Rule::both, "BT-120", "vatReason", [](D d) { return when(std::any_of(d.taxes.begin(), d.taxes.end(), [](const Tax &t) { return t.category == QLatin1String("E") && t.reason.isEmpty() && t.reasonCode.isEmpty(); })); },
     "verottomuuden syy puuttuu", "the reason of the exemption is missing"},
    {"BR-AE-02", error, Rule::both, "BT-48", "customer.vatNumber", [](D d) { return when(has(d, "AE") && ((d.seller.vatNumber.isEmpty() && d.seller.taxRegistration.isEmpty()) || (d.buyer.vatNumber.isEmpty() && d.buyer.businessId.isEmpty()))); },
     "käännetty verovelvollisuus tarvitsee myyjän ALV-numeron ja ostajan Y-tunnuksen tai ALV-numeron", "reverse charge needs the seller's VAT number and the buyer's business ID or VAT number"},
    {"BR-IC-02", error, Rule::both, "BT-48", "customer.vatNumber", [](D d) { return when(has(d, "K") && (d.seller.vatNumber.isEmpty() || d.buyer.vatNumber.isEmpty())); },
     "yhteisömyynti tarvitsee myyjän ja ostajan ALV-numerot", "an intra-community supply needs the VAT numbers of seller and buyer"},
    {"BR-IC-11", error, Rule::both, "BT-72", "deliveryDate", [](D d) { return when(has(d, "K") && !d.deliveryDate.isValid() && !d.periodStart.isValid() && !d.periodEnd.isValid()); },
     "yhteisömyynti tarvitsee toimituspäivän tai laskutuskauden", "an intra-community supply needs a delivery date or an invoicing period"},
    {"BR-IC-12", error, Rule::both, "BT-80", "deliveryCountry", [](D d) { return when(has(d, "K") && d.deliverTo.country.isEmpty()); },
     "yhteisömyynti tarvitsee toimitusmaan", "an intra-community supply needs a country of delivery"},
    {"BR-G-02", error, Rule::both, "BT-31", "settings.seller/vatNumber", [](D d) { return when(has(d, "G") && d.seller.vatNumber.isEmpty()); },
     "vientimyynti tarvitsee myyjän ALV-numeron", "an export needs the seller's VAT number"},
    {"BR-O-11", error, Rule::both, "BT-118", "vatCategory", [](D d) { return when(has(d, "O") && d.taxes.size() > 1); },
     "veron ulkopuolinen myynti (O) ei voi olla muun myynnin kanssa samalla laskulla", "what is outside the scope of VAT (O) cannot be on one invoice with other sales"},
    {"BR-CL-18", error, Rule::both, "BT-151", "vatCategory", [](D d) {
         static const QStringList known = {QString(), QStringLiteral("S"), QStringLiteral("AE"), QStringLiteral("K"), QStringLiteral("G"), QStringLiteral("E"), QStringLiteral("O"), QStringLiteral("Z")};
         Breaches breaches;
         for (const Tax &tax : d.taxes) {
             if (!known.contains(tax.category))
                 breaches.append(tax.category);
         }
         return breaches; },
     "veroluokkaa ei ole: %1", "there is no VAT category %1"},
    {"BR-S-05", error, Rule::both, "BT-152", "vatCategory", [](D d) { return lines(d, [](const Line &l) { return l.category == QLatin1String("S") && l.vatRate == 0; }); },
     "rivin %1 vero on 0 %, mutta sen luokka on S", "row %1 is at 0 % but its category is S"},
    {"BR-CL-22", error, Rule::both, "BT-121", "vatReasonCode", [](D d) {
         Breaches breaches;
         for (const Tax &tax : d.taxes) {
             if (!tax.reasonCode.isEmpty() && !EInvoiceCodes::contains("vatex", tax.reasonCode))
                 breaches.append(tax.reasonCode);
         }
         return breaches; },
     "verottomuuden koodia ei ole: %1", "there is no exemption code %1"},
    {"REASON", error, Rule::both, "BT-121", "rows.vatReasonCode", [](D d) {
         Breaches breaches;
         for (const Tax &tax : d.taxes) {
             if (!tax.otherReasonCode.isEmpty())
                 breaches.append(tax.category + QStringLiteral(" (%1, %2)").arg(tax.reasonCode, tax.otherReasonCode));
         }
         return breaches; },
     "yhdellä veroluokalla on kaksi verottomuuden koodia: %1", "one VAT category has two exemption codes: %1"},
    {"BR-CL-14", error, Rule::both, "BT-55", "customer.countryCode", [](D d) { return d.buyer.country.isEmpty() || EInvoiceCodes::contains("iso3166", d.buyer.country) ? Breaches() : Breaches{d.buyer.country}; },
     "maakoodia ei ole: %1", "there is no country code %1"},
    {"BR-CL-25", error, Rule::both, "BT-34-1", "settings.finvoice/senderScheme", [](D d) { return wrongScheme(d.seller, "eas"); }, "verkkolaskuosoitteen lajia ei ole: %1", "there is no address scheme %1"},
    {"BR-CL-25", error, Rule::both, "BT-49-1", "customer.einvoiceScheme", [](D d) { return wrongScheme(d.buyer, "eas"); }, "verkkolaskuosoitteen lajia ei ole: %1", "there is no address scheme %1"},
    {"PEPPOL-EN16931-R003", error, Rule::peppol, "BT-10", "buyerRef", [](D d) { return when(d.buyerReference.isEmpty() && d.order.isEmpty()); },
     "ostajan viite tai tilausnumero puuttuu", "the buyer's reference or an order number is missing"},
    {"PEPPOL-EN16931-R010", error, Rule::peppol, "BT-49", "customer.einvoiceAddress", [](D d) { return when(d.buyer.endpoint.isEmpty()); },
     "ostajan verkkolaskuosoite puuttuu", "the buyer's e-invoice address is missing"},
    {"PEPPOL-EN16931-R020", error, Rule::peppol, "BT-34", "settings.finvoice/senderId", [](D d) { return when(d.seller.endpoint.isEmpty()); },
     "myyjän verkkolaskuosoite puuttuu", "the seller's e-invoice address is missing"},
    {"PEPPOL-EN16931-CL008", error, Rule::peppol, "BT-34-1", "settings.finvoice/senderScheme", [](D d) { return wrongScheme(d.seller, "peppol-eas"); }, "Peppol ei tunne osoitteen lajia %1", "Peppol does not know the address scheme %1"},
    {"PEPPOL-EN16931-CL008", error, Rule::peppol, "BT-49-1", "customer.einvoiceScheme", [](D d) { return wrongScheme(d.buyer, "peppol-eas"); }, "Peppol ei tunne osoitteen lajia %1", "Peppol does not know the address scheme %1"},
    {"PEPPOL-EN16931-P0104", error, Rule::peppol, "BT-121", "vatReasonCode", [](D d) { return wrongReason(d, "G", "VATEX-EU-G"); }, "koodi %1 ei sovi veroluokkaan G", "the code %1 does not go with category G"},
    {"PEPPOL-EN16931-P0105", error, Rule::peppol, "BT-121", "vatReasonCode", [](D d) { return wrongReason(d, "O", "VATEX-EU-O"); }, "koodi %1 ei sovi veroluokkaan O", "the code %1 does not go with category O"},
    {"PEPPOL-EN16931-P0106", error, Rule::peppol, "BT-121", "vatReasonCode", [](D d) { return wrongReason(d, "K", "VATEX-EU-IC"); }, "koodi %1 ei sovi veroluokkaan K", "the code %1 does not go with category K"},
    {"PEPPOL-EN16931-P0107", error, Rule::peppol, "BT-121", "vatReasonCode", [](D d) { return wrongReason(d, "AE", "VATEX-EU-AE"); }, "koodi %1 ei sovi veroluokkaan AE", "the code %1 does not go with category AE"},
    {"PEPPOL-EN16931-P0108", error, Rule::peppol, "BT-121", "vatReasonCode", [](D d) { return notExempt(d, "VATEX-EU-D"); }, "koodi %1 sopii vain veroluokkaan E", "the code %1 goes with category E only"},
    {"PEPPOL-EN16931-P0109", error, Rule::peppol, "BT-121", "vatReasonCode", [](D d) { return notExempt(d, "VATEX-EU-F"); }, "koodi %1 sopii vain veroluokkaan E", "the code %1 goes with category E only"},
    {"PEPPOL-EN16931-P0110", error, Rule::peppol, "BT-121", "vatReasonCode", [](D d) { return notExempt(d, "VATEX-EU-I"); }, "koodi %1 sopii vain veroluokkaan E", "the code %1 goes with category E only"},
    {"PEPPOL-EN16931-P0111", error, Rule::peppol, "BT-121", "vatReasonCode", [](D d) { return notExempt(d, "VATEX-EU-J"); }, "koodi %1 sopii vain veroluokkaan E", "the code %1 goes with category E only"},
    {"PEPPOL-COMMON-R040", error, Rule::peppol, "BT-34", "settings.finvoice/senderId", [](D d) { return wrongGln(d.seller); }, "GLN-tunnuksen tarkiste on väärä: %1", "the check digit of the GLN is wrong: %1"},
    {"PEPPOL-COMMON-R040", error, Rule::peppol, "BT-49", "customer.einvoiceAddress", [](D d) { return wrongGln(d.buyer); }, "GLN-tunnuksen tarkiste on väärä: %1", "the check digit of the GLN is wrong: %1"},
    {"PEPPOL-COMMON-R041", error, Rule::peppol, "BT-49", "customer.einvoiceAddress", [](D d) { return wrongNational(d, "0192", 9, isNorwegian); }, "norjalainen tunnus ei ole oikein: %1", "the Norwegian number is not right: %1"},
    {"PEPPOL-COMMON-R042", error, Rule::peppol, "BT-49", "customer.einvoiceAddress", [](D d) { return wrongNational(d, "0184", 8, isDanish, "DK"); }, "tanskalainen tunnus ei ole oikein: %1", "the Danish number is not right: %1"},
    {"PEPPOL-COMMON-R043", error, Rule::peppol, "BT-49", "customer.einvoiceAddress", [](D d) { return wrongNational(d, "0208", 10, isBelgian); }, "belgialainen tunnus ei ole oikein: %1", "the Belgian number is not right: %1"},
    {"PEPPOL-COMMON-R049", error, Rule::peppol, "BT-49", "customer.einvoiceAddress", [](D d) { return wrongNational(d, "0007", 10, isSwedish); }, "ruotsalainen tunnus ei ole oikein: %1", "the Swedish number is not right: %1"},
    {"FV-05", error, Rule::finvoice, "BT-84", "account.iban", [](D d) { return when(d.accounts.isEmpty()); }, "pankkitili puuttuu", "there is no bank account"},
    {"FV-08", error, Rule::finvoice, "BT-83", "reference", [](D d) { return isReferenceForm(d.reference) ? Breaches() : Breaches{d.reference}; }, "viitenumero ei ole kansallinen eikä RF-viite: %1", "the reference is neither a national nor an RF one: %1"},
    {"FV-13", error, Rule::both, "BT-84", "account.iban", [](D d) {
         Breaches breaches;
         for (const EInvoice::Account &account : d.accounts) {
             if (!Iban::isValid(account.iban))
                 breaches.append(account.iban);
         }
         return breaches; },
     "IBAN ei ole oikein: %1", "the IBAN is not right: %1"},
    {"FV-14", error, Rule::finvoice, "BT-34", "settings.finvoice/senderId", [](D d) { return when(d.seller.endpoint.isEmpty()); }, "myyjän verkkolaskuosoite puuttuu", "the seller's e-invoice address is missing"},
    {"FV-14", error, Rule::finvoice, "BT-34", "settings.finvoice/intermediatorId", [](D d) { return when(d.seller.operatorId.isEmpty()); }, "myyjän verkkolaskuoperaattori puuttuu", "the seller's e-invoice operator is missing"},
    {"FV-14", error, Rule::finvoice, "BT-49", "customer.einvoiceAddress", [](D d) { return when(d.buyer.endpoint.isEmpty()); }, "ostajan verkkolaskuosoite puuttuu", "the buyer's e-invoice address is missing"},
    {"FV-14", error, Rule::finvoice, "BT-49", "customer.einvoiceOperator", [](D d) { return when(d.buyer.operatorId.isEmpty()); }, "ostajan verkkolaskuoperaattori puuttuu", "the buyer's e-invoice operator is missing"},
    {"FV-LENGTH", error, Rule::finvoice, "BT-10", "buyerRef", [](D d) { return tooLong(d.buyerReference, 70); }, "ostajan viite on liian pitkä (70): %1", "the buyer's reference is too long (70): %1"},
    {"FV-LENGTH", error, Rule::finvoice, "BT-13", "orderNumber", [](D d) { return tooLong(d.order, 70); }, "tilausnumero on liian pitkä (70): %1", "the order number is too long (70): %1"},
    {"FV-LENGTH", error, Rule::finvoice, "BT-12", "contractNumber", [](D d) { return tooLong(d.contract, 70); }, "sopimusnumero on liian pitkä (70): %1", "the contract number is too long (70): %1"},
    {"FV-LENGTH", error, Rule::finvoice, "BT-11", "projectNumber", [](D d) { return tooLong(d.project, 70); }, "projektinumero on liian pitkä (70): %1", "the project number is too long (70): %1"},
    {"FV-LENGTH", error, Rule::finvoice, "BT-19", "accounting", [](D d) { return tooLong(d.accounting, 35); }, "tiliöintiviite on liian pitkä (35): %1", "the accounting reference is too long (35): %1"},
    {"FV-LENGTH", error, Rule::finvoice, "BT-155", "rows.product", [](D d) { return lines(d, [](const Line &l) { return l.articleId.size() > 70; }); },
     "rivin %1 tuotenumero on liian pitkä (70)", "the product number of row %1 is too long (70)"},
    {"FV-LENGTH", error, Rule::finvoice, "BT-25", "creditedInvoice", [](D d) { return tooLong(d.precedingNumber, 20); }, "hyvitettävän laskun numero on liian pitkä (20): %1", "the number of the credited invoice is too long (20): %1"},
    {"FV-LENGTH", error, Rule::finvoice, "BT-27", "settings.sellerName", [](D d) { return misfit(d.seller.name, 2, 1000); }, "myyjän nimi on liian lyhyt (2): %1", "the seller's name is too short (2): %1"},
    {"FV-LENGTH", error, Rule::finvoice, "BT-44", "customer.name", [](D d) { return misfit(d.buyer.name, 2, 1000); }, "ostajan nimi on liian lyhyt (2): %1", "the buyer's name is too short (2): %1"},
    {"FV-LENGTH", error, Rule::finvoice, "BT-34", "settings.finvoice/senderId", [](D d) { return misfit(d.seller.endpoint, 2, 35); }, "myyjän verkkolaskuosoitteessa on 2–35 merkkiä: %1", "the seller's e-invoice address has 2 to 35 characters: %1"},
    {"FV-LENGTH", error, Rule::finvoice, "BT-34", "settings.finvoice/intermediatorId", [](D d) { return misfit(d.seller.operatorId, 2, 35); }, "myyjän operaattorin tunnuksessa on 2–35 merkkiä: %1", "the seller's operator has 2 to 35 characters: %1"},
    {"FV-LENGTH", error, Rule::finvoice, "BT-49", "customer.einvoiceAddress", [](D d) { return misfit(d.buyer.endpoint, 2, 35); }, "ostajan verkkolaskuosoitteessa on 2–35 merkkiä: %1", "the buyer's e-invoice address has 2 to 35 characters: %1"},
    {"FV-LENGTH", error, Rule::finvoice, "BT-49", "customer.einvoiceOperator", [](D d) { return misfit(d.buyer.operatorId, 2, 35); }, "ostajan operaattorin tunnuksessa on 2–35 merkkiä: %1", "the buyer's operator has 2 to 35 characters: %1"},
    {"FV-LENGTH", error, Rule::finvoice, "BT-86", "account.bic", [](D d) {
         Breaches breaches;
         for (const EInvoice::Account &account : d.accounts)
             breaches += misfit(account.bic, 8, 11);
         return breaches; },
     "BIC-tunnuksessa on 8–11 merkkiä: %1", "a BIC has 8 to 11 characters: %1"},
    {"FV-LENGTH", error, Rule::finvoice, "BT-129", "rows.quantity", [](D d) {
         const int sign = d.kind == Document::creditNote ? -1 : 1;
         return lines(d, [sign](const Line &l) { return EInvoice::decimalText(sign * l.quantity, 4, 0, QLatin1Char(',')).size() > 14; }); },
     "rivin %1 määrässä on yli 14 merkkiä", "the quantity of row %1 has more than 14 characters"},
    {"FV-DELIVERY", error, Rule::finvoice, "BT-75", "deliveryStreet", [](D d) { return when(has(d, "K") && isPartOfAddress(d)); },
     "toimitusosoite on vajaa: katuosoite, postinumero ja postitoimipaikka tarvitaan", "the address of delivery is incomplete: street, post code and town are needed"},
    // Warnings and notes: sent all the same.
    {"FV-06", warning, Rule::finvoice, "BT-86", "account.bic", [](D d) { return when(!d.accounts.isEmpty() && d.accounts.first().bic.isEmpty()); }, "pankin BIC puuttuu: tili jää pois myyjän tiedoista", "the bank's BIC is missing: the account is left out of the seller's details"},
    {"FV-07", warning, Rule::both, "BT-83", "reference", [](D d) { return isWrongReference(d.reference) ? Breaches{d.reference} : Breaches(); }, "viitenumeron tarkiste on väärä: %1", "the check digit of the reference is wrong: %1"},
    {"FV-11", warning, Rule::both, "BT-34", "settings.finvoice/senderId", [](D d) { return wrongOvt(d.seller); }, "myyjän OVT-tunnus ei ole oikein: %1", "the seller's OVT code is not right: %1"},
    {"FV-11", warning, Rule::both, "BT-49", "customer.einvoiceAddress", [](D d) { return wrongOvt(d.buyer); }, "ostajan OVT-tunnus ei ole oikein: %1", "the buyer's OVT code is not right: %1"},
    {"COUNTRY", warning, Rule::both, "BT-40", "settings.sellerCountry", [](D d) { return when(d.seller.isCountryAssumed); }, "myyjän maaksi oletettiin Suomi", "the seller's country was assumed to be Finland"},
    {"COUNTRY", warning, Rule::both, "BT-55", "customer.country", [](D d) { return when(d.buyer.isCountryAssumed); }, "ostajan maaksi oletettiin Suomi", "the buyer's country was assumed to be Finland"},
    {"FV-DELIVERY", warning, Rule::finvoice, "BT-75", "deliveryTown", [](D d) { return when(!has(d, "K") && isPartOfAddress(d)); },
     "vajaa toimitusosoite jää pois: katuosoite, postinumero ja postitoimipaikka tarvitaan", "the address of delivery is left out, being incomplete: street, post code and town are needed"},
    {"DELIVER-TO", warning, Rule::both, "BT-80", "deliveryCountry", [](D d) { return when(d.isDeliverToAssumed); },
     "toimitusosoitteeksi oletettiin ostajan osoite", "the address of delivery was assumed to be the buyer's"},
    {"UNIT", warning, Rule::both, "BT-130", "rows.unit", [](D d) { return lines(d, [](const Line &l) { return l.unitCode.isEmpty() || !EInvoiceCodes::contains("rec20", l.unitCode); }); },
     "rivin %1 yksikköä ei tunneta: käytetään C62", "the unit of row %1 is not known: C62 is used"},
    {"UNIT-T", warning, Rule::both, "BT-130", "rows.unit", [](D d) { return lines(d, [](const Line &l) { return l.unitText.compare(QLatin1String("t"), Qt::CaseInsensitive) == 0; }); },
     "rivin %1 yksikkö t tulkittiin tunniksi", "the unit t of row %1 was taken for an hour"},
    {"CATEGORY", warning, Rule::both, "BT-151", "rows.vatCategory", [](D d) { return lines(d, [](const Line &l) { return l.isCategoryUnused; }); },
     "rivin %1 veroluokkaa ei käytetä: sen vero ei ole 0 %", "the VAT category of row %1 is not used: the row is not at 0 %"},
    {"CREDIT", warning, Rule::both, "BT-25", "creditedInvoice", [](D d) { return when(d.kind == Document::creditNote && d.precedingNumber.isEmpty()); },
     "hyvityslasku ei viittaa alkuperäiseen laskuun", "the credit note does not refer to its original"},
    {"DUE-DATE", warning, Rule::finvoice, "BT-9", "dueDate", [](D d) { return when(!d.dueDate.isValid()); }, "eräpäivä puuttuu: käytetään laskun päivää", "the due date is missing: the invoice date is used"},
    {"BR-CO-25", warning, Rule::peppol, "BT-9", "dueDate", [](D d) { return when(!d.dueDate.isValid() && d.terms.isEmpty() && d.payable > 0); },
     "eräpäivä ja maksuehto puuttuvat", "the due date and the payment terms are missing"},
    {"ROUNDING", note, Rule::both, "BT-114", "total", [](D d) { return d.rounding != 0 ? Breaches{cents(d.rounding)} : Breaches(); },
     "pyöristys %1 €", "rounding %1 €"},
};

} // namespace

QVector<EInvoice::Finding> EInvoice::check(const Document &document, Format format)
{
    QVector<Finding> findings;
    const unsigned wanted = format == finvoice3 ? Rule::finvoice : Rule::peppol;
    for (const Rule &rule : table) {
        if ((rule.formats & wanted) == 0)
            continue;
        const Breaches breaches = rule.breaches(document);
        for (const QString &value : breaches) {
            const auto filled = [&value](const char *sentence) {
                const QString text = QString::fromUtf8(sentence);
                return text.contains(QLatin1String("%1")) ? text.arg(value) : text;
            };
            const bool isOfRow = QLatin1String(rule.field).startsWith(QLatin1String("rows."));
            findings.append({rule.id, rule.severity, rule.term, rule.field, isOfRow ? value.toInt() : 0,
                             filled(rule.finnish), filled(rule.english)});
        }
        if (document.kind == Document::notSent && !findings.isEmpty())
            break; // nothing else counts
    }
    return findings;
}

bool EInvoice::hasError(const QVector<Finding> &findings)
{
    return std::any_of(findings.begin(), findings.end(),
                       [](const Finding &finding) { return finding.severity == Severity::error; });
}

QStringList EInvoice::rules()
{
    QStringList names;
    for (const Rule &rule : table)
        names.append(QLatin1String(rule.id) + QLatin1Char('@') + QLatin1String(rule.field));
    return names;
}

#include "einvoicebuilder.h"

#include "bankaccount.h"
#include "customer.h"
#include "decimaltext.h"
#include "einvoicecodes.h"
#include "einvoicesums.h"
#include "invoice.h"
#include "invoiceitem.h"
#include "rowterms.h"
#include "settings.h"

namespace {

using EInvoice::Document;
using EInvoice::Line;
using EInvoice::Party;
using EInvoice::Source;

constexpr int deliveryNoteType = 3;

/** XML takes no control characters but tab and line feed, and no carriage return stays. */
QString clean(const QString &text)
{
    QString result;
    for (const QChar c : text) {
        if (c.unicode() >= 32 || c == QLatin1Char('\n') || c == QLatin1Char('\t'))
            result += c;
    }
    return result.trimmed();
}

QStringList linesOf(const QString &text)
{
    QStringList lines;
    for (const QString &line : text.split(QLatin1Char('\n'))) {
        const QString trimmed = clean(line);
        if (!trimmed.isEmpty())
            lines.append(trimmed);
    }
    return lines;
}

/** A term of the invoice, else of the customer. */
QString term(const Source &source, const char *key)
{
    const QString name = QLatin1String(key);
    QString value = source.invoice.property(name).toString();
    if (value.isEmpty())
        value = source.customer.property(name).toString();
    return clean(value);
}

QString compact(QString text)
{
    text.remove(QLatin1Char(' '));
    return text;
}

/** The country's code; Finland is assumed of who has a Finnish id and says nothing. */
void setCountry(Party &party, const QString &text, const QString &own)
{
    party.countryText = clean(text);
    party.country = own.isEmpty() ? EInvoiceCodes::country(party.countryText) : own.toUpper();
    const bool isFinnish = !party.businessId.isEmpty() || party.vatNumber.startsWith(QLatin1String("FI")) ||
                           party.endpoint.startsWith(QLatin1String("0037"));
    if (party.country.isEmpty() && party.countryText.isEmpty() && isFinnish) {
        party.country = QStringLiteral("FI");
        party.isCountryAssumed = true;
    }
}

Party sellerOf(const Settings &settings)
{
    const auto value = [&settings](const char *key) { return clean(settings.property(QLatin1String(key)).toString()); };
    Party party;
    party.name = clean(settings.sellerName);
    party.tradeName = value("seller/tradeName");
    party.businessId = clean(settings.sellerBusinessId);
    party.vatNumber = compact(value("seller/vatNumber")).toUpper();
    if (party.vatNumber.isEmpty())
        party.vatNumber = Customer::convertBusinessIdToVatNumber(party.businessId);
    party.taxRegistration = value("seller/taxRegistration");
    party.legalInfo = value("seller/legalInfo");
    party.endpoint = compact(value("finvoice/senderId"));
    if (party.endpoint.isEmpty() && Customer::isValidBusinessId(party.businessId))
        party.endpoint = QStringLiteral("0037") +
                         QString(party.businessId).remove(QLatin1Char('-')).rightJustified(8, QLatin1Char('0'));
    party.endpointScheme = value("finvoice/senderScheme");
    if (party.endpointScheme.isEmpty())
        party.endpointScheme = EInvoiceCodes::schemeOf(party.endpoint);
    party.operatorId = compact(value("finvoice/intermediatorId"));
    party.streets = linesOf(settings.sellerStreetName);
    party.town = clean(settings.sellerTownName);
    party.postCode = clean(settings.sellerPostCode);
    party.contact = value("seller/contactName");
    party.phone = value("seller/phoneNumber");
    party.email = value("seller/emailAddress");
    setCountry(party, settings.sellerCountry, QString());
    return party;
}

Party buyerOf(const Source &source)
{
    const Customer &customer = source.customer;
    Party party;
    party.name = clean(customer.name);
    const QString id = compact(clean(customer.vatNumber));
    if (Customer::isValidBusinessId(id)) {
        party.businessId = id;
        party.vatNumber = Customer::convertBusinessIdToVatNumber(id);
    } else {
        party.vatNumber = id.toUpper();
        if (party.vatNumber.startsWith(QLatin1String("FI")))
            party.businessId = Customer::convertVatNumberToBusinessId(party.vatNumber);
    }
    party.endpoint = compact(clean(customer.property(QStringLiteral("e2")).toString()));
    const bool isDefault = party.endpoint.isEmpty();
    if (isDefault)
        party.endpoint =
            compact(clean(source.settings.property(QStringLiteral("finvoice/defaultReceiverId")).toString()));
    party.endpointScheme = clean(customer.property(QStringLiteral("bt49-scheme")).toString());
    if (party.endpointScheme.isEmpty() || isDefault)
        party.endpointScheme = EInvoiceCodes::schemeOf(party.endpoint);
    party.operatorId = compact(clean(customer.property(QStringLiteral("e1")).toString()));
    party.streets = linesOf(customer.streetName);
    party.town = clean(customer.townName);
    party.postCode = clean(customer.postCode);
    party.contact = clean(customer.contact);
    party.phone = clean(customer.phoneNumber);
    party.email = clean(customer.emailAddress);
    setCountry(party, customer.country, clean(customer.property(QStringLiteral("bt55")).toString()));
    return party;
}

void setDeliverTo(const Source &source, Document &document)
{
    Party &party = document.deliverTo;
    party.name = term(source, "bt70");
    party.streets = linesOf(term(source, "bt75"));
    party.town = term(source, "bt77");
    party.postCode = term(source, "bt78");
    const QString country = term(source, "bt80");
    party.country = EInvoiceCodes::country(country);
    party.countryText = country;
    document.hasDeliverTo = !party.name.isEmpty() || !party.streets.isEmpty() || !party.town.isEmpty() ||
                            !party.postCode.isEmpty() || !country.isEmpty();
}

bool isTextRow(const InvoiceItem &item)
{
    return item.productName.trimmed().isEmpty() && item.productNumber.isEmpty() && item.amount == 0 &&
           !item.text.trimmed().isEmpty();
}

/** Why there is no VAT, as it was said in one place. */
struct Exemption {
    QString category, reason, reasonCode;
};

/** What the row, its invoice, the customer and the company say, in this order. */
QVector<Exemption> exemptionsOf(const Source &source, int rowId)
{
    QVector<Exemption> said;
    const auto add = [&said](const QString &category, const QString &reason, const QString &reasonCode) {
        said.append({clean(category).toUpper(), clean(reason), clean(reasonCode)});
    };
    const auto own = [&](const char *key) { return RowTerms::value(source.invoice, rowId, key); };
    add(own("bt151"), own("bt120"), own("bt121"));
    for (const PropertyMap *record :
         {static_cast<const PropertyMap *>(&source.invoice), static_cast<const PropertyMap *>(&source.customer)}) {
        const auto value = [record](const char *key) { return record->property(QLatin1String(key)).toString(); };
        add(value("bt151"), value("bt120"), value("bt121"));
    }
    const auto value = [&source](const char *key) { return source.settings.property(QLatin1String(key)).toString(); };
    add(value("einvoice/zeroVatCategory"), value("einvoice/zeroVatReason"), value("einvoice/zeroVatReasonCode"));
    return said;
}

/** The category is what was said first; its reason too, but not one that was said of another category. */
void setExemption(const Source &source, const InvoiceItem &item, Line &line)
{
    if (item.vatRate > 0) {
        line.category = QStringLiteral("S");
        line.isCategoryUnused = !RowTerms::value(source.invoice, item.id, "bt151").isEmpty();
        return;
    }
    const QVector<Exemption> said = exemptionsOf(source, item.id);
    for (const Exemption &one : said) {
        if (line.category.isEmpty())
            line.category = one.category;
    }
    if (line.category == QLatin1String("S") || line.category == QLatin1String("Z"))
        return; // may have no reason
    for (const Exemption &one : said) {
        const bool isOfIt = one.category.isEmpty() || one.category == line.category;
        if (isOfIt && line.reason.isEmpty() && line.reasonCode.isEmpty()) {
            line.reason = one.reason;
            line.reasonCode = one.reasonCode;
        }
    }
}

constexpr struct {
    const char *category, *reasonCode, *reason;
} defaultReasons[] = {
    {"AE", "VATEX-EU-AE", "Käännetty verovelvollisuus"},
    {"K", "VATEX-EU-IC", "Yhteisömyynti"},
    {"G", "VATEX-EU-G", "Vientimyynti"},
    {"O", "VATEX-EU-O", "Ei arvonlisäveroa"},
};

/** Why there is no VAT: what the rows of the category say, else the category's own words. */
void setReasons(Document &document)
{
    for (EInvoice::Tax &tax : document.taxes) {
        QStringList reasons;
        for (const Line &line : qAsConst(document.lines)) {
            if (line.category != tax.category || line.vatRate != tax.rate)
                continue;
            if (!line.reason.isEmpty() && !reasons.contains(line.reason))
                reasons.append(line.reason);
            if (!line.reasonCode.isEmpty() && tax.reasonCode.isEmpty())
                tax.reasonCode = line.reasonCode;
            else if (!line.reasonCode.isEmpty() && line.reasonCode != tax.reasonCode)
                tax.otherReasonCode = line.reasonCode;
        }
        tax.reason = reasons.join(QLatin1String("; "));
        for (const auto &row : defaultReasons) {
            const bool isGiven = !tax.reason.isEmpty() || !tax.reasonCode.isEmpty();
            if (tax.category == QLatin1String(row.category) && !isGiven) {
                tax.reason = QString::fromUtf8(row.reason);
                tax.reasonCode = QLatin1String(row.reasonCode);
            }
        }
    }
}

void addLines(const Source &source, Document &document)
{
    const QString ownUnits = source.settings.property(QStringLiteral("einvoice/units")).toString();
    QVector<const InvoiceItem *> rows;
    int position = 0;
    for (const InvoiceItem &item : source.items) {
        ++position;
        if (!item.fits() && document.overflowRow == 0)
            document.overflowRow = position;
        if (isTextRow(item)) {
            if (document.lines.isEmpty()) {
                document.notes.append(clean(item.text));
                continue;
            }
            QString &note = document.lines.last().note;
            note += (note.isEmpty() ? QString() : QStringLiteral("\n")) + clean(item.text);
            continue;
        }
        Line line;
        line.position = position;
        const QStringList words = linesOf(item.text);
        line.name = clean(item.productName);
        line.note = clean(item.text);
        if (line.name.isEmpty() && !words.isEmpty()) {
            line.name = words.first();
            line.note = QStringList(words.mid(1)).join(QLatin1Char('\n'));
        }
        line.articleId = clean(item.productNumber);
        line.unitText = clean(item.unitCode);
        line.unitCode = EInvoiceCodes::unit(line.unitText, ownUnits);
        line.vatRate = item.vatRate;
        setExemption(source, item, line);
        document.lines.append(line);
        rows.append(&item);
    }
    QVector<EInvoice::SummedRow> summed;
    for (int i = 0; i < rows.size(); ++i)
        summed.append({rows.at(i), &document.lines[i]});
    const Invoice &invoice = source.invoice;
    const int sign = document.kind == Document::creditNote && invoice.totalAmount < 0 ? -1 : 1;
    addSums(document, summed, sign, invoice.totalAmount, invoice.balance);
}

} // namespace

EInvoice::Document EInvoice::build(const Source &source)
{
    const Invoice &invoice = source.invoice;
    const Settings &settings = source.settings;
    Document document;
    document.kindText = source.kindText;
    if (!source.kindText.isEmpty() || invoice.type == deliveryNoteType)
        document.kind = Document::notSent;
    else if (invoice.type == Invoice::creditNote)
        document.kind = Document::creditNote;
    else if (invoice.type == Invoice::interestInvoice)
        document.kind = Document::interest;
    if (invoice.type == deliveryNoteType && document.kindText.isEmpty())
        document.kindText = QStringLiteral("lähetyslista");
    document.number = invoice.number;
    document.date = invoice.date;
    document.dueDate = invoice.dueDate;
    document.deliveryDate = invoice.deliveryDate;
    document.periodStart = QDate::fromString(term(source, "bt73"), Qt::ISODate);
    document.periodEnd = QDate::fromString(term(source, "bt74"), Qt::ISODate);
    document.buyerReference = clean(invoice.buyerRef);
    if (document.buyerReference.isEmpty())
        document.buyerReference = term(source, "bt10");
    document.sellerReference = clean(invoice.sellerRef);
    document.project = term(source, "bt11");
    document.contract = term(source, "bt12");
    document.order = term(source, "bt13");
    document.accounting = term(source, "bt19");
    document.precedingNumber = term(source, "bt25");
    document.precedingDate = QDate::fromString(term(source, "bt26"), Qt::ISODate);
    document.reference = compact(invoice.referenceNumber);
    const QString terms = clean(invoice.paymentTerms);
    if (!terms.isEmpty())
        document.terms.append(terms);
    document.interestOnArrears = invoice.interestOnArrears;
    if (document.interestOnArrears > 0)
        document.terms.append(QStringLiteral("Viivästyskorko %1 %")
                                  .arg(EInvoice::decimalText(document.interestOnArrears, 2, 0, QLatin1Char(','))));
    const QString complaints = clean(settings.property(QStringLiteral("settings/periodForComplaints")).toString());
    if (!complaints.isEmpty())
        document.terms.append(QStringLiteral("Huomautusaika ") + complaints);
    for (const char *key : {"t1", "t2"}) {
        const QString note = clean(invoice.property(QLatin1String(key)).toString());
        if (!note.isEmpty())
            document.notes.append(note);
    }
    document.buyerNumber = source.customer.number;
    document.seller = sellerOf(settings);
    document.buyer = buyerOf(source);
    setDeliverTo(source, document);
    QString accountName = clean(settings.property(QStringLiteral("seller/accountName")).toString());
    if (accountName.isEmpty())
        accountName = document.seller.name;
    for (const BankAccount &account : source.accounts) {
        const QString iban = BankAccount::normalizedCode(account.iban);
        if (!iban.isEmpty())
            document.accounts.append({iban, BankAccount::normalizedCode(account.bic), accountName});
    }
    addLines(source, document);
    setReasons(document);
    for (const Tax &tax : qAsConst(document.taxes)) {
        if (tax.category == QLatin1String("O")) { // then no VAT number may be on the invoice
            document.seller.vatNumber.clear();
            document.buyer.vatNumber.clear();
        }
        if (tax.category == QLatin1String("K") && !document.hasDeliverTo) {
            document.deliverTo = document.buyer;
            document.hasDeliverTo = document.isDeliverToAssumed = true;
        }
    }
    return document;
}

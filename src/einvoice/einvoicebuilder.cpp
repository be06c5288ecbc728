#include "einvoicebuilder.h"

#include "bankaccount.h"
#include "customer.h"
#include "einvoicecodes.h"
#include "einvoicesums.h"
#include "invoice.h"
#include "invoiceitem.h"
#include "settings.h"

#include <limits>

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

/** A term of the invoice, else of the customer, else a setting. */
QString term(const Source &source, const char *key, const char *setting = nullptr)
{
    const QString name = QLatin1String(key);
    QString value = source.invoice.property(name).toString();
    if (value.isEmpty())
        value = source.customer.property(name).toString();
    if (value.isEmpty() && setting)
        value = source.settings.property(QLatin1String(setting)).toString();
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

/** Whether quantity times price fits 64 bits, as the program computes rows. */
bool fits(const InvoiceItem &item)
{
    const __int128 product = static_cast<__int128>(item.quantity) * item.amount;
    return product <= std::numeric_limits<long long>::max() && product >= std::numeric_limits<long long>::min();
}

/** The category of a row at 0 %: its own, else the invoice's, the customer's, the company's. */
QString categoryOf(const Source &source, const InvoiceItem &item)
{
    if (item.vatRate > 0)
        return QStringLiteral("S");
    const QString own = term(source, ("bt151." + QByteArray::number(item.rowNumber)).constData());
    const QString category = own.isEmpty() ? term(source, "bt151", "einvoice/zeroVatCategory") : own;
    return category.toUpper();
}

constexpr struct {
    const char *category, *reasonCode, *reason;
} defaultReasons[] = {
    {"AE", "VATEX-EU-AE", "Käännetty verovelvollisuus"},
    {"K", "VATEX-EU-IC", "Yhteisömyynti"},
    {"G", "VATEX-EU-G", "Vientimyynti"},
    {"O", "VATEX-EU-O", "Ei arvonlisäveroa"},
};

/** Why there is no VAT: forbidden for S and Z, what was said for others, else the category's own words. */
void setReasons(const Source &source, Document &document)
{
    for (EInvoice::Tax &tax : document.taxes) {
        if (tax.category == QLatin1String("S") || tax.category == QLatin1String("Z"))
            continue;
        tax.reason = term(source, "bt120", "einvoice/zeroVatReason");
        tax.reasonCode = term(source, "bt121", "einvoice/zeroVatReasonCode");
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
        if (!fits(item) && document.overflowRow == 0)
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
        line.category = categoryOf(source, item);
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
    const QString complaints = clean(settings.property(QStringLiteral("settings/periodForComplaints")).toString());
    if (!complaints.isEmpty())
        document.terms.append(QStringLiteral("Huomautusaika ") + complaints);
    for (const char *key : {"t1", "t2"}) {
        const QString note = clean(invoice.property(QLatin1String(key)).toString());
        if (!note.isEmpty())
            document.notes.append(note);
    }
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
    setReasons(source, document);
    for (const Tax &tax : qAsConst(document.taxes)) {
        if (tax.category == QLatin1String("O")) { // then no VAT number may be on the invoice
            document.seller.vatNumber.clear();
            document.buyer.vatNumber.clear();
        }
        if (tax.category == QLatin1String("K") && !document.hasDeliverTo) {
            document.deliverTo = document.buyer;
            document.hasDeliverTo = true;
        }
    }
    return document;
}

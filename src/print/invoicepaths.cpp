#include "invoicepaths.h"

#include "customer.h"
#include "invoiceprintmodel.h"
#include "settings.h"
#include "valuepath.h"

namespace {

using Model = InvoicePrintModel;
using ValuePath::field;
using ValuePath::Key;

// Rows ---------------------------------------------------------------------------------------------------------------

const Key<const InvoiceItem &> itemKeys[] = {
    {"productNumber", field<&InvoiceItem::productNumber>},
    {"productName", field<&InvoiceItem::productName>},
    {"text", field<&InvoiceItem::text>},
    {"unitCode", field<&InvoiceItem::unitCode>},
    {"amount", [](const InvoiceItem &i, QStringList &) { return QVariant(i.amountVatIncluded()); }},
    {"amountVatExcluded", [](const InvoiceItem &i, QStringList &) { return QVariant(i.amountVatExcluded()); }},
    {"vatAmount",
     [](const InvoiceItem &i, QStringList &) { return QVariant(i.amountVatIncluded() - i.amountVatExcluded()); }},
    {"quantity", [](const InvoiceItem &i, QStringList &) { return QVariant(static_cast<int>(i.quantity)); }},
    {"vatRate", field<&InvoiceItem::vatRate>},
    {"discountPercent", field<&InvoiceItem::discount>},
    {"totalAmount",
     [](const InvoiceItem &i, QStringList &) { return QVariant(static_cast<int>(i.totalAmountVatIncluded())); }},
    {"totalAmountVatExcluded",
     [](const InvoiceItem &i, QStringList &) { return QVariant(static_cast<int>(i.totalAmountVatExcluded())); }},
    {"totalVatAmount",
     [](const InvoiceItem &i, QStringList &) {
         return QVariant(static_cast<int>(i.totalAmountVatIncluded() - i.totalAmountVatExcluded()));
     }},
    {"discountAmount", [](const InvoiceItem &i, QStringList &) { return QVariant(i.discountAmount()); }},
};

QVariant itemsValue(Model &model, const Invoice &invoice, QStringList &path)
{
    const QVector<InvoiceItem> &items = model.items(invoice);
    return ValuePath::resolveList(items.size(), path, [&items](int index, QStringList &rest) {
        return ValuePath::resolve(itemKeys, rest, items.at(index));
    });
}

// VAT ----------------------------------------------------------------------------------------------------------------

const Key<const Vat &, int &> vatKeys[] = {
    {"percent", [](const Vat &, int &rate, QStringList &) { return QVariant(rate); }},
    {"amountVatExcluded",
     [](const Vat &v, int &rate, QStringList &) { return QVariant(v.totalAmountVatExcluded(rate)); }},
    {"vatAmount", [](const Vat &v, int &rate, QStringList &) { return QVariant(v.totalVatAmount(rate)); }},
    {"amount", [](const Vat &v, int &rate, QStringList &) { return QVariant(v.totalAmount(rate)); }},
};

// Customer -----------------------------------------------------------------------------------------------------------

template <const char *key> QVariant property(Model &, Customer &customer, QStringList &)
{
    return customer.property(QLatin1String(key)).toString();
}

constexpr char language[] = "l";
constexpr char custom1[] = "c1";
constexpr char custom2[] = "c2";
constexpr char intermediator[] = "e1";
constexpr char receiver[] = "e2";
constexpr char edi[] = "e3";

template <auto member> QVariant customerField(Model &, Customer &customer, QStringList &)
{
    return QVariant(customer.*member);
}

const Key<Model &, Customer &> customerKeys[] = {
    {"number", customerField<&Customer::number>},
    {"name", customerField<&Customer::name>},
    {"streetName", customerField<&Customer::streetName>},
    {"postCode", customerField<&Customer::postCode>},
    {"townName", customerField<&Customer::townName>},
    {"country", customerField<&Customer::country>},
    {"contact", customerField<&Customer::contact>},
    {"emailAddress", customerField<&Customer::emailAddress>},
    {"phoneNumber", customerField<&Customer::phoneNumber>},
    {"vatNumber", [](Model &m, Customer &c, QStringList &) { return QVariant(m.customerVatNumber(&c)); }},
    {"businessId", [](Model &m, Customer &c, QStringList &) { return QVariant(m.customerBusinessId(&c)); }},
    {"hasBusinessId",
     [](Model &, Customer &c, QStringList &) { return QVariant(Customer::isValidBusinessId(c.vatNumber)); }},
    {"hasVatNumber", [](Model &m, Customer &c, QStringList &) { return QVariant(m.customerHasVatNumber(&c)); }},
    {"language", property<language>},
    {"custom1", property<custom1>},
    {"custom2", property<custom2>},
    {"intermediatorId", property<intermediator>},
    {"receiverId", property<receiver>},
    {"edi", property<edi>},
};

QVariant customerValue(Model &model, const Invoice &invoice, QStringList &path)
{
    Customer *customer = model.customer(invoice);
    return customer ? ValuePath::resolve(customerKeys, path, model, *customer) : QVariant();
}

// Invoice ------------------------------------------------------------------------------------------------------------

using InvoiceKey = Key<Model &, const Invoice &>;

template <QString (*form)(const QString &)> QVariant reference(Model &, const Invoice &invoice, QStringList &)
{
    return form(invoice.referenceNumber);
}

QString formattedRf(const QString &reference)
{
    return Invoice::formatRfReferenceNumber(Invoice::referenceNumberToRf(reference));
}

template <int version> QVariant barcode(Model &model, const Invoice &invoice, QStringList &)
{
    return model.barcode(invoice, version);
}

const InvoiceKey invoiceKeys[] = {
    {"items", itemsValue},
    {"vat", [](Model &m, const Invoice &i, QStringList &rest) { return InvoicePaths::vat(m.vat(i), rest); }},
    {"customer", customerValue},
    {"type", [](Model &m, const Invoice &i, QStringList &) { return QVariant(m.typeCode(i)); }},
    {"number", field<&Invoice::number>},
    {"date", field<&Invoice::date>},
    {"dueDate", field<&Invoice::dueDate>},
    {"deliveryDate", field<&Invoice::deliveryDate>},
    {"hasDeliveryDate", [](Model &, const Invoice &i, QStringList &) { return QVariant(i.deliveryDate.isValid()); }},
    {"paymentTerms", field<&Invoice::paymentTerms>},
    {"delivery", field<&Invoice::delivery>},
    {"buyerRef", field<&Invoice::buyerRef>},
    {"sellerRef", field<&Invoice::sellerRef>},
    {"interestOnArrears", field<&Invoice::interestOnArrears>},
    {"totalAmountVatExcluded",
     [](Model &m, const Invoice &i, QStringList &) { return QVariant(m.vat(i).totalAmountVatExcluded()); }},
    {"totalVatAmount", [](Model &m, const Invoice &i, QStringList &) { return QVariant(m.vat(i).totalVatAmount()); }},
    {"totalAmount", field<&Invoice::totalAmount>},
    {"balance", field<&Invoice::balance>},
    {"periodForComplaints",
     [](Model &m, const Invoice &, QStringList &) {
         return QVariant(m.settings()->property(QStringLiteral("settings/periodForComplaints")).toString());
     }},
    {"referenceNumber", reference<Invoice::formatReferenceNumber>},
    {"referenceNumberRaw", field<&Invoice::referenceNumber>},
    {"referenceNumberSpy", reference<Invoice::formatSpyReferenceNumber>},
    {"referenceNumberRf", reference<formattedRf>},
    {"referenceNumberRfRaw", reference<Invoice::referenceNumberToRf>},
    {"barcode", barcode<4>},
    {"barcode4", barcode<4>},
    {"barcode5", barcode<5>},
    {"noticeText1",
     [](Model &, const Invoice &i, QStringList &) { return QVariant(i.property(QStringLiteral("t1")).toString()); }},
    {"noticeText2",
     [](Model &, const Invoice &i, QStringList &) { return QVariant(i.property(QStringLiteral("t2")).toString()); }},
};

QVariant invoicesValue(Model &model, QStringList &path)
{
    return ValuePath::resolveList(model.invoiceCount(), path, [&model](int index, QStringList &rest) {
        return InvoicePaths::invoice(model, *model.invoice(index), rest);
    });
}

// Seller and settings ------------------------------------------------------------------------------------------------

const Key<const BankAccount &> accountKeys[] = {
    {"name", field<&BankAccount::name>},
    {"iban", [](const BankAccount &a, QStringList &) { return QVariant(BankAccount::formatIban(a.iban)); }},
    {"ibanRaw", field<&BankAccount::iban>},
    {"bban", [](const BankAccount &a,
                QStringList &) { return QVariant(BankAccount::formatBban(BankAccount::ibanToBban(a.iban))); }},
    {"bbanRaw", [](const BankAccount &a, QStringList &) { return QVariant(BankAccount::ibanToBban(a.iban)); }},
    {"bic", field<&BankAccount::bic>},
    {"visible", field<&BankAccount::visible>},
};

QVariant accountsValue(const QList<BankAccount> &accounts, QStringList &path)
{
    return ValuePath::resolveList(accounts.size(), path, [&accounts](int index, QStringList &rest) {
        return ValuePath::resolve(accountKeys, rest, accounts.at(index));
    });
}

template <QString Settings::*member> QVariant sellerField(Model &model, QStringList &)
{
    return model.settings()->*member;
}

QString sellerProperty(Model &model, const char *key)
{
    return model.settings()->property(QLatin1String(key)).toString();
}

const Key<Model &> sellerKeys[] = {
    {"name", sellerField<&Settings::sellerName>},
    {"streetName", sellerField<&Settings::sellerStreetName>},
    {"postCode", sellerField<&Settings::sellerPostCode>},
    {"townName", sellerField<&Settings::sellerTownName>},
    {"country", sellerField<&Settings::sellerCountry>},
    {"businessId", sellerField<&Settings::sellerBusinessId>},
    {"phoneNumber", [](Model &m, QStringList &) { return QVariant(sellerProperty(m, "seller/phoneNumber")); }},
    {"emailAddress", [](Model &m, QStringList &) { return QVariant(sellerProperty(m, "seller/emailAddress")); }},
    {"webAddress", [](Model &m, QStringList &) { return QVariant(sellerProperty(m, "seller/webAddress")); }},
    {"vatNumber", [](Model &m, QStringList &) { return QVariant(sellerProperty(m, "seller/vatNumber")); }},
    {"webAddressShort",
     [](Model &m, QStringList &) {
         return QVariant(InvoicePaths::shortWebAddress(sellerProperty(m, "seller/webAddress")));
     }},
    {"edi", [](Model &m, QStringList &) { return QVariant(sellerProperty(m, "finvoice/edi")); }},
    {"bankAccounts", [](Model &m, QStringList &rest) { return accountsValue(m.visibleBankAccounts(), rest); }},
    {"bankAccountsAll", [](Model &m, QStringList &rest) { return accountsValue(m.bankAccounts(), rest); }},
    {"hasLogo", [](Model &m, QStringList &) { return QVariant(!m.logo().isNull()); }},
};

struct SettingKey {
    const char *key;
    const char *property;
};

// What is read as it stands; a missing setting is an invalid value.
constexpr SettingKey settingKeys[] = {
    {"reminderText", "invoiceForm/reminderText"},
    {"invoiceItemOptions", "invoiceForm/invoiceItemOptions"},
    {"language", "invoiceForm/language"},
    {"roundingMode", "invoiceForm/roundingMode"},
    {"epiPaymentInstructionId", "finvoice/epiInstructionId"},
    {"senderId", "finvoice/senderId"},
    {"defaultReceiverId", "finvoice/defaultReceiverId"},
    {"intermediatorId", "finvoice/intermediatorId"},
};

constexpr double defaultLogoHeight = 17.0; // millimetres
constexpr QLatin1String footerKey("footerText");

const Key<Model &> topKeys[] = {
    {"invoices", invoicesValue},
    {"seller", InvoicePaths::seller},
    {"settings", InvoicePaths::settings},
};

} // namespace

QVariant InvoicePaths::value(InvoicePrintModel &model, QStringList &path)
{
    return ValuePath::resolve(topKeys, path, model);
}

QVariant InvoicePaths::invoice(InvoicePrintModel &model, const Invoice &invoice, QStringList &path)
{
    return ValuePath::resolve(invoiceKeys, path, model, invoice);
}

QVariant InvoicePaths::seller(InvoicePrintModel &model, QStringList &path)
{
    return ValuePath::resolve(sellerKeys, path, model);
}

QVariant InvoicePaths::settings(InvoicePrintModel &model, QStringList &path)
{
    if (path.isEmpty())
        return QVariant();
    const Settings &settings = *model.settings();
    const QString element = path.takeFirst();
    if (element == QLatin1String("barcodeVisible"))
        return settings.property(QStringLiteral("invoiceForm/barcodeVisible"), true).toBool();
    if (element == QLatin1String("logoHeight"))
        return settings.property(QStringLiteral("invoiceForm/logoHeight"), defaultLogoHeight).toDouble();
    if (element.startsWith(footerKey))
        return settings.property(QLatin1String("invoiceForm/footer/text") + element.mid(footerKey.size()));
    for (const SettingKey &row : settingKeys) {
        if (element == QLatin1String(row.key))
            return settings.property(QLatin1String(row.property));
    }
    return QVariant();
}

QVariant InvoicePaths::vat(const Vat &vat, QStringList &path)
{
    return ValuePath::resolveList(vat.size(), path, [&vat](int index, QStringList &rest) {
        int rate = vat.vatRates().at(index);
        return ValuePath::resolve(vatKeys, rest, vat, rate);
    });
}

QString InvoicePaths::shortWebAddress(const QString &address)
{
    QString result = address;
    for (const QLatin1String protocol : {QLatin1String("http://"), QLatin1String("https://")}) {
        if (address.startsWith(protocol)) {
            result.remove(0, protocol.size());
            break;
        }
    }
    if (result.count(QLatin1Char('/')) == 1 && result.endsWith(QLatin1Char('/')))
        result.chop(1);
    return result;
}

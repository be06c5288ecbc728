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
    {"quantity", [](const InvoiceItem &i, QStringList &) { return ValuePath::number(i.quantity); }},
    {"vatRate", field<&InvoiceItem::vatRate>},
    {"discountPercent", field<&InvoiceItem::discount>},
    {"totalAmount", [](const InvoiceItem &i, QStringList &) { return ValuePath::number(i.totalAmountVatIncluded()); }},
    {"totalAmountVatExcluded",
     [](const InvoiceItem &i, QStringList &) { return ValuePath::number(i.totalAmountVatExcluded()); }},
    {"totalVatAmount",
     [](const InvoiceItem &i, QStringList &) {
         return ValuePath::number(i.totalAmountVatIncluded() - i.totalAmountVatExcluded());
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
     [](const Vat &v, int &rate, QStringList &) { return ValuePath::number(v.totalAmountVatExcluded(rate)); }},
    {"vatAmount", [](const Vat &v, int &rate, QStringList &) { return ValuePath::number(v.totalVatAmount(rate)); }},
    {"amount", [](const Vat &v, int &rate, QStringList &) { return ValuePath::number(v.totalAmount(rate)); }},
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
     [](Model &m, const Invoice &i, QStringList &) { return ValuePath::number(m.vat(i).totalAmountVatExcluded()); }},
    {"totalVatAmount",
     [](Model &m, const Invoice &i, QStringList &) { return ValuePath::number(m.vat(i).totalVatAmount()); }},
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

// Top -----------------------------------------------------------------------------------------------------------------

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

QVariant InvoicePaths::vat(const Vat &vat, QStringList &path)
{
    return ValuePath::resolveList(vat.size(), path, [&vat](int index, QStringList &rest) {
        int rate = vat.vatRates().at(index);
        return ValuePath::resolve(vatKeys, rest, vat, rate);
    });
}

#include "einvoiceterms.h"
#include "fieldgetters.h"
#include "fieldsetters.h"
#include "records.h"
#include "texts.h"

namespace {

using R = RowRecord;
constexpr auto part = &R::item;
constexpr unsigned shown = Field::summary;
constexpr unsigned edited = shown | Field::editable;

template <auto setPrice> bool price(void *record, const ValueReader &reader, const Field &field, const QString &value)
{
    long long amount = 0;
    if (!reader.number(field.name, field.type, value, amount))
        return false;
    (static_cast<InvoiceItem *>(record)->*setPrice)(amount);
    return true;
}

/** An emptied term stays as an empty one, so that the invoice forgets it. */
template <const char *key, bool (*set)(void *, const ValueReader &, const Field &, const QString &)>
bool setTerm(void *record, const ValueReader &reader, const Field &field, const QString &value)
{
    if (!set(record, reader, field, value))
        return false;
    InvoiceItem &item = *static_cast<InvoiceItem *>(record);
    item.setProperty(QLatin1String(key), item.property(QLatin1String(key), QString()));
    return true;
}

/** A row without a product has none. */
Value productNumber(const void *record)
{
    const QString &number = static_cast<const R *>(record)->item.productNumber;
    return number.isEmpty() ? Value() : Value(number);
}

constexpr Field fields[] = {
    {"row", ValueType::integer, TEXT("Rivi"), TEXT("paikka laskulla, ensimmäinen on 1"), shown | Field::handle,
     value<&R::position>},
    {"id", ValueType::id, TEXT("Tunniste"), nullptr, shown, partValue<part, &InvoiceItem::id>, nullptr, nullptr,
     nullptr, "id"},
    {"product", ValueType::text, TEXT("Tuote"), TEXT("tuotenumero"), shown, productNumber, nullptr, nullptr, nullptr,
     "productNumber"},
    {"name", ValueType::text, TEXT("Nimi"), TEXT("tuotteen nimi tällä rivillä"), edited,
     partValue<part, &InvoiceItem::productName>, setMember<InvoiceItem, &InvoiceItem::productName>, nullptr, nullptr,
     "productName"},
    {"quantity", ValueType::quantity, TEXT("Määrä"), nullptr, edited, partValue<part, &InvoiceItem::quantity>,
     setMember<InvoiceItem, &InvoiceItem::quantity>, nullptr, nullptr, "quantity"},
    {"unit", ValueType::text, TEXT("Yksikkö"), nullptr, edited | Field::clearable,
     partValue<part, &InvoiceItem::unitCode>, setMember<InvoiceItem, &InvoiceItem::unitCode>, nullptr, nullptr,
     "unitCode"},
    {"price", ValueType::price, TEXT("Hinta"), TEXT("yksikköhinta ilman arvonlisäveroa"), edited,
     partValue<part, &priceVatExcluded<InvoiceItem>>, price<&InvoiceItem::setAmountVatExcluded>, nullptr, nullptr,
     "amountVatExcluded"},
    {"priceWithVat", ValueType::price, TEXT("Verollinen hinta"), TEXT("yksikköhinta arvonlisäveroineen"), edited,
     partValue<part, &priceVatIncluded<InvoiceItem>>, price<&InvoiceItem::setAmountVatIncluded>, nullptr, nullptr,
     "amountVatIncluded"},
    {"priceIncludesVat", ValueType::flag, TEXT("Hinta sisältää veron"), nullptr, shown,
     [](const void *r) { return Value(!static_cast<const R *>(r)->item.vatExcluded); }},
    {"vatRate", ValueType::percent, TEXT("Vero-%"), TEXT("arvonlisäveroprosentti"), edited,
     partValue<part, &InvoiceItem::vatRate>, setMember<InvoiceItem, &InvoiceItem::vatRate>, nullptr, nullptr,
     "vatRate"},
    {"discount", ValueType::percent, TEXT("Alennus-%"), nullptr, edited | Field::clearable,
     partValue<part, &InvoiceItem::discount>, setMember<InvoiceItem, &InvoiceItem::discount>, nullptr, nullptr,
     "discount"},
    {"text", ValueType::text, TEXT("Teksti"), TEXT("vapaa teksti rivin alle"),
     edited | Field::clearable | Field::multiline, partValue<part, &InvoiceItem::text>,
     setMember<InvoiceItem, &InvoiceItem::text>, nullptr, nullptr, "text"},
    {"vatCategory", ValueType::word, TEXT("Veroluokka"), TEXT("rivin oma veroluokka, jos vero on 0 %"),
     edited | Field::clearable, PropertyOf<part, EInvoiceTerms::vatCategory>::getWord,
     setTerm<EInvoiceTerms::vatCategory, PropertyOf<part, EInvoiceTerms::vatCategory>::set>,
     EInvoiceTerms::vatCategories},
    {"vatReason", ValueType::text, TEXT("Verottomuuden syy"), nullptr, edited | Field::clearable,
     PropertyOf<part, EInvoiceTerms::vatReason>::get,
     setTerm<EInvoiceTerms::vatReason, PropertyOf<part, EInvoiceTerms::vatReason>::set>},
    {"vatReasonCode", ValueType::text, TEXT("Verottomuuden koodi"), TEXT("verottomuuden syyn koodi (VATEX)"),
     edited | Field::clearable, PropertyOf<part, EInvoiceTerms::vatReasonCode>::get,
     setTerm<EInvoiceTerms::vatReasonCode, EInvoiceTerms::setCode<part, EInvoiceTerms::vatReasonCode>>, nullptr,
     nullptr, nullptr, EInvoiceTerms::exemptions},
    {"net", ValueType::money, TEXT("Veroton"), nullptr, shown, value<&R::net>},
    {"total", ValueType::money, TEXT("Summa"), nullptr, shown, value<&R::total>},
};

constexpr Field rateFields[] = {
    {"vatRate", ValueType::percent, TEXT("Vero-%"), nullptr, shown, value<&VatRateRecord::vatRate>},
    {"net", ValueType::money, TEXT("Veroton"), nullptr, shown | Field::summed, value<&VatRateRecord::net>},
    {"vat", ValueType::money, TEXT("Vero"), nullptr, shown | Field::summed, value<&VatRateRecord::vat>},
    {"total", ValueType::money, TEXT("Summa"), nullptr, shown | Field::summed, value<&VatRateRecord::total>},
};

} // namespace

const RecordTable rowTable = {"row", fields, sizeof fields / sizeof fields[0],
                              "row,product,name,quantity,unit,price,vatRate,discount,total,text"};

const RecordTable vatRateTable = {"vatRate", rateFields, sizeof rateFields / sizeof rateFields[0],
                                  "vatRate,net,vat,total"};

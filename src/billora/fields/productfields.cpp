#include "fieldgetters.h"
#include "fieldsetters.h"
#include "records.h"
#include "texts.h"

#include <limits>

namespace {

using R = ProductRecord;
constexpr auto part = &R::product;
constexpr unsigned shown = Field::summary;
constexpr unsigned edited = shown | Field::editable;

template <auto setPrice> bool price(void *record, const ValueReader &reader, const Field &field, const QString &value)
{
    long long amount = 0;
    if (!reader.number(field.name, field.type, value, amount))
        return false;
    // A price is read back through 32 bits: refuse what would come back as another one.
    if (amount > std::numeric_limits<int>::max() || amount < std::numeric_limits<int>::min())
        return reader.failValue(field.name, value, text(TEXT("luku on liian suuri")));
    (static_cast<Product *>(record)->*setPrice)(amount);
    return true;
}

constexpr Field fields[] = {
    {"id", ValueType::id, TEXT("Tunniste"), nullptr, shown, partValue<part, &Product::id>, nullptr, nullptr, nullptr,
     "id"},
    {"number", ValueType::text, TEXT("Numero"), TEXT("tuotenumero, voi olla myös tekstiä"),
     edited | Field::required | Field::handle, partValue<part, &Product::number>, setMember<Product, &Product::number>,
     nullptr, nullptr, "number"},
    {"name", ValueType::text, TEXT("Nimi"), nullptr, edited | Field::required, partValue<part, &Product::name>,
     setMember<Product, &Product::name>, nullptr, nullptr, "name"},
    {"unit", ValueType::text, TEXT("Yksikkö"), nullptr, edited | Field::clearable, partValue<part, &Product::unitCode>,
     setMember<Product, &Product::unitCode>, nullptr, nullptr, "unitCode"},
    {"price", ValueType::price, TEXT("Hinta"), TEXT("yksikköhinta ilman arvonlisäveroa"), edited,
     partValue<part, &priceVatExcluded<Product>>, price<&Product::setAmountVatExcluded>, nullptr, nullptr,
     "amountVatExcluded"},
    {"priceWithVat", ValueType::price, TEXT("Verollinen hinta"), TEXT("yksikköhinta arvonlisäveroineen"), edited,
     partValue<part, &priceVatIncluded<Product>>, price<&Product::setAmountVatIncluded>, nullptr, nullptr,
     "amountVatIncluded"},
    {"priceIncludesVat", ValueType::flag, TEXT("Hinta sisältää veron"), nullptr, shown,
     [](const void *r) { return Value(!static_cast<const R *>(r)->product.vatExcluded); }},
    {"vatRate", ValueType::percent, TEXT("Vero-%"), TEXT("arvonlisäveroprosentti"), edited,
     partValue<part, &Product::vatRate>, setMember<Product, &Product::vatRate>, nullptr, nullptr, "vatRate"},
    {"category", ValueType::text, TEXT("Ryhmä"), nullptr, edited | Field::clearable,
     partValue<part, &Product::category>, setMember<Product, &Product::category>, nullptr, nullptr, "category"},
};

} // namespace

const RecordTable productTable = {"product", fields, sizeof fields / sizeof fields[0],
                                  "number,name,price,priceWithVat,vatRate,unit,category"};

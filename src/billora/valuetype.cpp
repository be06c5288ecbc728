#include "valuetype.h"

#include "constants.h"

#include <cstddef>

namespace {

struct TypeRow {
    ValueType type;
    const char *name;
    int digits, minDigits;
};

constexpr TypeRow types[] = {
    {ValueType::text, "text", 0, 0},
    {ValueType::word, "word", 0, 0},
    {ValueType::flag, "flag", 0, 0},
    {ValueType::integer, "integer", 0, 0},
    {ValueType::id, "id", 0, 0},
    {ValueType::money, "money", Constants::totalAmountFractionDigits, Constants::totalAmountMinFractionDigits},
    {ValueType::price, "price", Constants::amountFractionDigits, Constants::amountMinFractionDigits},
    {ValueType::quantity, "quantity", Constants::quantityFractionDigits, Constants::quantityMinFractionDigits},
    {ValueType::percent, "percent", Constants::percentageFractionDigits, Constants::percentageMinFractionDigits},
    {ValueType::date, "date", 0, 0},
    {ValueType::period, "period", 0, 0},
    {ValueType::file, "file", 0, 0},
    {ValueType::secret, "text", 0, 0},
    {ValueType::fields, "fields", 0, 0},
    {ValueType::row, "row", 0, 0},
    {ValueType::records, "records", 0, 0},
    {ValueType::bank, "text", 0, 0},
    {ValueType::customer, "customer", 0, 0},
    {ValueType::product, "product", 0, 0},
    {ValueType::account, "account", 0, 0},
    {ValueType::layout, "layout", 0, 0},
    {ValueType::invoice, "invoice", 0, 0},
    {ValueType::invoices, "invoices", 0, 0},
    {ValueType::payment, "payment", 0, 0},
    {ValueType::position, "position", 0, 0},
    {ValueType::setting, "setting", 0, 0},
    {ValueType::command, "command", 0, 0},
};

constexpr bool isInOrder()
{
    for (std::size_t i = 0; i < sizeof types / sizeof types[0]; ++i) {
        if (static_cast<std::size_t>(types[i].type) != i)
            return false;
    }
    return true;
}
static_assert(isInOrder(), "a row for each type, in the order of the enumeration");

const TypeRow &row(ValueType type) { return types[static_cast<int>(type)]; }

} // namespace

const char *valueTypeName(ValueType type) { return row(type).name; }

int fractionDigits(ValueType type) { return row(type).digits; }

int minFractionDigits(ValueType type) { return row(type).minDigits; }

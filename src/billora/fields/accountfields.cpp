#include "fieldgetters.h"
#include "fieldsetters.h"
#include "records.h"
#include "texts.h"

namespace {

using R = AccountRecord;
constexpr auto part = &R::account;
constexpr unsigned shown = Field::summary;
constexpr unsigned edited = shown | Field::editable;

constexpr Field fields[] = {
    {"id", ValueType::id, TEXT("Tunniste"), nullptr, shown, partValue<part, &BankAccount::id>, nullptr, nullptr,
     nullptr, "id"},
    {"name", ValueType::text, TEXT("Nimi"), TEXT("pankin nimi, kuten se tulostetaan"),
     edited | Field::required | Field::handle, partValue<part, &BankAccount::name>,
     setMember<BankAccount, &BankAccount::name>, nullptr, nullptr, "name"},
    {"shortName", ValueType::text, TEXT("Lyhyt nimi"), nullptr, edited | Field::clearable,
     partValue<part, &BankAccount::shortName>, setMember<BankAccount, &BankAccount::shortName>, nullptr, nullptr,
     "shortName"},
    {"iban", ValueType::bank, TEXT("IBAN"), TEXT("tilinumero, välilyönneillä tai ilman"), edited | Field::required,
     partValue<part, &BankAccount::iban>, setMember<BankAccount, &BankAccount::iban>, nullptr, nullptr, "iban"},
    {"bic", ValueType::bank, TEXT("BIC"), TEXT("pankin tunnus; suomalaisille pankeille ohjelma tietää sen"),
     edited | Field::clearable, partValue<part, &BankAccount::bic>, setMember<BankAccount, &BankAccount::bic>, nullptr,
     nullptr, "bic"},
    {"position", ValueType::integer, TEXT("Järjestys"), TEXT("paikka luettelossa"), edited,
     partValue<part, &BankAccount::rowNumber>, setMember<BankAccount, &BankAccount::rowNumber>, nullptr, nullptr,
     "rowNumber"},
    {"visible", ValueType::flag, TEXT("Näkyvissä"), TEXT("tulostetaan laskuille"), edited,
     partValue<part, &BankAccount::visible>, setMember<BankAccount, &BankAccount::visible>},
};

} // namespace

const RecordTable accountTable = {"account", fields, sizeof fields / sizeof fields[0],
                                  "name,iban,bic,position,visible"};

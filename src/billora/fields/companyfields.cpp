#include "databaselist.h"
#include "fieldgetters.h"
#include "importedpayment.h"
#include "records.h"
#include "texts.h"

namespace {

constexpr unsigned shown = Field::summary;

/** A text that may be missing: null means not set. */
template <class Record, QString Record::*member> Value optionalText(const void *record)
{
    const QString &text = static_cast<const Record *>(record)->*member;
    return text.isNull() ? Value() : Value(text);
}

constexpr Choice databaseTypes[] = {{"sqlite", "SQLite"}, {"postgresql", "PostgreSQL"}, {nullptr, nullptr}};

constexpr Field companyFields[] = {
    {"number", ValueType::integer, TEXT("Numero"), nullptr, shown | Field::handle, value<&CompanyRecord::number>},
    {"type", ValueType::word, TEXT("Laji"), nullptr, shown,
     [](const void *r) {
         return Value(
             QString::fromLatin1(static_cast<const CompanyRecord *>(r)->isPostgreSQL ? "postgresql" : "sqlite"));
     },
     nullptr, databaseTypes},
    {"file", ValueType::text, TEXT("Tiedosto"), nullptr, shown, optionalText<CompanyRecord, &CompanyRecord::file>},
    {"host", ValueType::text, TEXT("Palvelin"), nullptr, shown, optionalText<CompanyRecord, &CompanyRecord::host>},
    {"database", ValueType::text, TEXT("Tietokanta"), nullptr, shown,
     optionalText<CompanyRecord, &CompanyRecord::database>},
    {"selected", ValueType::flag, TEXT("Valittu"), nullptr, shown, value<&CompanyRecord::isSelected>},
};

using U = CompanyUpgradeRecord;

Value versionOrNull(int version) { return version > 0 ? Value(version) : Value(); }

constexpr Field upgradeFields[] = {
    {"number", ValueType::integer, TEXT("Numero"), nullptr, shown | Field::handle, value<&U::number>},
    {"name", ValueType::text, TEXT("Nimi"), nullptr, shown, optionalText<U, &U::name>},
    {"before", ValueType::integer, TEXT("Ennen"), TEXT("tietokannan rakenteen versio ennen päivitystä"), shown,
     [](const void *r) { return versionOrNull(static_cast<const U *>(r)->before); }},
    {"after", ValueType::integer, TEXT("Jälkeen"), TEXT("tietokannan rakenteen versio päivityksen jälkeen"), shown,
     [](const void *r) { return versionOrNull(static_cast<const U *>(r)->after); }},
    {"error", ValueType::text, TEXT("Virhe"), nullptr, shown, optionalText<U, &U::error>},
};

constexpr Field settingFields[] = {
    {"key", ValueType::text, TEXT("Avain"), nullptr, shown | Field::handle, value<&SettingRecord::key>},
    {"value", ValueType::text, TEXT("Arvo"), nullptr, shown, value<&SettingRecord::value>},
    {"type", ValueType::text, TEXT("Laji"), nullptr, shown,
     [](const void *r) {
         return Value(QString::fromLatin1(valueTypeName(static_cast<const SettingRecord *>(r)->type)));
     }},
    {"description", ValueType::text, TEXT("Selitys"), nullptr, shown, value<&SettingRecord::description>},
};

constexpr Field layoutFields[] = {
    {"id", ValueType::id, TEXT("Tunniste"), nullptr, shown,
     [](const void *r) { return optionalNumber(static_cast<const LayoutRecord *>(r)->id); }},
    {"type", ValueType::text, TEXT("Laji"), nullptr, shown, value<&LayoutRecord::type>},
    {"name", ValueType::text, TEXT("Nimi"), nullptr, shown | Field::handle, value<&LayoutRecord::name>},
    {"selected", ValueType::flag, TEXT("Valittu"), nullptr, shown, value<&LayoutRecord::isSelected>},
};

constexpr Field findingFields[] = {
    {"check", ValueType::text, TEXT("Tarkistus"), nullptr, shown, value<&FindingRecord::check>},
    {"table", ValueType::text, TEXT("Taulu"), nullptr, shown, value<&FindingRecord::table>},
    {"id", ValueType::id, TEXT("Tunniste"), nullptr, shown,
     [](const void *r) { return optionalNumber(static_cast<const FindingRecord *>(r)->id); }},
    {"message", ValueType::text, TEXT("Havainto"), nullptr, shown | Field::handle, value<&FindingRecord::message>},
};

using P = ImportedPayment;

constexpr Choice results[] = {{"saved", TEXT("tallennettu"), "32"},
                              {"alreadyImported", TEXT("tallennettu jo aiemmin")},
                              {"unmatched", TEXT("kohdistamatta"), "33"},
                              {"ambiguous", TEXT("useita laskuja"), "31"},
                              {"error", TEXT("virhe"), "31"},
                              {nullptr, nullptr}};

constexpr Field importFields[] = {
    {"file", ValueType::text, TEXT("Tiedosto"), nullptr, shown, value<&P::fileName>},
    {"line", ValueType::integer, TEXT("Rivi"), nullptr, shown, value<&P::lineNumber>},
    {"date", ValueType::date, TEXT("Päivä"), nullptr, shown, value<&P::date>},
    {"amount", ValueType::money, TEXT("Summa"), nullptr, shown | Field::summed, value<&P::amount>},
    {"reference", ValueType::text, TEXT("Viite"), nullptr, shown, value<&P::referenceNumber>},
    {"payerName", ValueType::text, TEXT("Maksaja"), nullptr, shown, value<&P::payerName>},
    {"archiveId", ValueType::text, TEXT("Arkistotunnus"), nullptr, shown, value<&P::archiveId>},
    {"account", ValueType::id, TEXT("Tilin tunniste"), nullptr, shown,
     [](const void *r) { return optionalNumber(static_cast<const P *>(r)->bankAccountId); }},
    {"invoice", ValueType::integer, TEXT("Lasku"), nullptr, shown | Field::handle,
     [](const void *r) {
         const P &payment = *static_cast<const P *>(r);
         return payment.invoiceId < 0 ? Value() : Value(payment.invoiceNumber);
     }},
    {"result", ValueType::word, TEXT("Tulos"), nullptr, shown,
     [](const void *r) {
         return Value(QString::fromLatin1(results[static_cast<int>(static_cast<const P *>(r)->result)].word));
     },
     nullptr, results},
    {"message", ValueType::text, TEXT("Syy"), nullptr, shown, value<&P::message>},
};

template <std::size_t n> constexpr RecordTable tableOf(const char *name, const Field (&fields)[n], const char *columns)
{
    return {name, fields, static_cast<int>(n), columns};
}

} // namespace

CompanyRecord CompanyRecord::of(const QVariantMap &entry, int lastUsed)
{
    const auto value = [&entry](const char *key) { return entry.value(QLatin1String(key)).toString(); };
    CompanyRecord record;
    record.number = DatabaseList::number(entry);
    record.isPostgreSQL = DatabaseList::isPostgreSQL(entry);
    record.isSelected = record.number > 0 && record.number == lastUsed;
    if (record.isPostgreSQL) {
        record.host = value("host");
        record.database = value("databaseName");
    } else {
        record.file = value("filename");
    }
    return record;
}

const RecordTable companyTable = tableOf("company", companyFields, "number,type,file,host,database,selected");
const RecordTable companyUpgradeTable = tableOf("companyUpgrade", upgradeFields, "number,name,before,after,error");
const RecordTable settingTable = tableOf("setting", settingFields, "key,value,description");
const RecordTable layoutTable = tableOf("layout", layoutFields, "id,type,name,selected");
const RecordTable findingTable = tableOf("finding", findingFields, "check,table,id,message");
const RecordTable importTable =
    tableOf("importedPayment", importFields, "invoice,amount,date,payerName,result,message");

#include "fieldgetters.h"
#include "records.h"
#include "texts.h"

namespace {

using R = FileRecord;

constexpr Field fields[] = {
    {"file", ValueType::text, TEXT("Tiedosto"), nullptr, Field::summary | Field::handle,
     [](const void *r) {
         const QString &name = static_cast<const R *>(r)->fileName;
         return name.isEmpty() ? Value() : Value(name);
     }},
    {"invoice", ValueType::integer, TEXT("Lasku"), nullptr, Field::summary,
     [](const void *r) { return optionalNumber(static_cast<const R *>(r)->invoiceNumber); }},
    {"error", ValueType::text, TEXT("Virhe"), nullptr, Field::summary,
     [](const void *r) {
         const QString &error = static_cast<const R *>(r)->error;
         return error.isNull() ? Value() : Value(error);
     }},
};

constexpr Choice severities[] = {{"error", TEXT("virhe"), "31"},
                                 {"warning", TEXT("varoitus"), "33"},
                                 {"note", TEXT("huomautus")},
                                 {nullptr, nullptr}};

constexpr Field checkFields[] = {
    {"invoice", ValueType::integer, TEXT("Lasku"), nullptr, Field::summary | Field::handle,
     value<&CheckRecord::invoiceNumber>},
    {"rule", ValueType::text, TEXT("Sääntö"), nullptr, Field::summary, value<&CheckRecord::rule>},
    {"severity", ValueType::word, TEXT("Vakavuus"), nullptr, Field::summary, value<&CheckRecord::severity>, nullptr,
     severities},
    {"term", ValueType::text, TEXT("Tieto"), TEXT("standardin EN 16931 tieto"), Field::summary,
     value<&CheckRecord::term>},
    {"field", ValueType::text, TEXT("Kenttä"), TEXT("missä tieto korjataan"), Field::summary,
     value<&CheckRecord::field>},
    {"message", ValueType::text, TEXT("Havainto"), nullptr, Field::summary, value<&CheckRecord::message>},
    {"command", ValueType::text, TEXT("Korjaus"), TEXT("komento, jolla tieto annetaan"), Field::summary,
     value<&CheckRecord::command>},
};

} // namespace

const RecordTable checkTable = {"checkFinding", checkFields, sizeof checkFields / sizeof checkFields[0],
                                "invoice,severity,rule,term,field,message,command"};
const RecordTable fileTable = {"file", fields, sizeof fields / sizeof fields[0], "file,error"};

#include "fieldgetters.h"
#include "records.h"
#include "texts.h"

namespace {

using R = FileRecord;

constexpr Field fields[] = {
    {"file", ValueType::text, TEXT("Tiedosto"), nullptr, Field::summary | Field::handle, value<&R::fileName>},
    {"invoice", ValueType::integer, TEXT("Lasku"), nullptr, Field::summary,
     [](const void *r) { return optionalNumber(static_cast<const R *>(r)->invoiceNumber); }},
    {"error", ValueType::text, TEXT("Virhe"), nullptr, Field::summary,
     [](const void *r) {
         const QString &error = static_cast<const R *>(r)->error;
         return error.isNull() ? Value() : Value(error);
     }},
};

} // namespace

const RecordTable fileTable = {"file", fields, sizeof fields / sizeof fields[0], "file,error"};

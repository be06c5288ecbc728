#include "fieldgetters.h"
#include "records.h"
#include "texts.h"

namespace {

using R = JournalRecord;
using F = JournalFindingRecord;
constexpr unsigned shown = Field::summary;

constexpr Field lineFields[] = {
    {"line", ValueType::integer, TEXT("Rivi"), nullptr, shown | Field::handle, value<&R::line>},
    {"time", ValueType::text, TEXT("Aika"), TEXT("lähettämisen aika, UTC"), shown, value<&R::time>},
    {"invoice", ValueType::integer, TEXT("Lasku"), nullptr, shown, value<&R::invoiceNumber>},
    {"invoiceId", ValueType::id, TEXT("Laskun tunniste"), nullptr, shown, value<&R::invoiceId>},
    {"kind", ValueType::word, TEXT("Laji"), nullptr, shown, value<&R::kind>, nullptr, journalKinds},
    {"format", ValueType::text, TEXT("Muoto"), nullptr, shown, value<&R::format>},
    {"file", ValueType::text, TEXT("Tiedosto"), nullptr, shown, value<&R::file>},
    {"sha256", ValueType::text, TEXT("Tiedoston SHA-256"), nullptr, shown, value<&R::sha256>},
    {"recordSha256", ValueType::text, TEXT("Laskun SHA-256"), TEXT("lasku riveineen sellaisena kuin se lähetettiin"),
     shown, value<&R::record>},
    {"previous", ValueType::text, TEXT("Edellisen SHA-256"), TEXT("edellisen rivin SHA-256"), shown,
     value<&R::previous>},
    {"hash", ValueType::text, TEXT("Rivin SHA-256"), nullptr, shown, value<&R::hash>},
};

constexpr Choice findings[] = {{"broken", TEXT("rikki"), "31"},
                               {"changed", TEXT("muutettu"), "31"},
                               {"removed", TEXT("poistettu"), "31"},
                               {"added", TEXT("lisätty"), "31"},
                               {"head", TEXT("loppu tuntematon"), "31"},
                               {"record-changed", TEXT("lasku muuttunut"), "33"},
                               {"record-gone", TEXT("lasku poistettu"), "33"},
                               {nullptr, nullptr}};

constexpr Field findingFields[] = {
    {"line", ValueType::integer, TEXT("Rivi"), nullptr, shown | Field::handle, value<&F::line>},
    {"invoice", ValueType::integer, TEXT("Lasku"), nullptr, shown,
     [](const void *r) {
         const int number = static_cast<const F *>(r)->invoiceNumber;
         return number > 0 ? Value(number) : Value();
     }},
    {"finding", ValueType::word, TEXT("Havainto"), nullptr, shown, value<&F::finding>, nullptr, findings},
    {"message", ValueType::text, TEXT("Selitys"), nullptr, shown, value<&F::message>},
};

} // namespace

const Choice journalKinds[] = {{"invoice", TEXT("lasku")},
                               {"interest", TEXT("korkolasku")},
                               {"credit", TEXT("hyvityslasku")},
                               {"reminder", TEXT("maksumuistutus")},
                               {"receipt", TEXT("kuitti")},
                               {"delivery-note", TEXT("lähetyslista")},
                               {nullptr, nullptr}};

const RecordTable journalTable = {"journalLine", lineFields, sizeof lineFields / sizeof lineFields[0],
                                  "line,time,invoice,kind,format,file"};
const RecordTable journalFindingTable = {
    "journalFinding", findingFields, sizeof findingFields / sizeof findingFields[0], "line,invoice,finding,message"};

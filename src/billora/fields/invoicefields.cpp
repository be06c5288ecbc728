#include "einvoiceterms.h"
#include "fieldgetters.h"
#include "fieldsetters.h"
#include "invoicestate.h"
#include "records.h"
#include "texts.h"

namespace {

using R = InvoiceRecord;
constexpr auto part = &R::invoice;
constexpr unsigned shown = Field::summary;
constexpr unsigned edited = Field::editable;

const R &of(const void *record) { return *static_cast<const R *>(record); }

/** The words of choices as texts, made once: lists are long. */
QVector<QString> wordsOf(const Choice *choices)
{
    QVector<QString> words;
    for (; choices->word; ++choices)
        words.append(QLatin1String(choices->word));
    return words;
}

Value type(const void *record)
{
    static const QVector<QString> words = wordsOf(invoiceTypes);
    const int type = of(record).invoice.type;
    return type >= 0 && type < words.size() ? Value(words.at(type)) : Value();
}

Value customerName(const void *record)
{
    return of(record).customerName.isNull() ? Value() : Value(of(record).customerName);
}

Value state(const void *record)
{
    static const QVector<QString> words = wordsOf(invoiceStates);
    const Invoice &invoice = of(record).invoice;
    return Value(words.at(InvoiceState::of(invoice.totalAmount, invoice.balance, invoice.dueDate, of(record).today)));
}

Value paid(const void *record)
{
    const Invoice &invoice = of(record).invoice;
    return Value(static_cast<long long>(invoice.totalAmount) - invoice.balance);
}

constexpr Field fields[] = {
    {"id", ValueType::id, TEXT("Tunniste"), nullptr, shown, partValue<part, &Invoice::id>, nullptr, nullptr, nullptr,
     "id"},
    {"number", ValueType::integer, TEXT("Numero"), TEXT("laskun numero; seuraava, jos sitä ei anneta"),
     shown | edited | Field::handle, partValue<part, &Invoice::number>, nullptr, nullptr, nullptr, "number"},
    {"type", ValueType::word, TEXT("Laji"), nullptr, shown | edited, type, nullptr, invoiceTypes, nullptr, "type"},
    {"date", ValueType::date, TEXT("Päivä"), TEXT("laskun päivä; tänään, jos sitä ei anneta"), shown | edited,
     partValue<part, &Invoice::date>, nullptr, nullptr, nullptr, "date"},
    {"dueDate", ValueType::date, TEXT("Eräpäivä"), TEXT("eräpäivä; maksuehdon mukaan, jos sitä ei anneta"),
     shown | edited | Field::clearable, partValue<part, &Invoice::dueDate>, nullptr, nullptr, nullptr, "dueDate"},
    {"customer.id", ValueType::id, TEXT("Asiakkaan tunniste"), nullptr, shown, partValue<part, &Invoice::customerId>,
     nullptr, nullptr, nullptr, "customerId"},
    {"customer.number", ValueType::integer, TEXT("As.nro"), nullptr, shown,
     [](const void *r) { return optionalNumber(of(r).customerNumber); }},
    {"customer.name", ValueType::text, TEXT("Asiakas"), nullptr, shown, customerName},
    {"reference", ValueType::text, TEXT("Viite"), TEXT("viitenumero; # lopussa on tarkiste"),
     shown | edited | Field::clearable, partValue<part, &Invoice::referenceNumber>, nullptr, nullptr, nullptr,
     "referenceNumber"},
    {"total", ValueType::money, TEXT("Summa"), nullptr, shown | Field::summed, partValue<part, &Invoice::totalAmount>,
     nullptr, nullptr, nullptr, "amount"},
    {"balance", ValueType::money, TEXT("Avoinna"), nullptr, shown | Field::summed, partValue<part, &Invoice::balance>,
     nullptr, nullptr, nullptr, "balance"},
    {"state", ValueType::word, TEXT("Tila"), nullptr, shown, state, nullptr, invoiceStates},
    {"net", ValueType::money, TEXT("Veroton"), nullptr, Field::detail | Field::summed, value<&R::net>},
    {"vat", ValueType::money, TEXT("Vero"), nullptr, Field::detail | Field::summed, value<&R::vat>},
    {"paid", ValueType::money, TEXT("Maksettu"), nullptr, Field::summed, paid},
    {"paymentTerms", ValueType::text, TEXT("Maksuehto"), TEXT("maksuehto; sen ensimmäinen luku on päiviä"),
     edited | Field::clearable, partValue<part, &Invoice::paymentTerms>, nullptr, nullptr, nullptr, "paymentTerms"},
    {"interest", ValueType::percent, TEXT("Viivästyskorko-%"), nullptr, edited | Field::clearable,
     partValue<part, &Invoice::interestOnArrears>, setMember<Invoice, &Invoice::interestOnArrears>, nullptr, nullptr,
     "interestOnArrears"},
    {"delivery", ValueType::text, TEXT("Toimitustapa"), nullptr, edited | Field::clearable,
     partValue<part, &Invoice::delivery>, setMember<Invoice, &Invoice::delivery>, nullptr, nullptr, "delivery"},
    {"deliveryDate", ValueType::date, TEXT("Toimituspäivä"), nullptr, edited | Field::clearable,
     partValue<part, &Invoice::deliveryDate>, setMember<Invoice, &Invoice::deliveryDate>, nullptr, nullptr,
     "deliveryDate"},
    {"buyerRef", ValueType::text, TEXT("Viitteenne"), TEXT("ostajan viite"), edited | Field::clearable,
     partValue<part, &Invoice::buyerRef>, setMember<Invoice, &Invoice::buyerRef>, nullptr, nullptr, "buyerRef"},
    {"sellerRef", ValueType::text, TEXT("Viitteemme"), TEXT("myyjän viite"), edited | Field::clearable,
     partValue<part, &Invoice::sellerRef>, setMember<Invoice, &Invoice::sellerRef>, nullptr, nullptr, "sellerRef"},
    {"orderNumber", ValueType::text, TEXT("Tilausnumero"), TEXT("ostajan tilausnumero"),
     Field::editable | Field::clearable, PropertyOf<part, EInvoiceTerms::order>::get,
     PropertyOf<part, EInvoiceTerms::order>::set},
    {"projectNumber", ValueType::text, TEXT("Projektinumero"), nullptr, Field::editable | Field::clearable,
     PropertyOf<part, EInvoiceTerms::project>::get, PropertyOf<part, EInvoiceTerms::project>::set},
    {"creditedInvoice", ValueType::text, TEXT("Hyvitettävä lasku"), TEXT("hyvitettävän laskun numero"),
     Field::editable | Field::clearable, PropertyOf<part, EInvoiceTerms::creditedInvoice>::get,
     PropertyOf<part, EInvoiceTerms::creditedInvoice>::set},
    {"creditedDate", ValueType::date, TEXT("Hyvitettävän päivä"), TEXT("hyvitettävän laskun päivä"),
     Field::editable | Field::clearable, PropertyOf<part, EInvoiceTerms::creditedDate>::getDate,
     PropertyOf<part, EInvoiceTerms::creditedDate>::set},
    {"periodStart", ValueType::date, TEXT("Kausi alkaa"), TEXT("laskutuskauden alku"),
     Field::editable | Field::clearable, PropertyOf<part, EInvoiceTerms::periodStart>::getDate,
     PropertyOf<part, EInvoiceTerms::periodStart>::set},
    {"periodEnd", ValueType::date, TEXT("Kausi päättyy"), TEXT("laskutuskauden loppu"),
     Field::editable | Field::clearable, PropertyOf<part, EInvoiceTerms::periodEnd>::getDate,
     PropertyOf<part, EInvoiceTerms::periodEnd>::set},
    {"vatCategory", ValueType::word, TEXT("Veroluokka"), TEXT("veroluokka riveille, joiden vero on 0 %"),
     Field::editable | Field::clearable, PropertyOf<part, EInvoiceTerms::vatCategory>::getWord,
     PropertyOf<part, EInvoiceTerms::vatCategory>::set, EInvoiceTerms::vatCategories},
    {"vatReason", ValueType::text, TEXT("Verottomuuden syy"), nullptr, Field::editable | Field::clearable,
     PropertyOf<part, EInvoiceTerms::vatReason>::get, PropertyOf<part, EInvoiceTerms::vatReason>::set},
    {"vatReasonCode", ValueType::text, TEXT("Verottomuuden koodi"), TEXT("verottomuuden syyn koodi (VATEX)"),
     Field::editable | Field::clearable, PropertyOf<part, EInvoiceTerms::vatReasonCode>::get,
     EInvoiceTerms::setCode<part, EInvoiceTerms::vatReasonCode>, nullptr, nullptr, nullptr, EInvoiceTerms::exemptions},
    {"deliveryName", ValueType::text, TEXT("Toimitus: nimi"), nullptr, Field::editable | Field::clearable,
     PropertyOf<part, EInvoiceTerms::deliveryName>::get, PropertyOf<part, EInvoiceTerms::deliveryName>::set},
    {"deliveryStreet", ValueType::text, TEXT("Toimitus: katuosoite"), nullptr, Field::editable | Field::clearable,
     PropertyOf<part, EInvoiceTerms::deliveryStreet>::get, PropertyOf<part, EInvoiceTerms::deliveryStreet>::set},
    {"deliveryPostCode", ValueType::text, TEXT("Toimitus: postinumero"), nullptr, Field::editable | Field::clearable,
     PropertyOf<part, EInvoiceTerms::deliveryPostCode>::get, PropertyOf<part, EInvoiceTerms::deliveryPostCode>::set},
    {"deliveryTown", ValueType::text, TEXT("Toimitus: postitoimipaikka"), nullptr, Field::editable | Field::clearable,
     PropertyOf<part, EInvoiceTerms::deliveryTown>::get, PropertyOf<part, EInvoiceTerms::deliveryTown>::set},
    {"deliveryCountry", ValueType::text, TEXT("Toimitus: maa"), nullptr, Field::editable | Field::clearable,
     PropertyOf<part, EInvoiceTerms::deliveryCountry>::get, PropertyOf<part, EInvoiceTerms::deliveryCountry>::set},
    {"contractNumber", ValueType::text, TEXT("Sopimusnumero"), nullptr, Field::editable | Field::clearable,
     PropertyOf<part, EInvoiceTerms::contract>::get, PropertyOf<part, EInvoiceTerms::contract>::set},
    {"accounting", ValueType::text, TEXT("Tiliöintiviite"), TEXT("ostajan tiliöintiviite"),
     Field::editable | Field::clearable, PropertyOf<part, EInvoiceTerms::accounting>::get,
     PropertyOf<part, EInvoiceTerms::accounting>::set},
    {"vatRates", ValueType::records, TEXT("Verokannat"), nullptr, Field::detail,
     [](const void *r) { return recordsOf(of(r).vatRates); }, nullptr, nullptr, &vatRateTable},
    {"rows", ValueType::records, TEXT("Rivit"), nullptr, Field::detail,
     [](const void *r) { return recordsOf(of(r).rows); }, nullptr, nullptr, &rowTable},
    {"payments", ValueType::records, TEXT("Suoritukset"), nullptr, Field::detail,
     [](const void *r) { return recordsOf(of(r).payments); }, nullptr, nullptr, &paymentTable},
};

} // namespace

const Choice invoiceTypes[] = {{"invoice", TEXT("lasku")},
                               {"interest", TEXT("korkolasku")},
                               {"credit", TEXT("hyvityslasku")},
                               {"delivery-note", TEXT("lähetyslista")},
                               {nullptr, nullptr}};
const Choice invoiceStates[] = {{"empty", TEXT("tyhjä")},    {"paid", TEXT("maksettu"), "32"},
                                {"open", TEXT("avoin")},     {"overdue", TEXT("erääntynyt"), "31"},
                                {"credit", TEXT("hyvitys")}, {nullptr, nullptr}};

const RecordTable invoiceTable = {"invoice", fields, sizeof fields / sizeof fields[0],
                                  "number,date,dueDate,customer.number,customer.name,total,balance,state"};

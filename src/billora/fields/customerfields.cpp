#include "einvoiceterms.h"
#include "fieldgetters.h"
#include "fieldsetters.h"
#include "records.h"
#include "texts.h"

namespace {

using R = CustomerRecord;
constexpr auto part = &R::customer;
constexpr unsigned edited = Field::summary | Field::editable | Field::clearable;

constexpr Choice languages[] = {
    {"fi", TEXT("suomi")}, {"sv", TEXT("ruotsi")}, {"en", TEXT("englanti")}, {nullptr, nullptr}};

Value property(const void *record, const char *key)
{
    return Value(static_cast<const R *>(record)->customer.property(QLatin1String(key)).toString());
}

/** A getter and a setter of a property of the customer. */
template <char first, char second = 0> struct Property {
    static constexpr char key[] = {first, second, 0};
    static Value get(const void *record) { return property(record, key); }
    static bool set(void *record, const ValueReader &reader, const Field &field, const QString &value)
    {
        QString text;
        const bool read = field.choices && !value.isEmpty() ? reader.word(field.name, field.choices, value, text)
                                                            : reader.text(field.name, field.type, value, text);
        if (read)
            static_cast<Customer *>(record)->setPropertyIfNotEmpty(QLatin1String(key), text);
        return read;
    }
};

Value language(const void *record)
{
    const QString code = static_cast<const R *>(record)->customer.property(QStringLiteral("l")).toString();
    return code.isEmpty() ? Value() : Value(code.left(2));
}

bool setNumber(void *record, const ValueReader &reader, const Field &field, const QString &value)
{
    int number = 0;
    if (!reader.number(field.name, field.type, value, number))
        return false;
    if (number < 0)
        return reader.failValue(field.name, value, text(TEXT("luvun pitää olla vähintään 0")));
    static_cast<Customer *>(record)->number = number;
    return true;
}

constexpr Field fields[] = {
    {"id", ValueType::id, TEXT("Tunniste"), nullptr, Field::summary, partValue<part, &Customer::id>, nullptr, nullptr,
     nullptr, "id"},
    {"number", ValueType::integer, TEXT("Numero"), TEXT("asiakasnumero; seuraava, jos sitä ei anneta"),
     Field::summary | Field::editable | Field::handle,
     [](const void *r) { return optionalNumber(static_cast<const R *>(r)->customer.number); }, setNumber, nullptr,
     nullptr, "number"},
    {"name", ValueType::text, TEXT("Nimi"), nullptr, Field::summary | Field::editable | Field::required,
     partValue<part, &Customer::name>, setMember<Customer, &Customer::name>, nullptr, nullptr, "name"},
    {"contact", ValueType::text, TEXT("Yhteyshenkilö"), nullptr, edited, partValue<part, &Customer::contact>,
     setMember<Customer, &Customer::contact>, nullptr, nullptr, "contact"},
    {"street", ValueType::text, TEXT("Katuosoite"), nullptr, edited, partValue<part, &Customer::streetName>,
     setMember<Customer, &Customer::streetName>, nullptr, nullptr, "streetName"},
    {"postCode", ValueType::text, TEXT("Postinumero"), nullptr, edited, partValue<part, &Customer::postCode>,
     setMember<Customer, &Customer::postCode>, nullptr, nullptr, "postCode"},
    {"town", ValueType::text, TEXT("Postitoimipaikka"), nullptr, edited, partValue<part, &Customer::townName>,
     setMember<Customer, &Customer::townName>, nullptr, nullptr, "townName"},
    {"country", ValueType::text, TEXT("Maa"), nullptr, edited, partValue<part, &Customer::country>,
     setMember<Customer, &Customer::country>, nullptr, nullptr, "country"},
    {"vatNumber", ValueType::text, TEXT("Y-tunnus"), TEXT("Y-tunnus tai ALV-numero"), edited,
     partValue<part, &Customer::vatNumber>, setMember<Customer, &Customer::vatNumber>, nullptr, nullptr, "vatNumber"},
    {"email", ValueType::text, TEXT("Sähköposti"), nullptr, edited, partValue<part, &Customer::emailAddress>,
     setMember<Customer, &Customer::emailAddress>, nullptr, nullptr, "emailAddress"},
    {"phone", ValueType::text, TEXT("Puhelin"), nullptr, edited, partValue<part, &Customer::phoneNumber>,
     setMember<Customer, &Customer::phoneNumber>, nullptr, nullptr, "phoneNumber"},
    {"paymentTerms", ValueType::text, TEXT("Maksuehto"), TEXT("maksuehto uusille laskuille, \"14 pv netto\""), edited,
     partValue<part, &Customer::paymentTerms>, setMember<Customer, &Customer::paymentTerms>, nullptr, nullptr,
     "paymentTerms"},
    {"reference", ValueType::text, TEXT("Viitenumero"),
     TEXT("oma viitenumero kaikille laskuille; # lopussa on tarkiste"), edited,
     partValue<part, &Customer::referenceNumber>, setReference<Customer, &Customer::referenceNumber>, nullptr, nullptr,
     "referenceNumber"},
    {"custom1", ValueType::text, TEXT("Lisätieto 1"), nullptr, edited, Property<'c', '1'>::get, Property<'c', '1'>::set,
     nullptr, nullptr, "custom1"},
    {"custom2", ValueType::text, TEXT("Lisätieto 2"), nullptr, edited, Property<'c', '2'>::get, Property<'c', '2'>::set,
     nullptr, nullptr, "custom2"},
    {"language", ValueType::word, TEXT("Kieli"), TEXT("asiakkaan asiakirjojen kieli"), edited, language,
     Property<'l'>::set, languages},
    {"einvoiceAddress", ValueType::text, TEXT("Verkkolaskuosoite"), nullptr, edited, Property<'e', '2'>::get,
     Property<'e', '2'>::set},
    {"einvoiceOperator", ValueType::text, TEXT("Verkkolaskuoperaattori"), TEXT("välittäjän tunnus"), edited,
     Property<'e', '1'>::get, Property<'e', '1'>::set},
    {"einvoiceScheme", ValueType::text, TEXT("Osoitteen laji"),
     TEXT("verkkolaskuosoitteen laji (EAS), jos se ei selviä osoitteesta"), Field::editable | Field::clearable,
     PropertyOf<part, EInvoiceTerms::einvoiceScheme>::get, EInvoiceTerms::setCode<part, EInvoiceTerms::einvoiceScheme>,
     nullptr, nullptr, nullptr, EInvoiceTerms::addressSchemes},
    {"einvoiceFormat", ValueType::word, TEXT("Verkkolaskun muoto"), nullptr, Field::editable | Field::clearable,
     PropertyOf<part, EInvoiceTerms::einvoiceFormat>::getWord, PropertyOf<part, EInvoiceTerms::einvoiceFormat>::set,
     EInvoiceTerms::formats},
    {"buyerReference", ValueType::text, TEXT("Ostajan viite"), TEXT("viite laskuille, joilla ei ole omaa"),
     Field::editable | Field::clearable, PropertyOf<part, EInvoiceTerms::buyerReference>::get,
     PropertyOf<part, EInvoiceTerms::buyerReference>::set},
    {"countryCode", ValueType::text, TEXT("Maakoodi"), TEXT("ISO 3166, jos maan nimeä ei tunneta"),
     Field::editable | Field::clearable, PropertyOf<part, EInvoiceTerms::countryCode>::get,
     EInvoiceTerms::setCode<part, EInvoiceTerms::countryCode>, nullptr, nullptr, nullptr, EInvoiceTerms::countries},
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
    {"openCount", ValueType::integer, TEXT("Avoimia laskuja"), nullptr, 0, value<&R::openCount>},
    {"openBalance", ValueType::money, TEXT("Avoinna"), nullptr, 0, value<&R::openBalance>},
};

} // namespace

const RecordTable customerTable = {"customer", fields, sizeof fields / sizeof fields[0],
                                   "number,name,town,email,phone"};

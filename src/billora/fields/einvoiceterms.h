#ifndef EINVOICETERMS_H
#define EINVOICETERMS_H

#include "einvoicecodes.h"
#include "field.h"
#include "fieldgetters.h"
#include "texts.h"

// The terms of an e-invoice that records keep as properties: `bt` and the number of the business term (EN 16931).

namespace EInvoiceTerms {

inline constexpr char project[] = "bt11", contract[] = "bt12", order[] = "bt13", accounting[] = "bt19";
inline constexpr char creditedInvoice[] = "bt25", creditedDate[] = "bt26";
inline constexpr char vatCategory[] = "bt151", vatReason[] = "bt120", vatReasonCode[] = "bt121";
inline constexpr char periodStart[] = "bt73", periodEnd[] = "bt74";
inline constexpr char deliveryName[] = "bt70", deliveryStreet[] = "bt75", deliveryTown[] = "bt77";
inline constexpr char deliveryPostCode[] = "bt78", deliveryCountry[] = "bt80";
inline constexpr char buyerReference[] = "bt10", countryCode[] = "bt55", einvoiceScheme[] = "bt49-scheme";
inline constexpr char einvoiceFormat[] = "bt-format";

/** The lists that hold the codes of a term. */
inline constexpr char exemptions[] = "vatex", addressSchemes[] = "eas", countries[] = "iso3166";

/** The setter of a property that must be a code of a list, typed in any case. */
template <auto part, const char *key, const char *list>
bool setCode(void *record, const ValueReader &reader, const Field &field, const QString &value)
{
    const QString code = value.toUpper();
    if (!code.isEmpty() && !EInvoiceCodes::contains(list, code))
        return reader.failValue(field.name, value, text(TEXT("koodia ei ole luettelossa")));
    return PropertyOf<part, key>::set(record, reader, field, code);
}

/** What a copy and a credit note take over from the invoice. */
inline constexpr const char *copied[] = {project,          contract,       order,        accounting,     vatCategory,
                                         vatReason,        vatReasonCode,  deliveryName, deliveryStreet, deliveryTown,
                                         deliveryPostCode, deliveryCountry};

inline constexpr Choice vatCategories[] = {{"AE", TEXT("käännetty verovelvollisuus")},
                                           {"K", TEXT("yhteisömyynti")},
                                           {"G", TEXT("vientimyynti")},
                                           {"E", TEXT("veroton")},
                                           {"O", TEXT("veron ulkopuolella")},
                                           {"Z", TEXT("nollavero")},
                                           {nullptr, nullptr}};
inline constexpr Choice formats[] = {{"finvoice", TEXT("Finvoice 1.3")},
                                     {"finvoice3", TEXT("Finvoice 3.0, EN 16931")},
                                     {"peppol", TEXT("Peppol BIS Billing 3")},
                                     {nullptr, nullptr}};

} // namespace EInvoiceTerms

#endif

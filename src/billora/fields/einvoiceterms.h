#ifndef EINVOICETERMS_H
#define EINVOICETERMS_H

#include "einvoicecodes.h"
#include "field.h"
#include "fieldgetters.h"
#include "texts.h"

// The terms of an e-invoice that records keep as properties: `bt` and the number of the business term (EN 16931).

/** Property keys by business term of EN 16931, and the choices of those that take a word. */
namespace EInvoiceTerms {

/** BT-11 to BT-13, BT-19; of the invoice. */
inline constexpr char project[] = "bt11", contract[] = "bt12", order[] = "bt13", accounting[] = "bt19";
/** BT-25, BT-26 (ISO 8601 text): the invoice that a credit note is about. */
inline constexpr char creditedInvoice[] = "bt25", creditedDate[] = "bt26";
/** BT-151, BT-120, BT-121; the invoice's go before the customer's. */
inline constexpr char vatCategory[] = "bt151", vatReason[] = "bt120", vatReasonCode[] = "bt121";
/** Invoicing period, both days included, ISO 8601 texts. */
inline constexpr char periodStart[] = "bt73", periodEnd[] = "bt74";
/** Deliver-to party and address; of the invoice or else of the customer. */
inline constexpr char deliveryName[] = "bt70", deliveryStreet[] = "bt75", deliveryTown[] = "bt77";
/** BT-80 is ISO 3166-1 alpha-2 or a name of the country. */
inline constexpr char deliveryPostCode[] = "bt78", deliveryCountry[] = "bt80";
/** Of the customer; BT-49's scheme is a code of the EAS list. */
inline constexpr char buyerReference[] = "bt10", countryCode[] = "bt55", einvoiceScheme[] = "bt49-scheme";
inline constexpr char einvoiceFormat[] = "bt-format"; ///< no business term: a word of `formats`

/** The lists that hold the codes of a term. */
inline constexpr char exemptions[] = "vatex", addressSchemes[] = "eas", countries[] = "iso3166";

/** The setter of a property that must be a code of the field's list, typed in any case. */
template <auto part, const char *key>
bool setCode(void *record, const ValueReader &reader, const Field &field, const QString &value)
{
    const QString code = value.toUpper();
    if (!code.isEmpty() && !EInvoiceCodes::contains(field.codeList, code))
        return reader.failValue(field.name, value, text(TEXT("koodia ei ole luettelossa")));
    return PropertyOf<part, key>::set(record, reader, field, code);
}

/** What a copy and a credit note take over from the invoice. */
inline constexpr const char *copied[] = {project,          contract,       order,        accounting,     vatCategory,
                                         vatReason,        vatReasonCode,  deliveryName, deliveryStreet, deliveryTown,
                                         deliveryPostCode, deliveryCountry};

/** Codes of UNCL 5305 for rows of 0 % VAT; S, the standard rate, is told by the rate. */
inline constexpr Choice vatCategories[] = {{"AE", TEXT("käännetty verovelvollisuus")},
                                           {"K", TEXT("yhteisömyynti")},
                                           {"G", TEXT("vientimyynti")},
                                           {"E", TEXT("veroton")},
                                           {"O", TEXT("veron ulkopuolella")},
                                           {"Z", TEXT("nollavero")},
                                           {nullptr, nullptr}};
/** What a customer's e-invoices are written as. */
inline constexpr Choice formats[] = {{"finvoice", TEXT("Finvoice 1.3")},
                                     {"finvoice3", TEXT("Finvoice 3.0, EN 16931")},
                                     {"peppol", TEXT("Peppol BIS Billing 3")},
                                     {nullptr, nullptr}};

} // namespace EInvoiceTerms

#endif

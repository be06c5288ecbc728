#ifndef EINVOICECODES_H
#define EINVOICECODES_H

#include <QStringList>

/** The code lists that the standard refers to, as tables of the program. */
namespace EInvoiceCodes {

/** @param list  "eas", "peppol-eas", "vatex", "rec20", "iso3166" or "vatprefix" */
bool contains(const char *list, const QString &code);
/** All of a list, in the order of the table. */
QStringList codes(const char *list);
/** ISO 3166-1 of a country's code or name in Finnish, Swedish or English; empty when it is not known. */
QString country(const QString &text);
/**
 * UN/ECE Rec 20 of a unit's text; empty when it is not known.
 * @param own  lines `text=code` of the company
 */
QString unit(const QString &text, const QString &own);
/** The EAS code of an e-invoice address by its form: 0216 of a Finnish OVT code; empty when it does not tell. */
QString schemeOf(const QString &address);
/** The check digit of a GLN (13 digits, modulo 10). */
bool isGln(const QString &digits);

} // namespace EInvoiceCodes

#endif

#ifndef IBAN_H
#define IBAN_H

#include <QString>

/** International bank account numbers (ISO 13616), in the compact upper-case form. */
namespace Iban {

/** Country, length of a Finnish one, and the check digits (ISO 7064, modulo 97). */
bool isValid(const QString &iban);
/** The BIC (ISO 9362) of the bank that a Finnish account number names; empty where it is not known. */
QString finnishBic(const QString &iban);

} // namespace Iban

#endif

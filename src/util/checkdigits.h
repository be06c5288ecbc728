#ifndef CHECKDIGITS_H
#define CHECKDIGITS_H

#include <QString>

/** The check sums of payment references and account numbers. */
namespace CheckDigits {

/**
 * The check digit of a national payment reference: weights 7, 3, 1 from the right.
 * @param digits  the reference without it; digits only are expected, nothing is checked
 * @return 0 to 9
 */
int ofReference(const QString &digits);

/**
 * The remainder of ISO 7064, modulo 97, as IBAN (ISO 13616) and RF references (ISO 11649) use it: a letter counts as
 * two digits, A as 10.
 * @param text  with country and check digits already at its end; 1 for a right number
 * @return -1 where another character than a digit or an upper-case letter is found
 */
int modulo97(const QString &text);

} // namespace CheckDigits

#endif

#ifndef PAYMENTTEXT_H
#define PAYMENTTEXT_H

#include <QDate>
#include <QString>

class DecimalFormat;

/** How the payment files write dates, references and amounts. */
namespace PaymentText {

/** Finds `5.3.2015` or `2015.03.05` anywhere in the text. @return an invalid date when there is none */
QDate parseCSVDate(const QString &text);

/** A text that begins with `2015-03-05` or `2015/03/05`; a time or zone behind it is not looked at. */
QDate parseIsoDate(const QString &text);

/** The digits of a reference without leading zeros; "RF" and its two check digits are passed over (ISO 11649). */
QString parseCSVReferenceNumber(const QString &text);

/**
 * A structured reference without blanks and leading zeros, an RF reference (ISO 11649) reduced to the national one that
 * it carries. Unlike parseCSVReferenceNumber() it drops no other character: a foreign reference stays foreign.
 */
QString nationalReference(const QString &text);

/** @return whether the text is 4 to 20 digits of which the last one is the 7-3-1 check digit of the others */
bool isNationalReference(const QString &digits);

/**
 * Reads an amount of a CSV file: `-1 234,56`, `1.234,56`, `+12.5`, `12 EUR`; U+2212 serves as the minus.
 * @param format  of cents
 * @param cents   unchanged on failure; beyond 32 bits possible
 * @return false for what is no amount, has significant decimals beyond cents, or passes the range of `format`
 */
[[nodiscard]] bool parseAmount(const DecimalFormat &format, const QString &text, qint64 &cents);

/** The same for an XML decimal without sign: `150`, `12.5`, `1384.5600`. */
[[nodiscard]] bool parseXmlAmount(const DecimalFormat &format, const QString &text, qint64 &cents);

/** @return whether a payment can hold the amount: 32 bits with either sign */
bool fitsPayment(qint64 cents);

} // namespace PaymentText

#endif

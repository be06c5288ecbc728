#ifndef INVOICE_H
#define INVOICE_H

#include "checkdigits.h"
#include "propertymap.h"

#include <QDate>

class BankAccount;

/**
 * An invoice without its rows and payments. Property keys in use: t1, t2 (notice texts).
 *
 * A national payment reference is 3 to 19 digits and a check digit (weights 7, 3, 1); an RF reference is the same in
 * the form of ISO 11649.
 */
class Invoice : public PropertyMap {
public:
    /** Stored numbers. */
    enum Type { invoiceType = 0, interestInvoice = 1, creditNote = 2 };
    /** Types that can be stored and searched; 3 is a document kind stored by other programs. */
    static constexpr int typeCount = 4;

    int id = -1;                 ///< -1: not stored yet
    int customerId = -1;         ///< -1: not given
    int type = invoiceType;      ///< Type, or another number below typeCount
    int number = 0;              ///< shown to people, not unique by itself; 0: not given
    QDate date;                  ///< the invoice date; due dates count from it
    QString paymentTerms;        ///< its first number counts as days
    QString delivery;            ///< terms or way of the delivery, a text as printed
    QDate deliveryDate;          ///< invalid: none; searches then take the invoice date
    QString buyerRef, sellerRef; ///< the buyer's and the seller's own reference, free texts as printed
    int interestOnArrears = 0;   ///< hundredths of a percent
    QDate dueDate;               ///< stored, not computed when read; invalid: none
    QString referenceNumber;     ///< digits, or the RF form
    int totalAmount = 0;         ///< cents
    int balance = 0;             ///< the part of the total not yet paid, cents

    void clear() { *this = Invoice(); }
    void copy(Invoice *target) const { *target = *this; }

    /** See CheckDigits::ofReference(). */
    static int calculateReferenceNumberCheckDigit(const QString &digits) { return CheckDigits::ofReference(digits); }

    /**
     * Makes a national reference of any text: its digits without leading zeros, the last 19 of them, filled up with
     * zeros to three, and the check digit.
     */
    static QString appendCheckDigitToReferenceNumber(const QString &text);

    /** A length check of a reference base (3 to 19 characters), nothing more. */
    static bool isValidReferenceNumber(const QString &reference);

    /** Groups of five from the right, or of four from the left for an RF reference. */
    static QString formatReferenceNumber(const QString &reference);
    static QString formatRfReferenceNumber(const QString &reference);
    /** Padded with zeros to the 20 digits of the banks' fixed-width files. */
    static QString formatSpyReferenceNumber(const QString &reference);

    /** ISO 11649 form; the check digits weigh the twenty rightmost digits, as all programs of this system do. */
    static QString referenceNumberToRf(const QString &reference);

    /** The invoice date plus the first number of the payment terms; invalid when they hold none. */
    QDate calculateDueDate() const;
    /** False for payment terms whose days lead beyond the calendar. */
    bool canBeDue() const;

    /**
     * The digits of the Finnish bank barcode (54 of them while the amount is below a million euros).
     * @param version  4 (national reference) or 5 (RF)
     * @return empty for another version or an account without a Finnish IBAN of 18 characters
     */
    QString barcode(const BankAccount *account, int version = 4) const;
};

#endif

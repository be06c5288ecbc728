#ifndef ACCOUNTNUMBER_H
#define ACCOUNTNUMBER_H

#include <QString>

/** A bank account as a payment file names it. */
struct AccountNumber {
    QString iban; ///< without blanks
    QString bban; ///< 14 digits; empty for a foreign account

    /** The text that was parsed was none that is known. */
    bool isEmpty() const { return iban.isEmpty() && bban.isEmpty(); }

    /**
     * Reads an IBAN (ISO 13616) with or without blanks and perhaps a BIC behind it, the 14-digit machine form, or the
     * printed domestic form `123456-785`. Of a Finnish account the other form is filled in. Check digits are not
     * looked at.
     * @return an empty number when the text is none of these
     */
    static AccountNumber parse(const QString &text);

private:
    /** Makes the check digits. @param bban  14 digits, not checked. */
    static AccountNumber fromBban(const QString &bban);
};

#endif

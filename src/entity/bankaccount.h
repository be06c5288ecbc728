#ifndef BANKACCOUNT_H
#define BANKACCOUNT_H

#include <QString>

/** One of the seller's bank accounts. */
class BankAccount {
public:
    int id = -1;          ///< -1: not stored yet
    QString name;         ///< the bank's name as printed
    QString shortName;    ///< the seller's own, in lists; may be empty
    QString iban;         ///< without blanks
    QString bic;          ///< ISO 9362; empty when it was not given
    int rowNumber = 0;    ///< place in the seller's list
    bool visible = true;  ///< printed on invoices
    bool deleted = false; ///< removed, but still referable from old payments

    void clear() { *this = BankAccount(); }
    void copy(BankAccount *target) const { *target = *this; }

    /** An IBAN (ISO 13616) or BIC (ISO 9362) as it is stored: without blanks, in upper case. */
    static QString normalizedCode(const QString &typed);
    /** A Finnish IBAN (18 characters) loses country code and check digits; other text comes back unchanged. */
    static QString ibanToBban(const QString &iban);
    /** Groups of four from the left: `FI21 1234 5600 0007 85`. Serves RF references (ISO 11649) too. */
    static QString formatIban(const QString &iban);
    /** The 14-digit machine form as printed: `123456-785`; text of another length comes back unchanged. */
    static QString formatBban(const QString &bban);
};

#endif

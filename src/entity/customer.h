#ifndef CUSTOMER_H
#define CUSTOMER_H

#include "propertymap.h"

/**
 * A customer of the seller. Property keys in use: c1, c2 (free fields), l (language of documents), e1 (e-invoice
 * intermediator), e2 (e-invoice address), e3 (EDI code).
 */
class Customer : public PropertyMap {
public:
    int id = -1;     ///< -1: not stored yet
    int number = -1; ///< shown to users; -1: not given
    /** The name is all that a customer must have; streetName may have several lines. */
    QString name, streetName, postCode, townName, country, contact;
    QString vatNumber;       ///< business ID or VAT number
    QString referenceNumber; ///< the customer's own payment reference, used on every invoice when not empty
    /** Payment terms, when not empty, go to new invoices; see Invoice::paymentTerms. */
    QString emailAddress, phoneNumber, paymentTerms;
    bool deleted = false; ///< removed, but still referable from old invoices

    void clear() { *this = Customer(); }
    void copy(Customer *target) const { *target = *this; }

    /** Finnish business ID (Y-tunnus): seven digits (or six), a hyphen and the check digit. */
    static bool isValidBusinessId(const QString &id);
    /** Two letters and at least two characters more; neither country nor digits are examined. */
    static bool isValidVatNumber(const QString &number);
    static bool isValidVatNumberOrBusinessId(const QString &text);
    /** `737546-2` gives `FI07375462`; a VAT number comes back as it is, anything else gives an empty text. */
    static QString convertBusinessIdToVatNumber(const QString &text);
    /** `FI07375462` gives `0737546-2`; a business ID comes back as it is, anything else gives an empty text. */
    static QString convertVatNumberToBusinessId(const QString &text);
};

#endif

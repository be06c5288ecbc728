#ifndef SETTINGS_H
#define SETTINGS_H

#include "propertymap.h"

#include <QByteArray>

/**
 * The seller and everything that is set per database. Property keys are path-like, in the groups settings, seller,
 * invoiceForm, finvoice and printScripts.
 */
class Settings : public PropertyMap {
public:
    /** As printed; sellerBusinessId is a Y-tunnus, `0737546-2`. */
    QString sellerName, sellerStreetName, sellerPostCode, sellerTownName, sellerCountry, sellerBusinessId;
    QByteArray sellerLogo; ///< an image file's bytes, empty for none

    void clear() { *this = Settings(); }
    void copy(Settings *target) const { *target = *this; }

    /**
     * The template of a new invoice's reference number, before its check digit: the setting
     * settings/referenceNumberTemplate, else the invoice number followed by settings/referenceNumberSuffix.
     */
    QString referenceNumberTemplate() const;

    /** The setting invoiceForm/roundingMode, see Vat::RoundingMode. */
    int roundingMode() const;
};

#endif

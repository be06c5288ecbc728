#include "settingskeys.h"

#include "customer.h"
#include "einvoicecodes.h"
#include "integer.h"
#include "registry.h"
#include "settings.h"

namespace {

struct SellerField {
    const char *key;
    QString Settings::*field;
    bool (*isRight)(const QString &value);
};

struct PropertyKey {
    const char *key;
    bool (*isRight)(const QString &value);
};

bool anything(const QString &) { return true; }

bool isBusinessId(const QString &value) { return Customer::isValidBusinessId(value); }

/** A foreign VAT number, or a Finnish one whose check digit is right. */
bool isVatNumber(const QString &value)
{
    if (value.startsWith(QLatin1String("FI")))
        return Customer::isValidBusinessId(Customer::convertVatNumberToBusinessId(value));
    return Customer::isValidVatNumber(value);
}

bool isInteger(const QString &value)
{
    bool ok = false;
    Integer::parse(value, ok);
    return ok;
}

bool isNotNegative(const QString &value) { return isInteger(value) && !value.startsWith(QLatin1Char('-')); }

bool isDigits(const QString &value) { return Integer::isDigits(value); }

bool isHeight(const QString &value)
{
    bool ok = false;
    const double millimetres = value.toDouble(&ok);
    return ok && millimetres > 0 && millimetres <= 100;
}

bool isBoolean(const QString &value) { return value == QLatin1String("true") || value == QLatin1String("false"); }

bool isRoundingMode(const QString &value) { return value == QLatin1String("1") || value == QLatin1String("2"); }

bool isLanguage(const QString &value)
{
    const QStringList languages = Registry::availableLanguages();
    for (const QString &language : languages) {
        if (value == language || value == Registry::parseLanguageCode(language))
            return true;
    }
    return false;
}

constexpr SellerField sellerFields[] = {
    {"sellerName", &Settings::sellerName, anything},
    {"sellerStreetName", &Settings::sellerStreetName, anything},
    {"sellerPostCode", &Settings::sellerPostCode, anything},
    {"sellerTownName", &Settings::sellerTownName, anything},
    {"sellerCountry", &Settings::sellerCountry, anything},
    {"sellerBusinessId", &Settings::sellerBusinessId, isBusinessId},
};

bool isEInvoiceFormat(const QString &value)
{
    return value == QLatin1String("finvoice") || value == QLatin1String("finvoice3") ||
           value == QLatin1String("peppol");
}

bool isZeroVatCategory(const QString &value)
{
    static const QStringList known = {QStringLiteral("AE"), QStringLiteral("K"), QStringLiteral("G"),
                                      QStringLiteral("E"),  QStringLiteral("O"), QStringLiteral("Z")};
    return known.contains(value);
}

bool isReasonCode(const QString &value) { return EInvoiceCodes::contains("vatex", value); }

bool isScheme(const QString &value) { return EInvoiceCodes::contains("eas", value); }

constexpr PropertyKey propertyKeys[] = {
    {"einvoice/format", isEInvoiceFormat},
    {"einvoice/units", anything},
    {"einvoice/zeroVatCategory", isZeroVatCategory},
    {"einvoice/zeroVatReason", anything},
    {"einvoice/zeroVatReasonCode", isReasonCode},
    {"finvoice/defaultReceiverId", anything},
    {"finvoice/edi", anything},
    {"finvoice/epiInstructionId", anything},
    {"finvoice/intermediatorId", anything},
    {"finvoice/senderId", anything},
    {"finvoice/senderScheme", isScheme},
    {"invoiceForm/barcodeVisible", isBoolean},
    {"invoiceForm/invoiceItemOptions", isInteger},
    {"invoiceForm/language", isLanguage},
    {"invoiceForm/logoHeight", isHeight},
    {"invoiceForm/noticeText1", anything},
    {"invoiceForm/noticeText2", anything},
    {"invoiceForm/reminderText", anything},
    {"invoiceForm/roundingMode", isRoundingMode},
    {"printScripts/invoice", isInteger},
    {"seller/accountName", anything},
    {"seller/contactName", anything},
    {"seller/emailAddress", anything},
    {"seller/legalInfo", anything},
    {"seller/phoneNumber", anything},
    {"seller/taxRegistration", anything},
    {"seller/tradeName", anything},
    {"seller/vatNumber", isVatNumber},
    {"seller/webAddress", anything},
    {"settings/interestOnArrears", isNotNegative},
    {"settings/paymentTerms", anything},
    {"settings/periodForComplaints", anything},
    {"settings/productForInterestOnArrears", anything},
    {"settings/referenceNumberSuffix", isDigits},
    {"settings/referenceNumberTemplate", anything},
};

/** Scripts read footer texts by any name behind this. */
const QLatin1String footerPrefix("invoiceForm/footer/text");

const SellerField *sellerField(const QString &key)
{
    for (const SellerField &field : sellerFields) {
        if (key == QLatin1String(field.key))
            return &field;
    }
    return nullptr;
}

const PropertyKey *propertyKey(const QString &key)
{
    static constexpr PropertyKey footer = {"invoiceForm/footer/text", anything};
    for (const PropertyKey &property : propertyKeys) {
        if (key == QLatin1String(property.key))
            return &property;
    }
    const QStringView number = QStringView(key).mid(footerPrefix.size());
    return key.startsWith(footerPrefix) && Integer::isDigits(number) ? &footer : nullptr;
}

} // namespace

bool SettingsKeys::isKnown(const QString &key) { return sellerField(key) || propertyKey(key); }

bool SettingsKeys::store(Settings &settings, const QString &key, const QString &value)
{
    if (const SellerField *field = sellerField(key)) {
        if (!value.isEmpty() && !field->isRight(value))
            return false;
        settings.*field->field = value;
        return true;
    }
    const PropertyKey *property = propertyKey(key);
    if (!property || (!value.isEmpty() && !property->isRight(value)))
        return false;
    settings.setPropertyIfNotEmpty(key, value);
    return true;
}

QString SettingsKeys::value(const Settings &settings, const QString &key)
{
    if (const SellerField *field = sellerField(key))
        return settings.*field->field;
    return settings.property(key).toString();
}

QStringList SettingsKeys::allKeys()
{
    QStringList keys;
    for (const SellerField &field : sellerFields)
        keys.append(QLatin1String(field.key));
    for (const PropertyKey &property : propertyKeys)
        keys.append(QLatin1String(property.key));
    return keys;
}

QStringList SettingsKeys::keysWithValue(const Settings &settings)
{
    QStringList keys;
    for (const SellerField &field : sellerFields) {
        if (!(settings.*field.field).isEmpty())
            keys.append(QLatin1String(field.key));
    }
    for (auto it = settings.properties.cbegin(); it != settings.properties.cend(); ++it) {
        if (!it.value().toString().isEmpty())
            keys.append(it.key());
    }
    return keys;
}

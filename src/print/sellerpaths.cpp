// The paths of the seller and the settings; the rest of InvoicePaths is in invoicepaths.cpp.

#include "invoicepaths.h"
#include "invoiceprintmodel.h"
#include "settings.h"
#include "valuepath.h"

namespace {

using Model = InvoicePrintModel;
using ValuePath::field;
using ValuePath::Key;

const Key<const BankAccount &> accountKeys[] = {
    {"name", field<&BankAccount::name>},
    {"iban", [](const BankAccount &a, QStringList &) { return QVariant(BankAccount::formatIban(a.iban)); }},
    {"ibanRaw", field<&BankAccount::iban>},
    {"bban", [](const BankAccount &a,
                QStringList &) { return QVariant(BankAccount::formatBban(BankAccount::ibanToBban(a.iban))); }},
    {"bbanRaw", [](const BankAccount &a, QStringList &) { return QVariant(BankAccount::ibanToBban(a.iban)); }},
    {"bic", field<&BankAccount::bic>},
    {"visible", field<&BankAccount::visible>},
};

QVariant accountsValue(const QList<BankAccount> &accounts, QStringList &path)
{
    return ValuePath::resolveList(accounts.size(), path, [&accounts](int index, QStringList &rest) {
        return ValuePath::resolve(accountKeys, rest, accounts.at(index));
    });
}

template <QString Settings::*member> QVariant sellerField(Model &model, QStringList &)
{
    return model.settings()->*member;
}

QString sellerProperty(Model &model, const char *key)
{
    return model.settings()->property(QLatin1String(key)).toString();
}

const Key<Model &> sellerKeys[] = {
    {"name", sellerField<&Settings::sellerName>},
    {"streetName", sellerField<&Settings::sellerStreetName>},
    {"postCode", sellerField<&Settings::sellerPostCode>},
    {"townName", sellerField<&Settings::sellerTownName>},
    {"country", sellerField<&Settings::sellerCountry>},
    {"businessId", sellerField<&Settings::sellerBusinessId>},
    {"phoneNumber", [](Model &m, QStringList &) { return QVariant(sellerProperty(m, "seller/phoneNumber")); }},
    {"emailAddress", [](Model &m, QStringList &) { return QVariant(sellerProperty(m, "seller/emailAddress")); }},
    {"webAddress", [](Model &m, QStringList &) { return QVariant(sellerProperty(m, "seller/webAddress")); }},
    {"vatNumber", [](Model &m, QStringList &) { return QVariant(sellerProperty(m, "seller/vatNumber")); }},
    {"webAddressShort",
     [](Model &m, QStringList &) {
         return QVariant(InvoicePaths::shortWebAddress(sellerProperty(m, "seller/webAddress")));
     }},
    {"edi", [](Model &m, QStringList &) { return QVariant(sellerProperty(m, "finvoice/edi")); }},
    {"bankAccounts", [](Model &m, QStringList &rest) { return accountsValue(m.visibleBankAccounts(), rest); }},
    {"bankAccountsAll", [](Model &m, QStringList &rest) { return accountsValue(m.bankAccounts(), rest); }},
    {"hasLogo", [](Model &m, QStringList &) { return QVariant(!m.logo().isNull()); }},
};

struct SettingKey {
    const char *key;
    const char *property;
};

// What is read as it stands; a missing setting is an invalid value.
constexpr SettingKey settingKeys[] = {
    {"reminderText", "invoiceForm/reminderText"},
    {"invoiceItemOptions", "invoiceForm/invoiceItemOptions"},
    {"language", "invoiceForm/language"},
    {"roundingMode", "invoiceForm/roundingMode"},
    {"epiPaymentInstructionId", "finvoice/epiInstructionId"},
    {"senderId", "finvoice/senderId"},
    {"defaultReceiverId", "finvoice/defaultReceiverId"},
    {"intermediatorId", "finvoice/intermediatorId"},
};

constexpr double defaultLogoHeight = 17.0; // millimetres
constexpr QLatin1String footerKey("footerText");

} // namespace

QVariant InvoicePaths::seller(InvoicePrintModel &model, QStringList &path)
{
    return ValuePath::resolve(sellerKeys, path, model);
}

QVariant InvoicePaths::settings(InvoicePrintModel &model, QStringList &path)
{
    if (path.isEmpty())
        return QVariant();
    const Settings &settings = *model.settings();
    const QString element = path.takeFirst();
    if (element == QLatin1String("barcodeVisible"))
        return settings.property(QStringLiteral("invoiceForm/barcodeVisible"), true).toBool();
    if (element == QLatin1String("logoHeight"))
        return settings.property(QStringLiteral("invoiceForm/logoHeight"), defaultLogoHeight).toDouble();
    if (element.startsWith(footerKey))
        return settings.property(QLatin1String("invoiceForm/footer/text") + element.mid(footerKey.size()));
    for (const SettingKey &row : settingKeys) {
        if (element == QLatin1String(row.key))
            return settings.property(QLatin1String(row.property));
    }
    return QVariant();
}

QString InvoicePaths::shortWebAddress(const QString &address)
{
    QString result = address;
    for (const QLatin1String protocol : {QLatin1String("http://"), QLatin1String("https://")}) {
        if (address.startsWith(protocol)) {
            result.remove(0, protocol.size());
            break;
        }
    }
    if (result.count(QLatin1Char('/')) == 1 && result.endsWith(QLatin1Char('/')))
        result.chop(1);
    return result;
}

#include "extrafields.h"

#include "bankaccount.h"
#include "customer.h"

#include <QRegExp>
#include <QSettings>

namespace {

struct CustomerField {
    const char *word;
    QString Customer::*field;
};

constexpr CustomerField customerFields[] = {
    {"lähiosoite", &Customer::streetName},         {"postinumero", &Customer::postCode},
    {"postitoimipaikka", &Customer::townName},     {"maa", &Customer::country},
    {"yhteyshenkilö", &Customer::contact},         {"puhelinnumero", &Customer::phoneNumber},
    {"sähköpostiosoite", &Customer::emailAddress},
};

struct AccountField {
    const char *word;
    QString (*value)(const BankAccount &);
};

const AccountField accountFields[] = {
    {"pankki", [](const BankAccount &a) { return a.name; }},
    {"tilinumero", [](const BankAccount &a) { return BankAccount::formatBban(BankAccount::ibanToBban(a.iban)); }},
    {"iban", [](const BankAccount &a) { return BankAccount::formatIban(a.iban); }},
    {"bic", [](const BankAccount &a) { return a.bic; }},
};

/** The row of a word; null when the table does not hold it. */
template <class Table> auto find(const Table &table, const QString &word) -> decltype(&table[0])
{
    const QString lower = word.toLower();
    for (const auto &row : table) {
        if (lower == QString::fromUtf8(row.word))
            return &row;
    }
    return nullptr;
}

} // namespace

QStringList ExtraFields::read(QSettings *settings, const QString &group)
{
    // Commas that are not quoted in the file make it a list already.
    const QString text = settings->value(group + QLatin1String("/extraFields")).toStringList().join(QLatin1Char(','));
    return text.trimmed().split(QRegExp(QStringLiteral("\\s*,\\s*")), Qt::SkipEmptyParts);
}

bool ExtraFields::isVatBreakdown(const QString &word) { return word.toLower() == QLatin1String(vatBreakdown); }

bool ExtraFields::isCustomerField(const QString &word) { return find(customerFields, word); }

bool ExtraFields::isAccountField(const QString &word) { return find(accountFields, word); }

QString ExtraFields::customerField(const QString &word, const Customer *customer)
{
    const CustomerField *row = find(customerFields, word);
    return row && customer ? customer->*row->field : QString();
}

QString ExtraFields::accountField(const QString &word, const BankAccount *account)
{
    const AccountField *row = find(accountFields, word);
    return row && account ? row->value(*account) : QString();
}

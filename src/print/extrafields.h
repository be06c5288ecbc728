#ifndef EXTRAFIELDS_H
#define EXTRAFIELDS_H

#include <QString>
#include <QStringList>

class BankAccount;
class Customer;
class QSettings;

/** The columns that a user may add to a list's CSV file, by words in the settings file. */
namespace ExtraFields {

/** The word that adds the VAT breakdown to the invoice list. */
constexpr char vatBreakdown[] = "alv-erittely";

/** @return the comma-separated words of the key extraFields, without those that are empty */
QStringList read(QSettings *settings, const QString &group);

/** Whether the word, in any letter case, is a field of that kind. */
bool isVatBreakdown(const QString &word);
bool isCustomerField(const QString &word);
bool isAccountField(const QString &word);

/** The field's value; empty without a record. */
QString customerField(const QString &word, const Customer *customer);
QString accountField(const QString &word, const BankAccount *account);

} // namespace ExtraFields

#endif

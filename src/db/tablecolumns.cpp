#include "tablecolumns.h"

#include "bankaccount.h"
#include "cursor.h"
#include "customer.h"
#include "invoice.h"
#include "invoiceitem.h"
#include "payment.h"
#include "printscript.h"
#include "product.h"
#include "settings.h"

#include <QStringList>

#include <utility>

namespace {

/** A null string would be bound as NULL, which the columns do not take. */
QVariant text(const QString &value) { return value.isNull() ? QStringLiteral("") : value; }

/** Walks the columns of the current row from left to right. */
class RowReader {
public:
    RowReader(const Cursor &row, int first) : m_row(row), m_column(first) {}

    RowReader &operator>>(int &value) { return set(value, m_row.integer(m_column++)); }
    RowReader &operator>>(long long &value) { return set(value, m_row.bigInteger(m_column++)); }
    RowReader &operator>>(bool &value) { return set(value, next().toBool()); }
    RowReader &operator>>(QString &value) { return set(value, m_row.text(m_column++)); }
    RowReader &operator>>(QDate &value) { return set(value, m_row.date(m_column++)); }
    RowReader &operator>>(QByteArray &value) { return set(value, next().toByteArray()); }
    RowReader &operator>>(PropertyMap &value)
    {
        value.propertiesFromString(m_row.text(m_column++));
        return *this;
    }

    QVariant next() { return m_row.value(m_column++); }

private:
    template <class T> RowReader &set(T &target, T &&value)
    {
        target = std::move(value);
        return *this;
    }

    const Cursor &m_row;
    int m_column;
};

} // namespace

template <> const char *const TableColumns<BankAccount>::table = "bank_account";
template <>
const char *const TableColumns<BankAccount>::columns = "name, short_name, iban, bic, row_number, visible, deleted";

template <> QVariantList TableColumns<BankAccount>::values(const BankAccount &a)
{
    return {text(a.name), text(a.shortName), text(a.iban), text(a.bic), a.rowNumber, a.visible, a.deleted};
}

template <> void TableColumns<BankAccount>::read(const Cursor &row, int first, BankAccount &a)
{
    RowReader(row, first) >> a.id >> a.name >> a.shortName >> a.iban >> a.bic >> a.rowNumber >> a.visible >> a.deleted;
}

template <> const char *const TableColumns<Customer>::table = "customer";
template <>
const char *const TableColumns<Customer>::columns =
    "number, name, street_name, post_code, town_name, country, contact, vat_number, reference_number, "
    "email_address, phone_number, payment_terms, properties, deleted";

template <> QVariantList TableColumns<Customer>::values(const Customer &c)
{
    return {c.number,
            text(c.name),
            text(c.streetName),
            text(c.postCode),
            text(c.townName),
            text(c.country),
            text(c.contact),
            text(c.vatNumber),
            text(c.referenceNumber),
            text(c.emailAddress),
            text(c.phoneNumber),
            text(c.paymentTerms),
            text(c.propertiesToString()),
            c.deleted};
}

template <> void TableColumns<Customer>::read(const Cursor &row, int first, Customer &c)
{
    RowReader(row, first) >> c.id >> c.number >> c.name >> c.streetName >> c.postCode >> c.townName >> c.country >>
        c.contact >> c.vatNumber >> c.referenceNumber >> c.emailAddress >> c.phoneNumber >> c.paymentTerms >>
        static_cast<PropertyMap &>(c) >> c.deleted;
}

template <> const char *const TableColumns<Invoice>::table = "invoice";
template <>
const char *const TableColumns<Invoice>::columns =
    "customer_id, type, number, date, payment_terms, delivery, delivery_date, buyer_ref, seller_ref, "
    "interest_on_arrears, due_date, reference_number, total_amount, balance, properties";

template <> QVariantList TableColumns<Invoice>::values(const Invoice &i)
{
    return {i.customerId,
            i.type,
            i.number,
            i.date,
            text(i.paymentTerms),
            text(i.delivery),
            i.deliveryDate,
            text(i.buyerRef),
            text(i.sellerRef),
            i.interestOnArrears,
            i.dueDate,
            text(i.referenceNumber),
            i.totalAmount,
            i.balance,
            text(i.propertiesToString())};
}

template <> void TableColumns<Invoice>::read(const Cursor &row, int first, Invoice &i)
{
    RowReader(row, first) >> i.id >> i.customerId >> i.type >> i.number >> i.date >> i.paymentTerms >> i.delivery >>
        i.deliveryDate >> i.buyerRef >> i.sellerRef >> i.interestOnArrears >> i.dueDate >> i.referenceNumber >>
        i.totalAmount >> i.balance >> static_cast<PropertyMap &>(i);
}

template <> const char *const TableColumns<InvoiceItem>::table = "invoice_item";
template <>
const char *const TableColumns<InvoiceItem>::columns =
    "invoice_id, product_number, product_name, quantity, unit_code, amount, vat_rate, vat_excluded, discount, "
    "text, row_number";

template <> QVariantList TableColumns<InvoiceItem>::values(const InvoiceItem &i)
{
    return {i.invoiceId, text(i.productNumber), text(i.productName), i.quantity,   text(i.unitCode), i.amount,
            i.vatRate,   i.vatExcluded,         i.discount,          text(i.text), i.rowNumber};
}

template <> void TableColumns<InvoiceItem>::read(const Cursor &row, int first, InvoiceItem &i)
{
    RowReader(row, first) >> i.id >> i.invoiceId >> i.productNumber >> i.productName >> i.quantity >> i.unitCode >>
        i.amount >> i.vatRate >> i.vatExcluded >> i.discount >> i.text >> i.rowNumber;
}

template <> const char *const TableColumns<Payment>::table = "payment";
template <> const char *const TableColumns<Payment>::columns = "invoice_id, date, bank_account_id, amount";

template <> QVariantList TableColumns<Payment>::values(const Payment &p)
{
    return {p.invoiceId, p.date, p.bankAccountId < 0 ? QVariant(QVariant::Int) : QVariant(p.bankAccountId), p.amount};
}

template <> void TableColumns<Payment>::read(const Cursor &row, int first, Payment &p)
{
    RowReader reader(row, first);
    reader >> p.id >> p.invoiceId >> p.date;
    const QVariant account = reader.next();
    if (!account.isNull())
        p.bankAccountId = account.toInt();
    reader >> p.amount;
}

template <> const char *const TableColumns<PrintScript>::table = "print_script";
template <> const char *const TableColumns<PrintScript>::columns = "type, name, source_code";

template <> QVariantList TableColumns<PrintScript>::values(const PrintScript &s)
{
    return {text(s.type), text(s.name), text(s.sourceCode)};
}

template <> void TableColumns<PrintScript>::read(const Cursor &row, int first, PrintScript &s)
{
    RowReader(row, first) >> s.id >> s.type >> s.name >> s.sourceCode;
}

template <> const char *const TableColumns<Product>::table = "product";
template <>
const char *const TableColumns<Product>::columns = "number, name, unit_code, amount, vat_rate, vat_excluded, category";

template <> QVariantList TableColumns<Product>::values(const Product &p)
{
    return {text(p.number), text(p.name), text(p.unitCode), p.amount, p.vatRate, p.vatExcluded, text(p.category)};
}

template <> void TableColumns<Product>::read(const Cursor &row, int first, Product &p)
{
    int amount = 0; // 32 bits on reading, although 64 are written: all programs of this system read it so
    RowReader(row, first) >> p.id >> p.number >> p.name >> p.unitCode >> amount >> p.vatRate >> p.vatExcluded >>
        p.category;
    p.amount = amount;
}

template <> const char *const TableColumns<Settings>::table = "settings";
template <>
const char *const TableColumns<Settings>::columns =
    "seller_name, seller_street_name, seller_post_code, seller_town_name, seller_country, seller_business_id, "
    "seller_logo, properties";

template <> QVariantList TableColumns<Settings>::values(const Settings &s)
{
    return {text(s.sellerName),
            text(s.sellerStreetName),
            text(s.sellerPostCode),
            text(s.sellerTownName),
            text(s.sellerCountry),
            text(s.sellerBusinessId),
            s.sellerLogo.isNull() ? QByteArray("") : s.sellerLogo, // never NULL in the column
            text(s.propertiesToString())};
}

template <> void TableColumns<Settings>::read(const Cursor &row, int first, Settings &s)
{
    RowReader(row, first) >> s.sellerName >> s.sellerStreetName >> s.sellerPostCode >> s.sellerTownName >>
        s.sellerCountry >> s.sellerBusinessId >> s.sellerLogo >> static_cast<PropertyMap &>(s);
}

template <class Record> QString selectedColumns(const QString &prefix)
{
    QStringList columns = QString::fromLatin1(TableColumns<Record>::columns).split(QStringLiteral(", "));
    columns.prepend(QStringLiteral("id"));
    return prefix + columns.join(QStringLiteral(", ") + prefix);
}

template QString selectedColumns<BankAccount>(const QString &);
template QString selectedColumns<Customer>(const QString &);
template QString selectedColumns<Invoice>(const QString &);
template QString selectedColumns<InvoiceItem>(const QString &);
template QString selectedColumns<Payment>(const QString &);
template QString selectedColumns<PrintScript>(const QString &);
template QString selectedColumns<Product>(const QString &);

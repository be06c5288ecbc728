#include "paymentprintmodel.h"

#include "bankaccount.h"
#include "criteriatexts.h"
#include "customer.h"
#include "database.h"
#include "listpaths.h"
#include "query.h"
#include "registry.h"
#include "settings.h"
#include "valuepath.h"

#include <QSet>

#include <algorithm>
#include <memory>

namespace {

using Model = PaymentPrintModel;
using Entry = Model::Entry;
using ValuePath::field;
using ValuePath::Key;

// Sorting ------------------------------------------------------------------------------------------------------------

using IsLess = bool (*)(const Model &, const Entry &, const Entry &);

template <auto member> bool byInvoiceField(const Model &, const Entry &a, const Entry &b)
{
    return a.invoice.*member < b.invoice.*member;
}

template <auto member> bool byPaymentField(const Model &, const Entry &a, const Entry &b)
{
    return a.payment.*member < b.payment.*member;
}

template <auto member> bool byCustomerField(const Model &model, const Entry &a, const Entry &b)
{
    static const Customer none;
    const Customer *first = model.customer(a);
    const Customer *second = model.customer(b);
    return (first ? *first : none).*member < (second ? *second : none).*member;
}

QString accountName(const Model &model, const Entry &entry)
{
    const BankAccount *account = model.bankAccount(entry);
    return account ? account->name : QString();
}

const IsLess comparators[] = {
    // in the order of Model::SortOrder
    byInvoiceField<&Invoice::number>,
    byInvoiceField<&Invoice::date>,
    byInvoiceField<&Invoice::dueDate>,
    byInvoiceField<&Invoice::deliveryDate>,
    byCustomerField<&Customer::number>,
    byCustomerField<&Customer::name>,
    byInvoiceField<&Invoice::totalAmount>,
    byPaymentField<&Payment::amount>,
    byPaymentField<&Payment::date>,
    [](const Model &m, const Entry &a, const Entry &b) { return accountName(m, a) < accountName(m, b); },
    [](const Model &, const Entry &a, const Entry &b) { return b.invoice.number < a.invoice.number; },
};

// Value paths --------------------------------------------------------------------------------------------------------

const Key<const Model &, const Invoice &> invoiceKeys[] = {
    {"type", [](const Model &m, const Invoice &i, QStringList &) { return QVariant(m.invoiceType(i.id)); }},
    {"number", field<&Invoice::number>},
    {"date", field<&Invoice::date>},
    {"dueDate", field<&Invoice::dueDate>},
    {"deliveryDate", field<&Invoice::deliveryDate>},
    {"hasDeliveryDate",
     [](const Model &, const Invoice &i, QStringList &) { return QVariant(i.deliveryDate.isValid()); }},
    {"totalAmount", field<&Invoice::totalAmount>},
    {"balance", field<&Invoice::balance>},
};

const Key<const BankAccount &> accountKeys[] = {
    {"name", field<&BankAccount::name>},
    {"iban", [](const BankAccount &a, QStringList &) { return QVariant(BankAccount::formatIban(a.iban)); }},
    {"bban", [](const BankAccount &a,
                QStringList &) { return QVariant(BankAccount::formatBban(BankAccount::ibanToBban(a.iban))); }},
    {"bic", field<&BankAccount::bic>},
    {"shortName", field<&BankAccount::shortName>},
};

QVariant accountValue(const Model &model, const Entry &entry, QStringList &path)
{
    const BankAccount *account = model.bankAccount(entry);
    return account ? ValuePath::resolve(accountKeys, path, *account) : QVariant();
}

const Key<const Model &, const Entry &> entryKeys[] = {
    {"date", [](const Model &, const Entry &e, QStringList &) { return QVariant(e.payment.date); }},
    {"amount", [](const Model &, const Entry &e, QStringList &) { return QVariant(e.payment.amount); }},
    {"invoice", [](const Model &m, const Entry &e,
                   QStringList &rest) { return ValuePath::resolve(invoiceKeys, rest, m, e.invoice); }},
    {"customer", [](const Model &m, const Entry &e,
                    QStringList &rest) { return ListPaths::customer(m.registry(), e.invoice.customerId, rest); }},
    {"bankAccount", accountValue},
};

QVariant paymentsValue(const Model &model, QStringList &path)
{
    return ValuePath::resolveList(model.entries().size(), path, [&model](int index, QStringList &rest) {
        return ValuePath::resolve(entryKeys, rest, model, model.entries().at(index));
    });
}

constexpr const char *columnNames[] = {"number",       "date",        "dueDate",       "deliveryDate", "customerNumber",
                                       "customerName", "totalAmount", "paymentAmount", "paymentDate",  "bankAccount"};

const Key<const Model &> topKeys[] = {
    {"payments", paymentsValue},
    {"totalAmount", [](const Model &m, QStringList &) { return ValuePath::number(m.totalAmount()); }},
    {"totalPaymentAmount", [](const Model &m, QStringList &) { return ValuePath::number(m.totalPaymentAmount()); }},
    {"name", [](const Model &m, QStringList &) { return QVariant(m.registry().settings()->sellerName); }},
    {"criteria", [](const Model &m, QStringList &rest) { return ListPaths::texts(m.criteriaStrings(), rest); }},
    {"columns",
     [](const Model &m, QStringList &rest) { return ListPaths::column(columnNames, m.columnFlags(), rest); }},
};

} // namespace

PaymentPrintModel::PaymentPrintModel(Registry *registry, QObject *parent) : PrintModel(parent), m_registry(registry) {}

PaymentPrintModel::~PaymentPrintModel() = default;

bool PaymentPrintModel::run()
{
    m_entries.clear();
    m_invoiceTypes.reset();
    const std::unique_ptr<Query> query(m_registry->database()->query());
    const auto take = [&] {
        m_entries.append(Entry());
        query->invoiceAndPayment(&m_entries.last().invoice, &m_entries.last().payment);
    };
    if (!query->fetchInvoicesAndPayments(&m_invoiceCriteria, &m_paymentCriteria) || !query->readAllInvoices(take)) {
        m_lastError = query->lastError();
        m_entries.clear();
        return false;
    }
    m_criteriaStrings = CriteriaTexts::forPayments(m_paymentCriteria, m_invoiceCriteria, *m_registry);
    sort(m_sortOrder);
    return true;
}

void PaymentPrintModel::sort(int order)
{
    if (order < 0 || order > byNumberDescending)
        return;
    m_sortOrder = order;
    const IsLess comparator = comparators[order];
    std::stable_sort(m_entries.begin(), m_entries.end(),
                     [this, comparator](const Entry &a, const Entry &b) { return comparator(*this, a, b); });
}

/** The search for payments does not tell the types of their invoices. */
int PaymentPrintModel::invoiceType(int invoiceId) const
{
    if (!m_invoiceTypes) {
        m_invoiceTypes.emplace();
        const std::unique_ptr<Query> query(m_registry->database()->query());
        if (query->fetchInvoiceSummaries(&m_invoiceCriteria)) {
            Invoice invoice;
            while (query->nextInvoice()) {
                query->invoiceSummary(&invoice);
                m_invoiceTypes->insert(invoice.id, invoice.type);
            }
        }
    }
    return m_invoiceTypes->value(invoiceId);
}

long long PaymentPrintModel::totalAmount() const
{
    long long sum = 0;
    QSet<int> counted;
    for (const Entry &entry : m_entries) {
        if (!counted.contains(entry.invoice.id))
            sum += entry.invoice.totalAmount;
        counted.insert(entry.invoice.id);
    }
    return sum;
}

long long PaymentPrintModel::totalPaymentAmount() const
{
    long long sum = 0;
    for (const Entry &entry : m_entries)
        sum += entry.payment.amount;
    return sum;
}

const Customer *PaymentPrintModel::customer(const Entry &entry) const
{
    bool found = false;
    return m_registry->customerById(entry.invoice.customerId, found);
}

const BankAccount *PaymentPrintModel::bankAccount(const Entry &entry) const
{
    bool found = false;
    return m_registry->bankAccountById(entry.payment.bankAccountId, found);
}

QVariant PaymentPrintModel::value(QStringList &path)
{
    const Model &self = *this;
    return ValuePath::resolve(topKeys, path, self);
}

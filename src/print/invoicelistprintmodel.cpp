#include "invoicelistprintmodel.h"

#include "criteriatexts.h"
#include "customer.h"
#include "database.h"
#include "invoiceitem.h"
#include "invoicepaths.h"
#include "listpaths.h"
#include "query.h"
#include "registry.h"
#include "settings.h"
#include "valuepath.h"

#include <QHash>

#include <algorithm>
#include <memory>

namespace {

using Model = InvoiceListPrintModel;
using Entry = Model::Entry;
using ValuePath::Key;

// Sorting ------------------------------------------------------------------------------------------------------------

using IsLess = bool (*)(const Model &, const Entry &, const Entry &);

bool hasLowerNumber(const Entry &a, const Entry &b) { return a.invoice.number < b.invoice.number; }

template <class Value> bool isLess(const Value &a, const Value &b, const Entry &first, const Entry &second)
{
    return a < b || (!(b < a) && hasLowerNumber(first, second));
}

template <auto member> bool byField(const Model &, const Entry &a, const Entry &b)
{
    return isLess(a.invoice.*member, b.invoice.*member, a, b);
}

template <auto member> bool byCustomerField(const Model &model, const Entry &a, const Entry &b)
{
    static const Customer none;
    const Customer *first = model.customer(a);
    const Customer *second = model.customer(b);
    return isLess((first ? *first : none).*member, (second ? *second : none).*member, a, b);
}

int totalVatExcluded(const Entry &entry) { return entry.invoice.totalAmount - entry.totalVatAmount; }

const IsLess comparators[] = {
    // in the order of Model::SortOrder
    [](const Model &, const Entry &a, const Entry &b) { return hasLowerNumber(a, b); },
    byField<&Invoice::date>,
    byField<&Invoice::dueDate>,
    byField<&Invoice::deliveryDate>,
    byCustomerField<&Customer::number>,
    byCustomerField<&Customer::name>,
    [](const Model &, const Entry &a, const Entry &b) {
        return isLess(totalVatExcluded(a), totalVatExcluded(b), a, b);
    },
    [](const Model &, const Entry &a, const Entry &b) { return isLess(a.totalVatAmount, b.totalVatAmount, a, b); },
    byField<&Invoice::totalAmount>,
    byField<&Invoice::balance>,
    [](const Model &, const Entry &a, const Entry &b) { return hasLowerNumber(b, a); },
};

// Value paths --------------------------------------------------------------------------------------------------------

template <auto member> QVariant invoiceField(const Model &, const Entry &entry, QStringList &)
{
    return QVariant(entry.invoice.*member);
}

const Key<const Model &, const Entry &> entryKeys[] = {
    {"type", invoiceField<&Invoice::type>},
    {"number", invoiceField<&Invoice::number>},
    {"date", invoiceField<&Invoice::date>},
    {"dueDate", invoiceField<&Invoice::dueDate>},
    {"deliveryDate", invoiceField<&Invoice::deliveryDate>},
    {"hasDeliveryDate",
     [](const Model &, const Entry &e, QStringList &) { return QVariant(e.invoice.deliveryDate.isValid()); }},
    {"totalAmount", invoiceField<&Invoice::totalAmount>},
    {"totalVatAmount", [](const Model &, const Entry &e, QStringList &) { return QVariant(e.totalVatAmount); }},
    {"totalAmountVatExcluded",
     [](const Model &, const Entry &e, QStringList &) { return QVariant(totalVatExcluded(e)); }},
    {"balance", invoiceField<&Invoice::balance>},
    {"referenceNumber",
     [](const Model &, const Entry &e, QStringList &) {
         return QVariant(Invoice::formatReferenceNumber(e.invoice.referenceNumber));
     }},
    {"referenceNumberRaw", invoiceField<&Invoice::referenceNumber>},
    {"referenceNumberSpy",
     [](const Model &, const Entry &e, QStringList &) {
         return QVariant(Invoice::formatSpyReferenceNumber(e.invoice.referenceNumber));
     }},
    {"customer", [](const Model &m, const Entry &e,
                    QStringList &rest) { return ListPaths::customer(m.registry(), e.invoice.customerId, rest); }},
};

QVariant invoicesValue(const Model &model, QStringList &path)
{
    return ValuePath::resolveList(model.entries().size(), path, [&model](int index, QStringList &rest) {
        return ValuePath::resolve(entryKeys, rest, model, model.entries().at(index));
    });
}

constexpr const char *columnNames[] = {"number",
                                       "date",
                                       "dueDate",
                                       "deliveryDate",
                                       "customerNumber",
                                       "customerName",
                                       "totalAmountVatExcluded",
                                       "totalVatAmount",
                                       "totalAmountVatIncluded",
                                       "balance",
                                       "referenceNumber"};

const Key<const Model &> topKeys[] = {
    {"invoices", invoicesValue},
    {"vat", [](const Model &m, QStringList &rest) { return InvoicePaths::vat(m.vat(), rest); }},
    {"totalAmountVatExcluded",
     [](const Model &m, QStringList &) { return ValuePath::number(m.vat().totalAmountVatExcluded()); }},
    {"totalVatAmount", [](const Model &m, QStringList &) { return ValuePath::number(m.vat().totalVatAmount()); }},
    {"totalAmount", [](const Model &m, QStringList &) { return ValuePath::number(m.vat().totalAmount()); }},
    {"totalBalance", [](const Model &m, QStringList &) { return ValuePath::number(m.totalBalance()); }},
    {"name", [](const Model &m, QStringList &) { return QVariant(m.registry().settings()->sellerName); }},
    {"criteria", [](const Model &m, QStringList &rest) { return ListPaths::texts(m.criteriaStrings(), rest); }},
    {"columns",
     [](const Model &m, QStringList &rest) { return ListPaths::column(columnNames, m.columnFlags(), rest); }},
};

} // namespace

InvoiceListPrintModel::InvoiceListPrintModel(Registry *registry, QObject *parent)
    : PrintModel(parent), m_registry(registry)
{
}

InvoiceListPrintModel::~InvoiceListPrintModel() = default;

bool InvoiceListPrintModel::fail(const QString &error)
{
    m_lastError = error;
    m_entries.clear();
    m_vat.clear();
    return false;
}

bool InvoiceListPrintModel::run()
{
    m_entries.clear();
    m_vat.clear();
    const std::unique_ptr<Query> query(m_registry->database()->query());
    query->setInvoiceBalanceMode(1); // a list for a date tells the balances of that date
    const auto take = [&] {
        m_entries.append(Entry());
        query->invoiceSummary(&m_entries.last().invoice);
    };
    if (!query->fetchInvoiceSummaries(&m_criteria) || !query->readAllInvoices(take))
        return fail(query->lastError());
    if (m_criteria.descending)
        std::reverse(m_entries.begin(), m_entries.end());
    buildCriteriaStrings();
    if (!addRows(*query))
        return fail(query->lastError());
    sort(m_sortOrder); // after the rows, for the orders by VAT
    return true;
}

/** Adds the rows of the listed invoices to their own sums and to those of the list. */
bool InvoiceListPrintModel::addRows(Query &query)
{
    if (!query.fetchInvoiceItems(&m_criteria))
        return false;
    const int roundingMode = m_registry->settings()->roundingMode();
    m_vat.setRoundingMode(roundingMode);
    QHash<int, Entry *> entries;
    for (Entry &entry : m_entries) {
        entry.vat.setRoundingMode(roundingMode);
        entries.insert(entry.invoice.id, &entry);
    }
    InvoiceItem item;
    const bool isWhole = query.readAll([&] {
        query.invoiceItem(&item);
        if (Entry *entry = entries.value(item.invoiceId)) {
            const long long total = item.totalAmountVatIncluded();
            entry->vat.add(total, item.vatRate);
            m_vat.add(total, item.vatRate);
        }
    });
    for (Entry &entry : m_entries)
        entry.totalVatAmount = entry.vat.totalVatAmount();
    return isWhole;
}

void InvoiceListPrintModel::buildCriteriaStrings()
{
    m_criteriaStrings = CriteriaTexts::forInvoices(m_criteria, *m_registry);
}

void InvoiceListPrintModel::sort(int order)
{
    if (order < 0 || order > byNumberDescending)
        return;
    m_sortOrder = order;
    const IsLess comparator = comparators[order];
    std::stable_sort(m_entries.begin(), m_entries.end(),
                     [this, comparator](const Entry &a, const Entry &b) { return comparator(*this, a, b); });
}

long long InvoiceListPrintModel::totalBalance() const
{
    long long sum = 0;
    for (const Entry &entry : m_entries)
        sum += entry.invoice.balance;
    return sum;
}

const Customer *InvoiceListPrintModel::customer(const Entry &entry) const
{
    bool found = false;
    return m_registry->customerById(entry.invoice.customerId, found);
}

QVariant InvoiceListPrintModel::value(QStringList &path)
{
    const Model &self = *this;
    return ValuePath::resolve(topKeys, path, self);
}

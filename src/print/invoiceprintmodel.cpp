#include "invoiceprintmodel.h"

#include "customer.h"
#include "database.h"
#include "invoicepaths.h"
#include "query.h"
#include "registry.h"
#include "settings.h"

#include <memory>

InvoicePrintModel::InvoicePrintModel(Registry *registry, QObject *parent)
    : PrintModel(parent), m_registry(registry), m_title(tr("Lasku"))
{
    copyBankAccounts();
}

InvoicePrintModel::~InvoicePrintModel() = default;

Settings *InvoicePrintModel::settings() const { return m_registry->settings(); }

void InvoicePrintModel::setRoundingMode() { m_vat.setRoundingMode(settings()->roundingMode()); }

bool InvoicePrintModel::run()
{
    clear();
    const std::unique_ptr<Query> query(m_registry->database()->query());
    const auto takeInvoice = [&] {
        Invoice invoice;
        query->invoiceDetails(&invoice);
        if (m_criteria.descending)
            m_invoices.prepend(invoice);
        else
            m_invoices.append(invoice);
    };
    const auto takeItem = [&] {
        InvoiceItem item;
        query->invoiceItem(&item);
        m_items[item.invoiceId].append(item);
    };
    if (!query->fetchInvoiceDetails(&m_criteria) || !query->readAllInvoices(takeInvoice) ||
        !query->fetchInvoiceItems(&m_criteria) || !query->readAll(takeItem)) {
        m_lastError = query->lastError();
        clear();
        return false;
    }
    setRoundingMode();
    return true;
}

void InvoicePrintModel::copyInvoice(InvoicePrintModel *source, int index)
{
    const Invoice &invoice = *source->invoice(index);
    m_invoices.append(invoice);
    m_items.insert(invoice.id, source->items(invoice));
    m_vatInvoice = nullptr;
    setRoundingMode();
}

void InvoicePrintModel::copyBankAccounts()
{
    m_bankAccounts.clear();
    m_visibleBankAccounts.clear();
    for (int i = 0; i < m_registry->bankAccountCount(); ++i) {
        const BankAccount &account = *m_registry->bankAccount(i);
        m_bankAccounts.append(account);
        if (account.visible)
            m_visibleBankAccounts.append(account);
    }
}

QDate InvoicePrintModel::date() const
{
    const bool hasDate = !m_invoices.isEmpty() && m_invoices.first().date.isValid();
    return hasDate ? m_invoices.first().date : PrintModel::date();
}

void InvoicePrintModel::clear()
{
    m_invoices.clear();
    m_items.clear();
    m_vatInvoice = nullptr;
}

const QVector<InvoiceItem> &InvoicePrintModel::items(const Invoice &invoice) const
{
    static const QVector<InvoiceItem> none;
    const auto it = m_items.constFind(invoice.id);
    return it == m_items.constEnd() ? none : it.value();
}

const Vat &InvoicePrintModel::vat(const Invoice &invoice) const
{
    if (m_vatInvoice != &invoice) {
        m_vat.clear();
        for (const InvoiceItem &item : items(invoice))
            m_vat.add(item.totalAmountVatIncluded(), item.vatRate);
        m_vatInvoice = &invoice;
    }
    return m_vat;
}

Customer *InvoicePrintModel::customer(const Invoice &invoice) const
{
    bool found = false;
    return m_registry->customerById(invoice.customerId, found);
}

int InvoicePrintModel::typeCode(const Invoice &invoice) const
{
    if (m_printType > 0)
        return m_printType;
    return invoice.type < reminder ? invoice.type : invoice.type + 2;
}

QString InvoicePrintModel::barcode(const Invoice &invoice, int version) const
{
    return m_visibleBankAccounts.isEmpty() ? QString() : invoice.barcode(&m_visibleBankAccounts.first(), version);
}

const QImage &InvoicePrintModel::logo() const
{
    if (!m_logo)
        m_logo = QImage::fromData(settings()->sellerLogo);
    return *m_logo;
}

QVariant InvoicePrintModel::value(QStringList &path) { return InvoicePaths::value(*this, path); }

QImage InvoicePrintModel::image(QStringList &path)
{
    const bool isLogo = path.value(0) == QLatin1String("seller") && path.value(1) == QLatin1String("logo");
    return isLogo ? logo() : QImage();
}

QString InvoicePrintModel::customerVatNumber(Customer *customer) const { return customer->vatNumber; }

QString InvoicePrintModel::customerBusinessId(Customer *customer) const { return customer->vatNumber; }

bool InvoicePrintModel::customerHasVatNumber(Customer *customer) const
{
    return Customer::isValidVatNumber(customer->vatNumber);
}

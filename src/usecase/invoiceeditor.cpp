#include "invoiceeditor.h"

#include "calendar.h"
#include "query.h"
#include "settings.h"
#include "templatestringhelper.h"
#include "usecasecontext.h"

#include <limits>

bool InvoiceEditor::begin()
{
    DatabaseSession &session = m_context.session;
    if (!session.fetch(CachedList::bankAccounts) || !session.fetch(CachedList::settings))
        return false;
    const Settings *settings = session.registry().settings();
    m_invoice.date = Calendar::today();
    m_invoice.paymentTerms = settings->property(QStringLiteral("settings/paymentTerms")).toString();
    m_invoice.interestOnArrears = settings->property(QStringLiteral("settings/interestOnArrears")).toInt();
    return true;
}

bool InvoiceEditor::edit(const Invoice &stored)
{
    m_invoice = stored;
    m_isStored = true;
    // The customer is for the reference number that a new number gives.
    if (!m_context.session.fetchCustomers({stored.customerId}))
        return false;
    bool known = false;
    const Customer *customer = m_context.session.registry().customerById(stored.customerId, known);
    m_customer = known ? *customer : Customer();
    return true;
}

/** Fills the reference number and the notice texts of the invoice as the settings have them. */
void InvoiceEditor::updateReferenceNumber()
{
    Registry &registry = m_context.session.registry();
    const TemplateStringHelper helper(&registry);
    const Settings *settings = registry.settings();
    m_invoice.referenceNumber = m_customer.referenceNumber;
    if (m_invoice.referenceNumber.isEmpty()) {
        const QString base = helper.substituteVariables(settings->referenceNumberTemplate(), &m_invoice, &m_customer);
        m_invoice.referenceNumber = Invoice::appendCheckDigitToReferenceNumber(base);
    }
    const struct {
        const char *setting, *property;
    } notices[] = {{"invoiceForm/noticeText1", "t1"}, {"invoiceForm/noticeText2", "t2"}};
    for (const auto &notice : notices) {
        const QString form = settings->property(QLatin1String(notice.setting)).toString();
        m_invoice.setPropertyIfNotEmpty(QLatin1String(notice.property),
                                        helper.substituteVariables(form, &m_invoice, &m_customer));
    }
}

void InvoiceEditor::useCustomer(const Customer &customer)
{
    m_customer = customer;
    m_invoice.customerId = customer.id;
    updateReferenceNumber();
}

void InvoiceEditor::setNumber(int number)
{
    m_invoice.number = number;
    updateReferenceNumber();
}

bool InvoiceEditor::checkTerms() const
{
    return m_invoice.canBeDue() ||
           m_context.listener.fail(Failure::paymentTermsBeyondCalendar, {m_invoice.paymentTerms});
}

bool InvoiceEditor::setDate(const QDate &date)
{
    m_invoice.date = date;
    m_invoice.dueDate = m_invoice.calculateDueDate(); // with the payment terms known so far
    return checkTerms();
}

bool InvoiceEditor::setPaymentTerms(const QString &terms)
{
    m_invoice.paymentTerms = terms;
    return checkTerms();
}

bool InvoiceEditor::complete()
{
    if (!m_invoice.dueDate.isValid())
        m_invoice.dueDate = m_invoice.calculateDueDate();
    if (m_invoice.customerId < 0)
        return m_context.listener.fail(Failure::invoiceCustomerMissing);
    if (m_invoice.number != 0)
        return true;
    const int highest = m_context.session.query()->maxInvoiceNumber();
    if (!m_context.session.query()->lastError().isEmpty())
        return m_context.session.failQuery();
    if (highest == std::numeric_limits<int>::max())
        return m_context.listener.fail(Failure::noNextInvoiceNumber);
    setNumber(highest + 1);
    return true;
}

bool InvoiceEditor::save()
{
    if (!m_isStored && !complete())
        return false;
    m_context.listener.note(Notice::savingInvoice, {QString::number(m_invoice.number)});
    return m_context.session.query()->saveInvoice(&m_invoice) || m_context.session.failQuery();
}

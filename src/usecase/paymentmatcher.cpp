#include "paymentmatcher.h"

#include "databasesession.h"
#include "query.h"

namespace {

/** The form in which references are compared: national, without blanks and leading zeros. */
QString comparableReference(const QString &reference)
{
    QString digits = reference.startsWith(QLatin1String("RF")) ? reference.mid(4) : reference;
    digits.remove(QLatin1Char(' '));
    int zeros = 0;
    while (zeros < digits.size() && digits.at(zeros) == QLatin1Char('0'))
        ++zeros;
    return digits.mid(zeros);
}

} // namespace

bool PaymentMatcher::match(QVector<ImportedPayment> &payments)
{
    if (!readReferences(payments))
        return false;
    for (ImportedPayment &payment : payments) {
        if (payment.result != ImportResult::error && !matchOne(payment))
            return false;
    }
    return true;
}

/** One walk over the invoices, however many payments there are. */
bool PaymentMatcher::readReferences(const QVector<ImportedPayment> &payments)
{
    for (const ImportedPayment &payment : payments) {
        if (!payment.referenceNumber.isEmpty())
            m_invoicesByReference.insert(payment.referenceNumber, {});
    }
    Query *query = m_session.query();
    if (m_invoicesByReference.isEmpty())
        return true;
    if (!query->fetchInvoiceReferences())
        return m_session.failQuery();
    const bool isWhole = query->readAll([&] {
        Invoice invoice;
        query->invoiceReference(&invoice);
        const auto it = m_invoicesByReference.find(comparableReference(invoice.referenceNumber));
        if (it != m_invoicesByReference.end())
            it->append(invoice.id);
    });
    return isWhole || m_session.failQuery();
}

bool PaymentMatcher::candidates(const QString &reference, QVector<InvoiceLedger *> &found)
{
    Query *query = m_session.query();
    const QVector<int> ids = m_invoicesByReference.value(reference);
    for (const int id : ids) {
        auto it = m_ledgers.find(id);
        if (it == m_ledgers.end()) {
            Invoice invoice;
            QVector<Payment> payments;
            const auto takePayment = [&] {
                payments.append(Payment());
                query->payment(&payments.last());
            };
            if (!query->fetchInvoiceDetails(id) || !query->readAll([&] { query->invoiceDetails(&invoice); }) ||
                !query->fetchPayments(id) || !query->readAll(takePayment))
                return m_session.failQuery();
            it = m_ledgers.emplace(id, InvoiceLedger(invoice, payments)).first;
        }
        found.append(&it->second);
    }
    return true;
}

InvoiceLedger *PaymentMatcher::choose(const ImportedPayment &payment, const QVector<InvoiceLedger *> &invoices,
                                      ImportResult &result, QString &message) const
{
    for (InvoiceLedger *invoice : invoices) {
        if (invoice->takeKnown(payment)) {
            result = ImportResult::alreadyImported;
            message = tr("Suoritus on jo tallennettu");
            return invoice;
        }
    }
    QVector<InvoiceLedger *> fitting;
    for (InvoiceLedger *invoice : invoices) {
        const bool takesBack = payment.amount < 0 && invoice->holdsAmount(-payment.amount);
        const bool settles = payment.amount > 0 && invoice->balance() == payment.amount;
        const bool isOnly = payment.amount > 0 && invoices.size() == 1;
        if (takesBack || settles || isOnly)
            fitting.append(invoice);
    }
    if (fitting.size() == 1) {
        result = ImportResult::saved;
        return fitting.first();
    }
    const bool nothingToTakeBack = payment.amount < 0 && fitting.isEmpty();
    result = nothingToTakeBack ? ImportResult::unmatched : ImportResult::ambiguous;
    message = nothingToTakeBack ? tr("Palautettavaa suoritusta ei löytynyt")
                                : tr("Viitenumerolla %1 on useita laskuja").arg(payment.referenceNumber);
    return nullptr;
}

bool PaymentMatcher::matchOne(ImportedPayment &payment)
{
    payment.result = ImportResult::unmatched;
    QVector<InvoiceLedger *> invoices;
    if (!candidates(payment.referenceNumber, invoices))
        return false;
    if (payment.referenceNumber.isEmpty()) {
        payment.message = tr("Viitenumero puuttuu");
    } else if (invoices.isEmpty()) {
        payment.message = tr("Laskua ei löytynyt viitenumerolla %1").arg(payment.referenceNumber);
    } else if (payment.amount == 0) {
        payment.message = tr("Suorituksen summa on nolla");
    } else if (InvoiceLedger *invoice = choose(payment, invoices, payment.result, payment.message)) {
        payment.invoiceId = invoice->invoiceId();
        payment.invoiceNumber = invoice->invoiceNumber();
        if (payment.result == ImportResult::saved && !invoice->canTake(payment.amount)) {
            payment.result = ImportResult::error;
            payment.message = tr("Laskun loppusumma on liian suuri");
        }
        if (payment.result == ImportResult::saved)
            invoice->add(payment);
    }
    return true;
}

bool PaymentMatcher::save()
{
    Query *query = m_session.query();
    for (auto &[id, ledger] : m_ledgers) {
        const QVector<Payment *> added = ledger.newPayments();
        for (Payment *payment : added) {
            if (!query->savePayment(payment))
                return m_session.failQuery();
        }
        if (!added.isEmpty())
            m_changedInvoices.append(id);
        Invoice invoice;
        if (!query->fetchInvoiceDetails(id) || !query->readAll([&] { query->invoiceDetails(&invoice); }))
            return m_session.failQuery();
        const QString archiveIds = ledger.archiveIds();
        if (invoice.property(InvoiceLedger::archiveIdsKey()).toString() == archiveIds)
            continue;
        invoice.setPropertyIfNotEmpty(InvoiceLedger::archiveIdsKey(), archiveIds);
        if (!query->saveInvoice(&invoice))
            return m_session.failQuery();
    }
    return true;
}

#include "invoiceledger.h"

#include "importedpayment.h"

#include <algorithm>

namespace {

constexpr int comparableLength = 16;

} // namespace

QString InvoiceLedger::archiveIdsKey() { return QStringLiteral("bankArchiveIds"); }

InvoiceLedger::InvoiceLedger(const Invoice &invoice, const QVector<Payment> &payments)
    : m_invoice(invoice), m_balance(invoice.balance)
{
    for (const Payment &payment : payments)
        m_entries.append({payment, QString(), false, false});
    readArchiveIds();
}

void InvoiceLedger::readArchiveIds()
{
    const QStringList words =
        m_invoice.property(archiveIdsKey()).toString().split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString &word : words) {
        const int paymentId = word.section(QLatin1Char(':'), 0, 0).toInt();
        for (Entry &entry : m_entries) {
            if (entry.payment.id == paymentId)
                entry.archiveId = word.section(QLatin1Char(':'), 1);
        }
    }
}

QString InvoiceLedger::comparableId(const QString &archiveId)
{
    QString id;
    for (const QChar c : archiveId) {
        if (c.isLetterOrNumber())
            id += c.toUpper();
    }
    return id.right(comparableLength);
}

bool InvoiceLedger::takeKnown(const ImportedPayment &payment)
{
    const QString id = comparableId(payment.archiveId);
    for (const Entry &entry : qAsConst(m_entries)) {
        // A correction can repeat the id of what it takes back: the amount tells them apart.
        if (!id.isEmpty() && entry.archiveId == id && entry.payment.amount == payment.amount)
            return true;
    }
    for (Entry &entry : m_entries) {
        const bool sameAccount =
            entry.payment.bankAccountId < 0 || entry.payment.bankAccountId == payment.bankAccountId;
        const bool equal = entry.payment.date == payment.date && entry.payment.amount == payment.amount && sameAccount;
        if (equal && !entry.isNew && !entry.isTaken && (id.isEmpty() || entry.archiveId.isEmpty())) {
            entry.isTaken = true;
            if (entry.archiveId.isEmpty())
                entry.archiveId = id;
            return true;
        }
    }
    return false;
}

bool InvoiceLedger::holdsAmount(int amount) const
{
    return std::any_of(m_entries.begin(), m_entries.end(),
                       [amount](const Entry &entry) { return entry.payment.amount == amount; });
}

void InvoiceLedger::add(const ImportedPayment &payment)
{
    Entry entry;
    entry.payment.invoiceId = m_invoice.id;
    entry.payment.date = payment.date;
    entry.payment.amount = payment.amount;
    entry.payment.bankAccountId = payment.bankAccountId;
    entry.archiveId = comparableId(payment.archiveId);
    entry.isNew = true;
    m_entries.append(entry);
    m_balance -= payment.amount;
}

QVector<Payment *> InvoiceLedger::newPayments()
{
    QVector<Payment *> payments;
    for (Entry &entry : m_entries) {
        if (entry.isNew)
            payments.append(&entry.payment);
    }
    return payments;
}

QString InvoiceLedger::archiveIds() const
{
    QStringList words;
    for (const Entry &entry : m_entries) {
        if (!entry.archiveId.isEmpty())
            words.append(QString::number(entry.payment.id) + QLatin1Char(':') + entry.archiveId);
    }
    return words.join(QLatin1Char(' '));
}

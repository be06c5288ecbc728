#include "invoiceledger.h"

#include "importedpayment.h"

#include <limits>

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

QString InvoiceLedger::storedId(const ImportedPayment &payment)
{
    const QString id = comparableId(payment.archiveId);
    return id.isEmpty() ? id : payment.format + QLatin1Char(':') + id;
}

bool InvoiceLedger::takeKnown(const ImportedPayment &payment)
{
    const QString id = storedId(payment);
    const QString prefix = payment.format + QLatin1Char(':');
    Entry *found = nullptr;
    for (Entry &entry : m_entries) {
        const bool sameAccount = entry.payment.bankAccountId < 0 || payment.bankAccountId < 0 ||
                                 entry.payment.bankAccountId == payment.bankAccountId;
        if (entry.payment.date != payment.date || entry.payment.amount != payment.amount || !sameAccount)
            continue;
        if (!id.isEmpty() && entry.archiveId == id)
            return true; // also when the file itself tells it twice
        const bool idsDecide = !id.isEmpty() && entry.archiveId.startsWith(prefix);
        if (!entry.isNew && !entry.isTaken && !idsDecide && !found)
            found = &entry;
    }
    if (!found)
        return false;
    found->isTaken = true;
    if (found->archiveId.isEmpty())
        found->archiveId = id;
    return true;
}

bool InvoiceLedger::holdsAmount(int amount) const
{
    int count = 0;
    for (const Entry &entry : m_entries)
        count += (entry.payment.amount == amount) - (entry.payment.amount == -amount);
    return count > 0;
}

bool InvoiceLedger::canTake(int amount) const
{
    const long long balance = m_balance - amount;
    return balance >= std::numeric_limits<int>::min() && balance <= std::numeric_limits<int>::max();
}

void InvoiceLedger::add(const ImportedPayment &payment)
{
    Entry entry;
    entry.payment.invoiceId = m_invoice.id;
    entry.payment.date = payment.date;
    entry.payment.amount = payment.amount;
    entry.payment.bankAccountId = payment.bankAccountId;
    entry.archiveId = storedId(payment);
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

#include "importpayments.h"

#include "bankaccount.h"
#include "invoicetotals.h"
#include "paymentfilereader.h"
#include "paymentlistener.h"
#include "paymentmatcher.h"
#include "usecasecontext.h"

#include <QFile>

namespace {

/** Keeps what a file holds. */
class PaymentCollector : public PaymentListener {
public:
    PaymentCollector(const Registry &registry, const QString &fileName) : m_registry(registry), m_fileName(fileName) {}

    void payment(const PaymentFileReader &reader) override
    {
        ImportedPayment payment;
        payment.fileName = m_fileName;
        payment.lineNumber = reader.lineNumber();
        payment.date = reader.entryDate();
        payment.amount = reader.amount();
        payment.referenceNumber = reader.referenceNumber();
        payment.payerName = reader.payerName();
        payment.archiveId = reader.archiveId();
        payment.format = reader.format();
        payment.bankAccountId = accountId(reader.iban(), reader.bban());
        payments.append(payment);
    }

    void error(qint64 lineNumber, const QString &message) override
    {
        ImportedPayment payment;
        payment.fileName = m_fileName;
        payment.lineNumber = lineNumber;
        payment.result = ImportResult::error;
        payment.message = message;
        payments.append(payment);
    }

    QVector<ImportedPayment> payments;

private:
    int accountId(const QString &iban, const QString &bban) const
    {
        for (const BankAccount *account : m_registry.bankAccounts()) {
            const QString own = BankAccount::normalizedCode(account->iban);
            const bool same = (!iban.isEmpty() && own.compare(iban, Qt::CaseInsensitive) == 0) ||
                              (!bban.isEmpty() && BankAccount::ibanToBban(own) == bban);
            if (same)
                return account->id;
        }
        return -1;
    }

    const Registry &m_registry;
    const QString m_fileName;
};

} // namespace

bool ImportPayments::readFile(UseCaseContext &context, const QString &fileName, QVector<ImportedPayment> &payments)
{
    if (!context.session.fetch(CachedList::bankAccounts))
        return false;
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return context.listener.fail(Failure::fileUnreadable, {fileName, file.errorString()});
    PaymentCollector collector(context.session.registry(), fileName);
    PaymentFileReader reader(&collector);
    if (!reader.readFile(file))
        return context.listener.fail(Failure::paymentFormatUnknown, {fileName, reader.lastError()});
    payments += collector.payments;
    return true;
}

bool ImportPayments::save(UseCaseContext &context, QVector<ImportedPayment> &payments)
{
    PaymentMatcher matcher(context.session);
    if (!matcher.match(payments) || !matcher.save())
        return false;
    const QVector<int> changed = matcher.changedInvoices();
    for (const int id : changed) {
        if (InvoiceTotals::updateInvoice(context, id) != InvoiceTotals::Outcome::updated)
            return false;
    }
    return true;
}

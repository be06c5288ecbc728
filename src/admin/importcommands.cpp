#include "importcommands.h"

#include "bankaccount.h"
#include "importedpayment.h"
#include "invoicetotals.h"
#include "parametertable.h"
#include "paymentfilereader.h"
#include "paymentlistener.h"
#include "paymentmatcher.h"
#include "writetransaction.h"

#include <QDir>
#include <QFile>

#include <algorithm>

namespace {

struct Options {
    QString fileName;
    bool dryRun = false;
};

bool fileName(CommandContext &, const QString &, const QString &value, Options &options)
{
    options.fileName = QDir::fromNativeSeparators(value);
    return true;
}

bool dryRun(CommandContext &, const QString &, const QString &, Options &options)
{
    options.dryRun = true;
    return true;
}

constexpr Parameter<Options> parameters[] = {{"filename", fileName}, {"dryRun", dryRun}};

/** Keeps what a file holds. */
class PaymentCollector : public PaymentListener {
public:
    explicit PaymentCollector(const Registry &registry) : m_registry(registry) {}

    void payment(const PaymentFileReader &reader) override
    {
        ImportedPayment payment;
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
        payment.result = ImportResult::error;
        payment.message = CommandContext::tr("Rivi %1: %2").arg(QString::number(lineNumber), message);
        payments.append(payment);
    }

    QVector<ImportedPayment> payments;

private:
    int accountId(const QString &iban, const QString &bban) const
    {
        for (const BankAccount *account : m_registry.bankAccounts()) {
            const QString own = QString(account->iban).remove(QLatin1Char(' '));
            const bool same = (!iban.isEmpty() && own.compare(iban, Qt::CaseInsensitive) == 0) ||
                              (!bban.isEmpty() && BankAccount::ibanToBban(own) == bban);
            if (same)
                return account->id;
        }
        return -1;
    }

    const Registry &m_registry;
};

bool readFile(CommandContext &context, const QString &name, QVector<ImportedPayment> &payments)
{
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly))
        return context.status.fail(ExitCode::badData,
                                   CommandContext::tr("Tiedostoa %1 ei voi lukea: %2").arg(name, file.errorString()));
    PaymentCollector collector(context.session.registry());
    PaymentFileReader reader(&collector);
    if (!reader.readFile(file))
        return context.status.fail(ExitCode::badData, reader.lastError());
    payments = collector.payments;
    return true;
}

bool importPayments(CommandContext &context, const Options &options, QVector<ImportedPayment> &payments)
{
    PaymentMatcher matcher(context.session);
    if (options.dryRun)
        return matcher.match(payments);
    WriteTransaction transaction(context.session);
    if (!transaction.hasBegun() || !matcher.match(payments) || !matcher.save())
        return false;
    const QVector<int> changed = matcher.changedInvoices();
    for (const int id : changed) {
        if (InvoiceTotals::updateInvoice(context, id) != InvoiceTotals::Outcome::updated)
            return false;
    }
    return transaction.commit();
}

constexpr const char *resultNames[] = {"saved", "alreadyImported", "unmatched", "ambiguous", "error"};

void printPayment(ResponseWriter &response, const ImportedPayment &payment)
{
    response.startRecord(QStringLiteral("importedPayment"));
    response.printProperty("date", payment.date);
    response.printTotal("amount", payment.amount);
    response.printProperty("referenceNumber", payment.referenceNumber);
    response.printProperty("payerName", payment.payerName);
    response.printProperty("archiveId", payment.archiveId);
    response.printProperty("bankAccountId", payment.bankAccountId);
    response.printProperty("invoiceId", payment.invoiceId);
    response.printProperty("invoiceNumber", payment.invoiceNumber);
    response.printProperty("result", QString::fromLatin1(resultNames[static_cast<int>(payment.result)]));
    response.printProperty("message", payment.message);
    response.endRecord();
}

} // namespace

void parseImportPaymentsCommand(CommandContext &context, QStringList &args)
{
    if (!context.session.ensureOpen())
        return;
    Options options;
    if (!applyParameters(context, parseParameters(args), parameters, SaveCommandMode::edit, options))
        return;
    if (options.fileName.isEmpty()) {
        context.status.fail(ExitCode::badData, CommandContext::tr("Parametri filename on pakollinen"));
        return;
    }
    QVector<ImportedPayment> payments;
    if (!context.session.fetch(CachedList::bankAccounts) || !readFile(context, options.fileName, payments) ||
        !importPayments(context, options, payments))
        return;
    context.response.startResponse(QStringLiteral("OK"));
    for (const ImportedPayment &payment : qAsConst(payments))
        printPayment(context.response, payment);
    context.response.endResponse();
    const bool damaged = std::any_of(payments.begin(), payments.end(),
                                     [](const ImportedPayment &p) { return p.result == ImportResult::error; });
    if (damaged)
        context.status.endAnswered(ExitCode::badData);
}

#include "paymentcommands.h"

#include "bankaccount.h"
#include "calendar.h"
#include "constants.h"
#include "invoice.h"
#include "invoicecriteria.h"
#include "invoicelookup.h"
#include "parametertable.h"
#include "payment.h"
#include "paymentcriteria.h"
#include "query.h"
#include "recordediting.h"
#include "recordprinter.h"
#include "searchcommand.h"
#include "writetransaction.h"

#include <QVector>

namespace {

struct State {
    Payment record;
    int earlierInvoiceId = -1; ///< of a looked-up payment, which may be moved to another invoice
    bool found = false;
    bool hasInvoice = false;
};

bool bankAccountById(CommandContext &context, const QString &key, const QString &value, State &state)
{
    int id = 0;
    BankAccount account;
    if (!context.values.parseIdValue(key, value, context.lastSaved.bankAccount, id) ||
        !context.finder.findBankAccountById(id, &account))
        return false;
    state.record.bankAccountId = account.id;
    return true;
}

bool bankAccountByName(CommandContext &context, const QString &, const QString &value, State &state)
{
    BankAccount account;
    if (!context.finder.findBankAccountByName(value, &account))
        return false;
    state.record.bankAccountId = account.id;
    return true;
}

bool findById(CommandContext &context, const QString &key, const QString &value, State &state)
{
    int id = 0;
    state.found = context.values.parseIntValue(key, value, id) && context.finder.findPaymentById(id, &state.record);
    state.earlierInvoiceId = state.record.invoiceId;
    return state.found;
}

constexpr Parameter<State> parameters[] = {
    {"date", Parameters::date<&Payment::date>},
    {"amount", Parameters::decimal<&Payment::amount, Constants::totalAmountFractionDigits>},
    {"findInvoiceById", InvoiceLookup::byId},
    {"findInvoiceByNumber", InvoiceLookup::byNumber},
    {"findBankAccountById", bankAccountById},
    {"findBankAccountByName", bankAccountByName},
    {"findByPaymentId", findById, true},
};

bool savePayment(CommandContext &context, const ParameterList &words, SaveCommandMode mode, State &state)
{
    WriteTransaction transaction(context.session);
    if (!transaction.hasBegun() || !applyParameters(context, words, parameters, mode, state))
        return false;
    if (mode == SaveCommandMode::edit && !state.found)
        return context.status.fail(ExitCode::badData, CommandContext::tr("Parametri findByPaymentId on pakollinen"));
    if (mode == SaveCommandMode::add && !state.hasInvoice)
        return context.status.fail(ExitCode::badData, CommandContext::tr("Parametri findInvoiceById on pakollinen"));
    // The payment stays saved when the totals cannot be brought up to date, as when its invoice is gone.
    const InvoiceTotals::Outcome outcome = RecordEditing::savePayment(context, state.record, state.earlierInvoiceId);
    if (outcome == InvoiceTotals::Outcome::tooLarge)
        return false;
    return transaction.commit() && outcome == InvoiceTotals::Outcome::updated;
}

struct Search {
    InvoiceCriteria invoices;
    PaymentCriteria payments;
};

bool parseSearch(CommandContext &context, const ParameterList &words, Search &search)
{
    for (const auto &[key, value] : words) {
        int applied = context.criteria.parsePaymentCriteriaParam(key, value, &search.payments);
        if (applied == 0)
            applied = context.criteria.parseInvoiceCriteriaParam(key, value, &search.invoices);
        if (applied < 0)
            return false;
        if (applied == 0)
            return context.status.failUnknownParameter(key);
    }
    return true;
}

void findPayments(CommandContext &context, const Search &search)
{
    Query *query = context.session.query();
    if (!query->fetchPayments(&search.payments, &search.invoices)) {
        context.session.failQuery();
        return;
    }
    context.response.startResponse(QStringLiteral("OK"));
    while (query->next()) {
        Payment payment;
        query->payment(&payment);
        RecordPrinter::printPayment(context.response, payment);
    }
    endFound(context);
}

/** The balances of the invoices stay as they are when payments are removed. */
struct PaymentSearch {
    using Search = ::Search;
    static constexpr auto parse = parseSearch;
    static constexpr auto find = findPayments;

    static bool restricts(const Query &query, const Search &search)
    {
        QString sql;
        QVariantList params;
        const QString keyword = QStringLiteral(" WHERE ");
        return query.buildPaymentWhereClause(&search.payments, nullptr, sql, params, QString(), keyword) ||
               query.buildInvoiceWhereClause(&search.invoices, sql, params, QString(), keyword);
    }

    static bool readIds(Query &query, const Search &search, QVector<int> &ids)
    {
        if (!query.fetchPayments(&search.payments, &search.invoices))
            return false;
        while (query.next()) {
            Payment payment;
            query.payment(&payment);
            ids.append(payment.id);
        }
        return true;
    }

    static bool remove(CommandContext &context, int id)
    {
        return context.session.query()->deletePayment(id) || context.session.failQuery();
    }
};

} // namespace

void parseSavePaymentCommand(CommandContext &context, QStringList &args, SaveCommandMode mode)
{
    if (!context.session.ensureOpen())
        return;
    State state;
    state.record.date = Calendar::today();
    if (!savePayment(context, parseParameters(args), mode, state))
        return;
    context.response.startResponse(QStringLiteral("OK"));
    RecordPrinter::printPayment(context.response, state.record);
    context.response.endResponse();
}

void parseFindPaymentsCommand(CommandContext &context, QStringList &args, FindCommandMode mode)
{
    runSearchCommand<PaymentSearch>(context, args, mode);
}

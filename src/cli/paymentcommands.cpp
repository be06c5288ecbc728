#include "paymentcommands.h"

#include "bankaccount.h"
#include "constants.h"
#include "invoice.h"
#include "invoicecriteria.h"
#include "invoicetotals.h"
#include "parametertable.h"
#include "payment.h"
#include "paymentcriteria.h"
#include "query.h"
#include "recordprinter.h"
#include "writetransaction.h"

#include <QVector>

namespace {

struct State {
    Payment record;
    int earlierInvoiceId = -1; ///< of a looked-up payment, which may be moved to another invoice
    bool found = false;
    bool hasInvoice = false;
};

bool useInvoice(State &state, const Invoice &invoice)
{
    state.record.invoiceId = invoice.id;
    state.hasInvoice = true;
    return true;
}

bool invoiceById(CommandContext &context, const QString &key, const QString &value, State &state)
{
    int id = 0;
    Invoice invoice;
    return context.values.parseIdValue(key, value, context.lastSaved.invoice, id) &&
           context.finder.findInvoiceById(id, &invoice) && useInvoice(state, invoice);
}

bool invoiceByNumber(CommandContext &context, const QString &key, const QString &value, State &state)
{
    int number = 0;
    Invoice invoice;
    return context.values.parseIntValue(key, value, number) && context.finder.findInvoiceByNumber(number, &invoice) &&
           useInvoice(state, invoice);
}

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
    {"findInvoiceById", invoiceById},
    {"findInvoiceByNumber", invoiceByNumber},
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
    context.diagnostics.printDebugMessage(CommandContext::tr("Tallennetaan maksusuorituksen tiedot"));
    if (!context.session.query()->savePayment(&state.record))
        return context.session.failQuery();
    // The payment stays saved when the totals cannot be brought up to date, as when its invoice is gone.
    const int invoiceId = state.record.invoiceId;
    const bool moved = state.earlierInvoiceId >= 0 && state.earlierInvoiceId != invoiceId;
    InvoiceTotals::Outcome outcome = InvoiceTotals::updateInvoice(context, invoiceId);
    if (moved && outcome == InvoiceTotals::Outcome::updated)
        outcome = InvoiceTotals::updateInvoice(context, state.earlierInvoiceId);
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
    if (query->hasReadError()) {
        context.response.abandonResponse();
        context.session.failQuery();
        return;
    }
    context.response.endResponse();
}

/** A search that was given keys which restrict nothing (a negative number does not) is no order to remove everything.
 */
bool checkRestricts(CommandContext &context, const Search &search, bool hasKeys)
{
    QString sql;
    QVariantList params;
    const Query *query = context.session.query();
    const QString keyword = QStringLiteral(" WHERE ");
    const bool restricts = query->buildPaymentWhereClause(&search.payments, nullptr, sql, params, QString(), keyword) ||
                           query->buildInvoiceWhereClause(&search.invoices, sql, params, QString(), keyword);
    return restricts || !hasKeys ||
           context.status.fail(ExitCode::badData, CommandContext::tr("Hakuehdot eivät rajaa poistettavia suorituksia"));
}

/** The balances of the invoices stay as they are. @return the number of payments removed, -1 on failure */
int removePayments(CommandContext &context, const Search &search)
{
    WriteTransaction transaction(context.session);
    if (!transaction.hasBegun())
        return -1;
    Query *query = context.session.query();
    bool ok = query->fetchPayments(&search.payments, &search.invoices);
    QVector<int> ids;
    while (ok && query->next()) {
        Payment payment;
        query->payment(&payment);
        ids.append(payment.id);
    }
    ok = ok && !query->hasReadError();
    for (const int id : qAsConst(ids))
        ok = ok && query->deletePayment(id);
    if (!ok) {
        context.session.failQuery();
        return -1;
    }
    return transaction.commit() ? ids.size() : -1;
}

} // namespace

void parseSavePaymentCommand(CommandContext &context, QStringList &args, SaveCommandMode mode)
{
    if (!context.session.ensureOpen())
        return;
    State state;
    state.record.date = QDate::currentDate();
    if (!savePayment(context, parseParameters(args), mode, state))
        return;
    context.response.startResponse(QStringLiteral("OK"));
    RecordPrinter::printPayment(context.response, state.record);
    context.response.endResponse();
}

void parseFindPaymentsCommand(CommandContext &context, QStringList &args, FindCommandMode mode)
{
    if (!context.session.ensureOpen())
        return;
    Search search;
    const ParameterList words = parseParameters(args);
    if (!parseSearch(context, words, search))
        return;
    if (mode == FindCommandMode::find) {
        findPayments(context, search);
        return;
    }
    if (!checkRestricts(context, search, !words.isEmpty()))
        return;
    const int count = removePayments(context, search);
    if (count < 0)
        return;
    context.response.startResponse(QStringLiteral("OK"));
    context.response.printNumRemoved(count);
    context.response.endResponse();
}

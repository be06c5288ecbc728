#include "invoicecommands.h"

#include "constants.h"
#include "invoicecriteria.h"
#include "invoiceeditor.h"
#include "invoiceitem.h"
#include "parametertable.h"
#include "payment.h"
#include "paymentcriteria.h"
#include "query.h"
#include "readtransaction.h"
#include "recordediting.h"
#include "recordprinter.h"
#include "searchcommand.h"
#include "writetransaction.h"

#include <QHash>
#include <QVector>

namespace {

struct State {
    explicit State(UseCaseContext &context) : editor(context), record(editor.invoice()) {}

    InvoiceEditor editor;
    Invoice &record; ///< the editor's
};

bool useCustomer(State &state, const Customer &customer)
{
    state.editor.useCustomer(customer);
    return true;
}

bool customerById(CommandContext &context, const QString &key, const QString &value, State &state)
{
    int id = 0;
    Customer customer;
    return context.values.parseIdValue(key, value, context.lastSaved.customer, id) &&
           context.finder.findCustomerById(id, &customer) && useCustomer(state, customer);
}

bool customerByNumber(CommandContext &context, const QString &key, const QString &value, State &state)
{
    int number = 0;
    Customer customer;
    return context.values.parseIntValue(key, value, number) && context.finder.findCustomerByNumber(number, &customer) &&
           useCustomer(state, customer);
}

bool customerByName(CommandContext &context, const QString &, const QString &value, State &state)
{
    Customer customer;
    return context.finder.findCustomerByName(value, &customer) && useCustomer(state, customer);
}

bool findById(CommandContext &context, const QString &key, const QString &value, State &state)
{
    int id = 0;
    Invoice invoice;
    return context.values.parseIntValue(key, value, id) && context.finder.findInvoiceById(id, &invoice) &&
           state.editor.edit(invoice);
}

bool findByNumber(CommandContext &context, const QString &key, const QString &value, State &state)
{
    int number = 0;
    Invoice invoice;
    return context.values.parseIntValue(key, value, number) && context.finder.findInvoiceByNumber(number, &invoice) &&
           state.editor.edit(invoice);
}

bool number(CommandContext &context, const QString &key, const QString &value, State &state)
{
    int number = 0;
    if (!context.values.parseIntValue(key, value, number))
        return false;
    state.editor.setNumber(number);
    return true;
}

bool paymentTerms(CommandContext &, const QString &, const QString &value, State &state)
{
    return state.editor.setPaymentTerms(value);
}

bool date(CommandContext &context, const QString &key, const QString &value, State &state)
{
    QDate date;
    return context.values.parseDateValue(key, value, date) && state.editor.setDate(date);
}

constexpr Parameter<State> parameters[] = {
    {"type", Parameters::integer<&Invoice::type>},
    {"number", number},
    {"date", date},
    {"dueDate", Parameters::date<&Invoice::dueDate>},
    {"deliveryDate", Parameters::date<&Invoice::deliveryDate>},
    {"paymentTerms", paymentTerms},
    {"delivery", Parameters::text<&Invoice::delivery>},
    {"buyerRef", Parameters::text<&Invoice::buyerRef>},
    {"sellerRef", Parameters::text<&Invoice::sellerRef>},
    {"interestOnArrears", Parameters::decimal<&Invoice::interestOnArrears, Constants::percentageFractionDigits>},
    {"referenceNumber", Parameters::referenceNumber<&Invoice::referenceNumber>},
    {"findCustomerById", customerById},
    {"findCustomerByNumber", customerByNumber},
    {"findCustomerByName", customerByName},
    {"findByInvoiceId", findById, true},
    {"findByNumber", findByNumber, true},
};

bool saveInvoice(CommandContext &context, const ParameterList &words, SaveCommandMode mode, Invoice &saved)
{
    WriteTransaction transaction(context.session);
    if (!transaction.hasBegun())
        return false;
    State state(context);
    if (!state.editor.begin() || !applyParameters(context, words, parameters, mode, state))
        return false;
    if (mode == SaveCommandMode::edit && !state.editor.isStored())
        return context.status.fail(
            ExitCode::badData,
            CommandContext::tr("Toinen parametreista findByInvoiceId tai findByNumber on pakollinen"));
    if (!state.editor.save())
        return false;
    saved = state.record;
    return transaction.commit();
}

struct Search {
    InvoiceCriteria criteria;
    bool invoiceItems = false;
    bool payments = false;
};

bool parseSearch(CommandContext &context, const ParameterList &words, Search &search)
{
    for (const auto &[key, value] : words) {
        const int applied = context.criteria.parseInvoiceCriteriaParam(key, value, &search.criteria);
        if (applied < 0)
            return false;
        if (applied > 0)
            continue;
        if (key == QLatin1String("invoiceItems"))
            search.invoiceItems = true;
        else if (key == QLatin1String("payments"))
            search.payments = true;
        else
            return context.status.failUnknownParameter(key);
    }
    return true;
}

/** Reads all rows of a search, grouped by their invoice. @return false when the reading fails on the way */
template <class Record>
bool readGrouped(Query *query, void (Query::*read)(Record *) const, QHash<int, QVector<Record>> &groups)
{
    while (query->next()) {
        Record record;
        (query->*read)(&record);
        groups[record.invoiceId].append(record);
    }
    return !query->hasReadError();
}

void findInvoices(CommandContext &context, const Search &search)
{
    Query *query = context.session.query();
    const ReadTransaction transaction(context.session);
    if (!transaction.hasBegun())
        return;
    QHash<int, QVector<InvoiceItem>> items;
    QHash<int, QVector<Payment>> payments;
    const PaymentCriteria allPayments;
    const bool fetched = (!search.invoiceItems || (query->fetchInvoiceItems(&search.criteria) &&
                                                   readGrouped<InvoiceItem>(query, &Query::invoiceItem, items))) &&
                         (!search.payments || (query->fetchPayments(&allPayments, &search.criteria) &&
                                               readGrouped<Payment>(query, &Query::payment, payments))) &&
                         query->fetchInvoiceDetails(&search.criteria);
    if (!fetched) {
        context.session.failQuery();
        return;
    }
    // Invoices are written as they are read, however many there are.
    context.response.startResponse(QStringLiteral("OK"));
    Invoice invoice;
    while (query->nextInvoice()) {
        query->invoiceDetails(&invoice);
        RecordPrinter::printInvoice(context.response, invoice);
        for (const InvoiceItem &item : items.value(invoice.id))
            RecordPrinter::printInvoiceItem(context.response, item);
        for (const Payment &payment : payments.value(invoice.id))
            RecordPrinter::printPayment(context.response, payment);
    }
    endFound(context);
}

struct InvoiceSearch {
    using Search = ::Search;
    static constexpr auto parse = parseSearch;
    static constexpr auto find = findInvoices;

    static bool restricts(const Query &query, const Search &search)
    {
        QString sql;
        QVariantList params;
        return query.buildInvoiceWhereClause(&search.criteria, sql, params, QString(), QStringLiteral(" WHERE "));
    }

    static bool readIds(Query &query, const Search &search, QVector<int> &ids)
    {
        if (!query.fetchInvoiceDetails(&search.criteria))
            return false;
        while (query.nextInvoice()) {
            Invoice invoice;
            query.invoiceDetails(&invoice);
            ids.append(invoice.id);
        }
        return true;
    }

    static bool remove(CommandContext &context, int id) { return RecordEditing::removeInvoice(context, id); }
};

} // namespace

void parseSaveInvoiceCommand(CommandContext &context, QStringList &args, SaveCommandMode mode)
{
    if (!context.session.ensureOpen())
        return;
    Invoice invoice;
    if (!saveInvoice(context, parseParameters(args), mode, invoice))
        return;
    context.lastSaved.invoice = invoice.id;
    context.response.startResponse(QStringLiteral("OK"));
    RecordPrinter::printInvoice(context.response, invoice);
    context.response.endResponse();
}

void parseFindInvoicesCommand(CommandContext &context, QStringList &args, FindCommandMode mode)
{
    runSearchCommand<InvoiceSearch>(context, args, mode);
}

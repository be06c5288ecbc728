#include "invoicecommands.h"

#include "constants.h"
#include "customer.h"
#include "invoice.h"
#include "invoicecriteria.h"
#include "invoiceitem.h"
#include "parametertable.h"
#include "payment.h"
#include "paymentcriteria.h"
#include "query.h"
#include "readtransaction.h"
#include "recordprinter.h"
#include "searchcommand.h"
#include "settings.h"
#include "templatestringhelper.h"
#include "writetransaction.h"

#include <QHash>
#include <QVector>

#include <limits>

namespace {

struct State {
    Invoice record;
    Customer customer;  ///< the invoice's, empty while not known
    bool found = false; ///< an existing invoice was looked up
};

/** Fills the reference number and the notice texts of the invoice as the settings have them. */
void updateReferenceNumber(CommandContext &context, Invoice *invoice, const Customer *customer)
{
    Registry &registry = context.session.registry();
    const TemplateStringHelper helper(&registry);
    const Settings *settings = registry.settings();
    invoice->referenceNumber = customer->referenceNumber;
    if (invoice->referenceNumber.isEmpty()) {
        const QString base = helper.substituteVariables(settings->referenceNumberTemplate(), invoice, customer);
        invoice->referenceNumber = Invoice::appendCheckDigitToReferenceNumber(base);
    }
    const struct {
        const char *setting, *property;
    } notices[] = {{"invoiceForm/noticeText1", "t1"}, {"invoiceForm/noticeText2", "t2"}};
    for (const auto &notice : notices) {
        const QString form = settings->property(QLatin1String(notice.setting)).toString();
        invoice->setPropertyIfNotEmpty(QLatin1String(notice.property),
                                       helper.substituteVariables(form, invoice, customer));
    }
}

bool useCustomer(CommandContext &context, State &state)
{
    state.record.customerId = state.customer.id;
    updateReferenceNumber(context, &state.record, &state.customer);
    return true;
}

bool customerById(CommandContext &context, const QString &key, const QString &value, State &state)
{
    int id = 0;
    return context.values.parseIdValue(key, value, context.lastSaved.customer, id) &&
           context.finder.findCustomerById(id, &state.customer) && useCustomer(context, state);
}

bool customerByNumber(CommandContext &context, const QString &key, const QString &value, State &state)
{
    int number = 0;
    return context.values.parseIntValue(key, value, number) &&
           context.finder.findCustomerByNumber(number, &state.customer) && useCustomer(context, state);
}

bool customerByName(CommandContext &context, const QString &, const QString &value, State &state)
{
    return context.finder.findCustomerByName(value, &state.customer) && useCustomer(context, state);
}

/** The customer of a looked-up invoice, for the reference number that a new number gives it. */
bool loadCustomer(CommandContext &context, State &state)
{
    state.found = true;
    if (!context.session.fetchCustomers({state.record.customerId}))
        return false;
    bool known = false;
    const Customer *customer = context.session.registry().customerById(state.record.customerId, known);
    state.customer = known ? *customer : Customer();
    return true;
}

bool findById(CommandContext &context, const QString &key, const QString &value, State &state)
{
    int id = 0;
    return context.values.parseIntValue(key, value, id) && context.finder.findInvoiceById(id, &state.record) &&
           loadCustomer(context, state);
}

bool findByNumber(CommandContext &context, const QString &key, const QString &value, State &state)
{
    int number = 0;
    return context.values.parseIntValue(key, value, number) &&
           context.finder.findInvoiceByNumber(number, &state.record) && loadCustomer(context, state);
}

bool number(CommandContext &context, const QString &key, const QString &value, State &state)
{
    if (!context.values.parseIntValue(key, value, state.record.number))
        return false;
    updateReferenceNumber(context, &state.record, &state.customer);
    return true;
}

bool checkTerms(CommandContext &context, const Invoice &invoice)
{
    return invoice.canBeDue() || context.values.failNumber(QStringLiteral("paymentTerms"), invoice.paymentTerms);
}

bool paymentTerms(CommandContext &context, const QString &, const QString &value, State &state)
{
    state.record.paymentTerms = value;
    return checkTerms(context, state.record);
}

bool date(CommandContext &context, const QString &key, const QString &value, State &state)
{
    if (!context.values.parseDateValue(key, value, state.record.date))
        return false;
    state.record.dueDate = state.record.calculateDueDate(); // with the payment terms known so far
    return checkTerms(context, state.record);
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

/** What a new invoice needs and was not given. */
bool completeNewInvoice(CommandContext &context, State &state)
{
    Invoice &invoice = state.record;
    if (!invoice.dueDate.isValid())
        invoice.dueDate = invoice.calculateDueDate();
    if (invoice.customerId < 0)
        return context.status.fail(ExitCode::badData,
                                   CommandContext::tr("Jokin parametreista findCustomerById, findCustomerByNumber tai "
                                                      "findCustomerByName on pakollinen"));
    if (invoice.number == 0) {
        const int highest = context.session.query()->maxInvoiceNumber();
        if (!context.session.query()->lastError().isEmpty())
            return context.session.failQuery();
        if (highest == std::numeric_limits<int>::max())
            return context.status.fail(ExitCode::badData, CommandContext::tr("Seuraavaa laskunumeroa ei ole"));
        invoice.number = highest + 1;
        updateReferenceNumber(context, &invoice, &state.customer);
    }
    return true;
}

void applyDefaults(CommandContext &context, Invoice &invoice)
{
    const Settings *settings = context.session.registry().settings();
    invoice.date = QDate::currentDate();
    invoice.paymentTerms = settings->property(QStringLiteral("settings/paymentTerms")).toString();
    invoice.interestOnArrears = settings->property(QStringLiteral("settings/interestOnArrears")).toInt();
}

bool saveInvoice(CommandContext &context, const ParameterList &words, SaveCommandMode mode, Invoice &saved)
{
    WriteTransaction transaction(context.session);
    if (!transaction.hasBegun())
        return false;
    if (!context.session.fetch(CachedList::bankAccounts) || !context.session.fetch(CachedList::settings))
        return false;
    State state;
    applyDefaults(context, state.record);
    if (!applyParameters(context, words, parameters, mode, state))
        return false;
    if (mode == SaveCommandMode::edit && !state.found)
        return context.status.fail(
            ExitCode::badData,
            CommandContext::tr("Toinen parametreista findByInvoiceId tai findByNumber on pakollinen"));
    if (mode == SaveCommandMode::add && !completeNewInvoice(context, state))
        return false;
    context.diagnostics.printDebugMessage(CommandContext::tr("Tallennetaan laskun %1 tiedot").arg(state.record.number));
    if (!context.session.query()->saveInvoice(&state.record))
        return context.session.failQuery();
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

    static bool remove(Query &query, int id)
    {
        return query.deleteInvoiceItems(id) && query.deletePayments(id) && query.deleteInvoice(id);
    }
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

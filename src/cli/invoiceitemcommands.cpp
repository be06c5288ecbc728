#include "invoiceitemcommands.h"

#include "constants.h"
#include "invoice.h"
#include "invoiceitem.h"
#include "invoicelookup.h"
#include "parametertable.h"
#include "product.h"
#include "query.h"
#include "recordediting.h"
#include "recordprinter.h"
#include "writetransaction.h"

namespace {

struct State {
    InvoiceItem record;
    int earlierInvoiceId = -1; ///< of a looked-up row, which may be moved to another invoice
    bool found = false;
    bool hasInvoice = false;
    bool hasProduct = false;
};

bool useProduct(State &state, const Product &product)
{
    product.toInvoiceItem(&state.record);
    state.hasProduct = true;
    return true;
}

bool productById(CommandContext &context, const QString &key, const QString &value, State &state)
{
    int id = 0;
    Product product;
    return context.values.parseIdValue(key, value, context.lastSaved.product, id) &&
           context.finder.findProductById(id, &product) && useProduct(state, product);
}

bool productByNumber(CommandContext &context, const QString &, const QString &value, State &state)
{
    Product product;
    return context.finder.findProductByNumber(value, &product) && useProduct(state, product);
}

bool findById(CommandContext &context, const QString &key, const QString &value, State &state)
{
    int id = 0;
    state.found = context.values.parseIntValue(key, value, id) && context.finder.findInvoiceItemById(id, &state.record);
    state.earlierInvoiceId = state.record.invoiceId;
    return state.found;
}

template <auto setPrice> bool price(CommandContext &context, const QString &key, const QString &value, State &state)
{
    long long amount = 0;
    if (!context.values.parseDecimalNumberValue(key, value, Constants::amountFractionDigits, amount))
        return false;
    (state.record.*setPrice)(amount);
    return true;
}

constexpr Parameter<State> parameters[] = {
    {"quantity", Parameters::decimal<&InvoiceItem::quantity, Constants::quantityFractionDigits>},
    {"unitCode", Parameters::text<&InvoiceItem::unitCode>},
    {"text", Parameters::text<&InvoiceItem::text>},
    {"amountVatIncluded", price<&InvoiceItem::setAmountVatIncluded>},
    {"amountVatExcluded", price<&InvoiceItem::setAmountVatExcluded>},
    {"discount", Parameters::decimal<&InvoiceItem::discount, Constants::percentageFractionDigits>},
    {"findInvoiceById", InvoiceLookup::byId},
    {"findInvoiceByNumber", InvoiceLookup::byNumber},
    {"findProductById", productById},
    {"findProductByNumber", productByNumber},
    {"findInvoiceItemById", findById, true},
};

bool checkRequired(CommandContext &context, SaveCommandMode mode, const State &state)
{
    if (mode == SaveCommandMode::edit)
        return state.found || context.status.fail(ExitCode::badData,
                                                  CommandContext::tr("Parametri findInvoiceItemById on pakollinen"));
    if (!state.hasInvoice)
        return context.status.fail(
            ExitCode::badData,
            CommandContext::tr("Toinen parametreista findInvoiceById tai findInvoiceByNumber on pakollinen"));
    if (!state.hasProduct)
        return context.status.fail(
            ExitCode::badData,
            CommandContext::tr("Toinen parametreista findProductById tai findProductByNumber on pakollinen"));
    return true;
}

bool saveInvoiceItem(CommandContext &context, const ParameterList &words, SaveCommandMode mode, State &state)
{
    WriteTransaction transaction(context.session);
    if (!transaction.hasBegun() || !applyParameters(context, words, parameters, mode, state) ||
        !checkRequired(context, mode, state))
        return false;
    // The row stays saved when the totals cannot be brought up to date, as when its invoice is gone.
    const InvoiceTotals::Outcome outcome = RecordEditing::saveRow(context, state.record, state.earlierInvoiceId);
    if (outcome == InvoiceTotals::Outcome::tooLarge)
        return false;
    return transaction.commit() && outcome == InvoiceTotals::Outcome::updated;
}

} // namespace

void parseSaveInvoiceItemCommand(CommandContext &context, QStringList &args, SaveCommandMode mode)
{
    if (!context.session.ensureOpen())
        return;
    State state;
    if (!saveInvoiceItem(context, parseParameters(args), mode, state))
        return;
    context.response.startResponse(QStringLiteral("OK"));
    RecordPrinter::printInvoiceItem(context.response, state.record);
    context.response.endResponse();
}

void parseRemoveInvoiceItemCommand(CommandContext &context, QStringList &args)
{
    if (!context.session.ensureOpen())
        return;
    bool given = false;
    int id = 0;
    const ParameterList words = parseParameters(args);
    for (const auto &[key, value] : words) {
        if (key != QLatin1String("findByInvoiceItemId")) {
            context.status.failUnknownParameter(key);
            return;
        }
        if (!context.values.parseIdValue(key, value, context.lastSaved.invoiceItem, id))
            return;
        given = true;
    }
    if (!given) {
        context.status.fail(ExitCode::badData, CommandContext::tr("Parametri findByInvoiceItemId on pakollinen"));
        return;
    }
    WriteTransaction transaction(context.session);
    Query *query = context.session.query();
    if (!transaction.hasBegun())
        return;
    if (!query->fetchInvoiceItem(id)) {
        context.session.failQuery();
        return;
    }
    const int count = query->next() ? 1 : 0;
    query->finish();
    if (count > 0 && !query->deleteInvoiceItem(id)) {
        context.session.failQuery();
        return;
    }
    if (!transaction.commit())
        return;
    context.response.startResponse(QStringLiteral("OK"));
    context.response.printNumRemoved(count);
    context.response.endResponse();
}

#include "productcommands.h"

#include "constants.h"
#include "listcommands.h"
#include "product.h"
#include "recordediting.h"
#include "recordprinter.h"

#include <limits>
#include <optional>

namespace {

struct ProductKind {
    using Record = Product;

    struct State {
        Product record;
        bool found = false;
    };

    struct Search {
        std::optional<int> id;
        std::optional<QString> number, name;
    };

    static constexpr CachedList list = CachedList::products;
    static constexpr auto print = &RecordPrinter::printProduct;

    static bool findById(CommandContext &context, const QString &key, const QString &value, State &state)
    {
        int id = 0;
        state.found = context.values.parseIntValue(key, value, id) && context.finder.findProductById(id, &state.record);
        return state.found;
    }

    static bool findByNumber(CommandContext &context, const QString &, const QString &value, State &state)
    {
        state.found = context.finder.findProductByNumber(value, &state.record);
        return state.found;
    }

    static bool findByName(CommandContext &context, const QString &, const QString &value, State &state)
    {
        state.found = context.finder.findProductByName(value, &state.record);
        return state.found;
    }

    template <auto setPrice>
    static bool price(CommandContext &context, const QString &key, const QString &value, State &state)
    {
        long long amount = 0;
        if (!context.values.parseDecimalNumberValue(key, value, Constants::amountFractionDigits, amount))
            return false;
        // A price is read back through 32 bits: refuse what would come back as another price.
        if (amount > std::numeric_limits<int>::max() || amount < std::numeric_limits<int>::min())
            return context.values.failNumber(key, value);
        (state.record.*setPrice)(amount);
        return true;
    }

    static constexpr Parameter<State> parameters[] = {
        {"number", Parameters::text<&Product::number>},
        {"name", Parameters::text<&Product::name>},
        {"unitCode", Parameters::text<&Product::unitCode>},
        {"category", Parameters::text<&Product::category>},
        {"amountVatIncluded", price<&Product::setAmountVatIncluded>},
        {"amountVatExcluded", price<&Product::setAmountVatExcluded>},
        {"vatRate", Parameters::decimal<&Product::vatRate, Constants::percentageFractionDigits>},
        {"findByProductId", findById, true},
        {"findByNumber", findByNumber, true},
        {"findByName", findByName, true},
    };

    static bool searchId(CommandContext &context, const QString &key, const QString &value, Search &search)
    {
        return context.values.parseIntValue(key, value, search.id.emplace());
    }

    template <auto field>
    static bool searchText(CommandContext &, const QString &, const QString &value, Search &search)
    {
        search.*field = value;
        return true;
    }

    static constexpr Parameter<Search> searchKeys[] = {
        {"findByProductId", searchId},
        {"findByNumber", searchText<&Search::number>},
        {"findByName", searchText<&Search::name>},
    };

    static const QList<Product *> &records(const Registry &registry) { return registry.products(); }

    static bool matches(const Product &product, const Search &search)
    {
        return (!search.id || product.id == *search.id) && (!search.number || product.number == *search.number) &&
               (!search.name || product.name == *search.name);
    }

    static QString lookupMissing()
    {
        return CommandContext::tr("Jokin parametreista findByProductId, findByNumber tai findByName on pakollinen");
    }

    static QString requiredMissing(const Product &product)
    {
        if (product.number.isEmpty())
            return CommandContext::tr("Numero puuttuu");
        return product.name.isEmpty() ? CommandContext::tr("Nimi puuttuu") : QString();
    }

    static QString savingMessage(const Product &product)
    {
        return CommandContext::tr("Tallennetaan tuotteen %1 tiedot").arg(product.name);
    }

    static bool complete(CommandContext &, Product &) { return true; }

    static bool removeRecord(CommandContext &context, const Product &product)
    {
        return RecordEditing::remove(context, product);
    }
};

} // namespace

void parseSaveProductCommand(CommandContext &context, QStringList &args, SaveCommandMode mode)
{
    saveListRecord<ProductKind>(context, args, mode);
}

void parseFindProductsCommand(CommandContext &context, QStringList &args, FindCommandMode mode)
{
    findListRecords<ProductKind>(context, args, mode);
}

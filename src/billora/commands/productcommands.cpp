#include "commandgroups.h"

#include "query.h"
#include "recordcommands.h"
#include "recordlist.h"
#include "records.h"
#include "references.h"
#include "sharedoptions.h"

namespace {

constexpr Option listOptions[] = {
    {"category", ValueType::text, TEXT("tuoteryhmä")},
};

bool list(Task &task)
{
    if (!task.context().session.fetch(CachedList::products))
        return false;
    QVector<ProductRecord> records;
    const QList<Product *> &products = task.session.registry().products();
    for (const Product *product : products) {
        if (!task.arguments.has("category") || product->category == task.arguments.text("category"))
            records.append({*product});
    }
    return RecordList::answer(task, productTable, records);
}

constexpr Option words[] = {
    {"product", ValueType::product, TEXT("tuote"), Option::plainWord | Option::required | Option::onlyWord},
};

bool show(Task &task)
{
    ProductRecord record;
    return References::product(task, QStringLiteral("product"), task.arguments.text("product"), record.product) &&
           task.answer.show(productTable, &record, task.session);
}

struct Kind {
    using Record = ProductRecord;
    static constexpr auto part = &ProductRecord::product;
    static constexpr const RecordTable &table = productTable;
    static constexpr char word[] = "product";
    static constexpr auto find = &References::product;
    static constexpr char added[] = TEXT("Tuote %1 lisätty: %2");
    static constexpr char changed[] = TEXT("Tuote %1 muutettu: %2");
    static constexpr char removing[] = TEXT("Poistetaanko tuote %1?");

    static bool check(Task &task, const Product &product, const Product *earlier)
    {
        const bool hasPrice = task.arguments.has("price") || task.arguments.has("priceWithVat");
        const bool isImport = task.arguments.has("file");
        if (!earlier && !hasPrice && !isImport)
            return task.fail(Problem::missingOption, text(TEXT("valinta --price tai --price-with-vat puuttuu")),
                             QStringLiteral("price"));
        if (earlier && earlier->number == product.number)
            return true;
        Query *query = task.context().session.query();
        if (!query->fetchProductsByNumber(product.number))
            return task.context().session.failQuery();
        bool isTaken = false;
        if (!query->readAll([&] { isTaken = true; }))
            return task.context().session.failQuery();
        return !isTaken || task.fail(Problem::exists, text(TEXT("tuotenumero on jo käytössä: %1")).arg(product.number),
                                     QStringLiteral("number"), product.number);
    }

    static bool findKnown(Task &task, const Arguments &fields, Product &product, bool &isKnown)
    {
        Query *query = task.context().session.query();
        const auto take = [&] {
            query->product(&product);
            isKnown = true;
        };
        return (query->fetchProductsByNumber(fields.text("number")) && query->readAll(take)) ||
               task.context().session.failQuery();
    }

    static bool complete(Task &, ProductRecord &) { return true; }

    static QString nextStep(const Product &) { return QString(); }
    static bool remark(Task &, const QVector<ProductRecord> &, QString &) { return true; }
};

constexpr Option removeWords[] = {
    {"product", ValueType::product, TEXT("tuotteet"),
     Option::plainWord | Option::required | Option::onlyWord | Option::list},
};

constexpr Command commands[] = {
    {"product list",
     TEXT("luettelo tuotteista"),
     list,
     Command::lists | Command::companies,
     &productTable,
     nullptr,
     {group(searchOptions), group(listOptions), group(fullOption)},
     "product list\n"
     "product list --category Kirjat --sort price"},
    {"product show", TEXT("tuotteen tiedot"), show, 0, &productTable, nullptr, {group(words)}, "product show S1"},
    {"product add",
     TEXT("uusi tuote"),
     RecordCommands::add<Kind>,
     Command::writes | Command::adds | Command::keyed,
     &productTable,
     &productTable,
     {},
     "product add S1 \"Kovakantinen sidonta\" --price 14,50 --vat-rate 25,5 --unit kpl"},
    {"product edit",
     TEXT("muuttaa tuotteen tietoja; ilman kenttiä muokkaimessa"),
     RecordCommands::edit<Kind>,
     Command::writes,
     &productTable,
     &productTable,
     {group(words)},
     "product edit S1 --price 15,20"},
    {"product remove",
     TEXT("poistaa tuotteita; laskujen rivit jäävät"),
     RecordCommands::remove<Kind>,
     Command::writes | Command::destructive,
     nullptr,
     nullptr,
     {group(removeWords)},
     "product remove S1 --yes"},
    {"product import",
     TEXT("tuotteet CSV-tiedostosta, kaikki tai ei mitään"),
     RecordCommands::importFile<Kind>,
     Command::writes | Command::keyed,
     nullptr,
     nullptr,
     {group(importWords)},
     "product import tuotteet.csv --update"},
};

} // namespace

CommandGroup productCommands() { return commandGroup(commands); }

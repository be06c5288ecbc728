#include "productlistprintmodel.h"

#include "csvexport.h"
#include "product.h"
#include "registry.h"
#include "settings.h"
#include "valuepath.h"

#include <algorithm>

namespace {

using Model = ProductListPrintModel;
using ValuePath::field;
using ValuePath::Key;

template <auto member> bool isLess(const Product *a, const Product *b) { return a->*member < b->*member; }

using IsLess = bool (*)(const Product *, const Product *);
const IsLess comparators[] = {
    // in the order of Model::SortOrder
    isLess<&Product::number>,
    isLess<&Product::name>,
    isLess<&Product::unitCode>,
    [](const Product *a, const Product *b) { return a->amountVatIncluded() < b->amountVatIncluded(); },
    isLess<&Product::category>,
};

const Key<const Product &> productKeys[] = {
    {"number", field<&Product::number>},
    {"name", field<&Product::name>},
    {"unitCode", field<&Product::unitCode>},
    {"category", field<&Product::category>},
    {"amount", [](const Product &p, QStringList &) { return QVariant(p.amountVatIncluded()); }},
    {"amountVatExcluded", [](const Product &p, QStringList &) { return QVariant(p.amountVatExcluded()); }},
    {"vatRate", field<&Product::vatRate>},
};

QVariant productsValue(const Model &model, QStringList &path)
{
    return ValuePath::resolveList(model.products().size(), path, [&model](int index, QStringList &rest) {
        const Product &product = *model.products().at(index);
        return ValuePath::resolve(productKeys, rest, product);
    });
}

const Key<const Model &> topKeys[] = {
    {"products", productsValue},
    {"name", [](const Model &m, QStringList &) { return QVariant(m.registry().settings()->sellerName); }},
};

struct Line {
    const CsvExport &out;
    const Product &product;
};

template <QString Product::*member> QString text(const Line &line) { return line.product.*member; }

const CsvColumn<Line> columns[] = {
    {QT_TRANSLATE_NOOP("ProductListPrintModel", "Nro"), text<&Product::number>},
    {QT_TRANSLATE_NOOP("ProductListPrintModel", "Nimi"), text<&Product::name>},
    {QT_TRANSLATE_NOOP("ProductListPrintModel", "Yksikkö"), text<&Product::unitCode>},
    {QT_TRANSLATE_NOOP("ProductListPrintModel", "Veroton"),
     [](const Line &l) { return l.out.price(l.product.amountVatExcluded()); }},
    {QT_TRANSLATE_NOOP("ProductListPrintModel", "Verollinen"),
     [](const Line &l) { return l.out.price(l.product.amountVatIncluded()); }},
    {QT_TRANSLATE_NOOP("ProductListPrintModel", "ALV-%"),
     [](const Line &l) { return l.out.percentage(l.product.vatRate); }},
    {QT_TRANSLATE_NOOP("ProductListPrintModel", "Tuoteryhmä"), text<&Product::category>},
};

} // namespace

ProductListPrintModel::ProductListPrintModel(Registry *registry, QObject *parent)
    : PrintModel(parent), m_registry(registry)
{
}

ProductListPrintModel::~ProductListPrintModel() = default;

void ProductListPrintModel::copyProductsFromRegistry()
{
    for (int i = 0; i < m_registry->productCount(); ++i)
        m_products.append(m_registry->product(i));
}

void ProductListPrintModel::sort(int order)
{
    if (order >= 0 && order <= byCategory)
        std::stable_sort(m_products.begin(), m_products.end(), comparators[order]);
}

QVariant ProductListPrintModel::value(QStringList &path)
{
    const Model &self = *this;
    return ValuePath::resolve(topKeys, path, self);
}

bool ProductListPrintModel::exportToCSV(const QString &fileName, const QString &format)
{
    return CsvExport::save(fileName, format, m_lastError, [this](CsvExport &out) {
        writeTitles<Model>(out, columns);
        out.endLine();
        for (const Product *product : qAsConst(m_products)) {
            writeValues(out, columns, Line{out, *product});
            out.endLine();
        }
    });
}

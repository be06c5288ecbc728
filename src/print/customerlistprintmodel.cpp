#include "customerlistprintmodel.h"

#include "csvexport.h"
#include "customer.h"
#include "registry.h"
#include "settings.h"
#include "valuepath.h"

#include <algorithm>

namespace {

using Model = CustomerListPrintModel;
using ValuePath::field;
using ValuePath::Key;

template <auto member> bool isLess(const Customer *a, const Customer *b) { return a->*member < b->*member; }

using IsLess = bool (*)(const Customer *, const Customer *);
constexpr IsLess comparators[] = {
    // in the order of Model::SortOrder
    isLess<&Customer::number>,   isLess<&Customer::name>,    isLess<&Customer::streetName>, isLess<&Customer::postCode>,
    isLess<&Customer::townName>, isLess<&Customer::country>, isLess<&Customer::contact>,
};

const Key<const Customer &> customerKeys[] = {
    {"number", field<&Customer::number>},
    {"name", field<&Customer::name>},
    {"streetName", field<&Customer::streetName>},
    {"postCode", field<&Customer::postCode>},
    {"townName", field<&Customer::townName>},
    {"country", field<&Customer::country>},
    {"contact", field<&Customer::contact>},
    {"vatNumber", field<&Customer::vatNumber>},
    {"emailAddress", field<&Customer::emailAddress>},
    {"phoneNumber", field<&Customer::phoneNumber>},
};

QVariant customersValue(const Model &model, QStringList &path)
{
    return ValuePath::resolveList(model.customers().size(), path, [&model](int index, QStringList &rest) {
        const Customer &customer = *model.customers().at(index);
        return ValuePath::resolve(customerKeys, rest, customer);
    });
}

const Key<const Model &> topKeys[] = {
    {"customers", customersValue},
    {"name", [](const Model &m, QStringList &) { return QVariant(m.registry().settings()->sellerName); }},
};

template <QString Customer::*member> QString text(const Customer &customer) { return customer.*member; }

QString property(const Customer &customer, const char *key) { return customer.property(QLatin1String(key)).toString(); }

const CsvColumn<Customer> columns[] = {
    {QT_TRANSLATE_NOOP("CustomerListPrintModel", "Nro"), [](const Customer &c) { return QString::number(c.number); }},
    {QT_TRANSLATE_NOOP("CustomerListPrintModel", "Nimi"), text<&Customer::name>},
    {QT_TRANSLATE_NOOP("CustomerListPrintModel", "Lähiosoite"), text<&Customer::streetName>},
    {QT_TRANSLATE_NOOP("CustomerListPrintModel", "Postinumero"), text<&Customer::postCode>},
    {QT_TRANSLATE_NOOP("CustomerListPrintModel", "Postitoimipaikka"), text<&Customer::townName>},
    {QT_TRANSLATE_NOOP("CustomerListPrintModel", "Maa"), text<&Customer::country>},
    {QT_TRANSLATE_NOOP("CustomerListPrintModel", "Yhteyshenkilö"), text<&Customer::contact>},
    {QT_TRANSLATE_NOOP("CustomerListPrintModel", "Sähköpostiosoite"), text<&Customer::emailAddress>},
    {QT_TRANSLATE_NOOP("CustomerListPrintModel", "Puhelinnumero"), text<&Customer::phoneNumber>},
    {QT_TRANSLATE_NOOP("CustomerListPrintModel", "VAT-numero"), text<&Customer::vatNumber>},
    {QT_TRANSLATE_NOOP("CustomerListPrintModel", "Viitenumero"), text<&Customer::referenceNumber>},
    {QT_TRANSLATE_NOOP("CustomerListPrintModel", "Maksuehdot"), text<&Customer::paymentTerms>},
    {QT_TRANSLATE_NOOP("CustomerListPrintModel", "Verkkolaskuvälittäjän tunnus"),
     [](const Customer &c) { return property(c, "e1"); }},
    {QT_TRANSLATE_NOOP("CustomerListPrintModel", "Verkkolaskuosoite"),
     [](const Customer &c) { return property(c, "e2"); }},
    {QT_TRANSLATE_NOOP("CustomerListPrintModel", "Oma 1"), [](const Customer &c) { return property(c, "c1"); }},
    {QT_TRANSLATE_NOOP("CustomerListPrintModel", "Oma 2"), [](const Customer &c) { return property(c, "c2"); }},
};

} // namespace

CustomerListPrintModel::CustomerListPrintModel(Registry *registry, QObject *parent)
    : PrintModel(parent), m_registry(registry)
{
}

CustomerListPrintModel::~CustomerListPrintModel() = default;

void CustomerListPrintModel::copyCustomersFromRegistry()
{
    for (int i = 0; i < m_registry->customerCount(); ++i)
        m_customers.append(m_registry->customer(i));
}

void CustomerListPrintModel::sort(int order)
{
    if (order >= 0 && order <= byContact)
        std::stable_sort(m_customers.begin(), m_customers.end(), comparators[order]);
}

QVariant CustomerListPrintModel::value(QStringList &path)
{
    const Model &self = *this;
    return ValuePath::resolve(topKeys, path, self);
}

bool CustomerListPrintModel::exportToCSV(const QString &fileName, const QString &format)
{
    return CsvExport::save(fileName, format, m_lastError, [this](CsvExport &out) {
        writeTitles<Model>(out, columns);
        out.endLine();
        for (const Customer *customer : qAsConst(m_customers)) {
            writeValues(out, columns, *customer);
            out.endLine();
        }
    });
}

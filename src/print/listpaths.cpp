#include "listpaths.h"

#include "customer.h"
#include "registry.h"
#include "valuepath.h"

namespace {

using ValuePath::field;

const ValuePath::Key<const Customer &> customerKeys[] = {
    {"number", field<&Customer::number>},         {"name", field<&Customer::name>},
    {"streetName", field<&Customer::streetName>}, {"postCode", field<&Customer::postCode>},
    {"townName", field<&Customer::townName>},     {"country", field<&Customer::country>},
};

} // namespace

QVariant ListPaths::customer(const Registry &registry, int customerId, QStringList &path)
{
    bool found = false;
    const Customer *customer = registry.customerById(customerId, found);
    return found ? ValuePath::resolve(customerKeys, path, *customer) : QVariant();
}

QVariant ListPaths::texts(const QStringList &texts, QStringList &path)
{
    return ValuePath::resolveList(texts.size(), path,
                                  [&texts](int index, QStringList &) { return QVariant(texts.at(index)); });
}

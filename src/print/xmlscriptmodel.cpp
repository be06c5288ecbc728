#include "xmlscriptmodel.h"

#include "customer.h"
#include "invoicepaths.h"
#include "valuepath.h"

namespace {

QVariant firstInvoice(InvoicePrintModel &model, QStringList &path)
{
    return model.invoiceCount() > 0 ? InvoicePaths::invoice(model, *model.invoice(0), path) : QVariant();
}

constexpr ValuePath::Key<InvoicePrintModel &> topKeys[] = {
    {"invoice", firstInvoice},
    {"seller", InvoicePaths::seller},
    {"settings", InvoicePaths::settings},
};

} // namespace

XmlScriptModel::XmlScriptModel(Registry *registry, QObject *parent) : InvoicePrintModel(registry, parent) {}

XmlScriptModel::~XmlScriptModel() = default;

QVariant XmlScriptModel::value(QStringList &path)
{
    InvoicePrintModel &self = *this;
    return ValuePath::resolve(topKeys, path, self);
}

QString XmlScriptModel::customerVatNumber(Customer *customer) const
{
    return Customer::convertBusinessIdToVatNumber(customer->vatNumber);
}

QString XmlScriptModel::customerBusinessId(Customer *customer) const
{
    return Customer::convertVatNumberToBusinessId(customer->vatNumber);
}

bool XmlScriptModel::customerHasVatNumber(Customer *customer) const { return !customerVatNumber(customer).isEmpty(); }

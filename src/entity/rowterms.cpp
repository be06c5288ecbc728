#include "rowterms.h"

#include "invoice.h"
#include "invoiceitem.h"

namespace {

const QString all = QStringLiteral("row.");

QString prefixOf(int rowId) { return all + QString::number(rowId) + QLatin1Char('.'); }

} // namespace

QString RowTerms::value(const Invoice &invoice, int rowId, const char *key)
{
    return invoice.property(prefixOf(rowId) + QLatin1String(key)).toString();
}

void RowTerms::read(const Invoice &invoice, InvoiceItem &row)
{
    const QString prefix = prefixOf(row.id);
    const auto end = invoice.properties.end();
    for (auto it = invoice.properties.lowerBound(prefix); it != end && it.key().startsWith(prefix); ++it)
        row.setProperty(it.key().mid(prefix.size()), it.value());
}

void RowTerms::write(Invoice &invoice, const InvoiceItem &row, bool isNew)
{
    const QString prefix = prefixOf(row.id);
    if (isNew)
        invoice.removeProperties(prefix);
    for (auto it = row.properties.begin(); it != row.properties.end(); ++it)
        invoice.setPropertyIfNotEmpty(prefix + it.key(), it.value().toString());
}

void RowTerms::keepOnly(Invoice &invoice, const QSet<int> &rowIds)
{
    auto it = invoice.properties.lowerBound(all);
    while (it != invoice.properties.end() && it.key().startsWith(all)) {
        const bool isKept = rowIds.contains(it.key().section(QLatin1Char('.'), 1, 1).toInt());
        it = isKept ? it + 1 : invoice.properties.erase(it);
    }
}

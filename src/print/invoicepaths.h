#ifndef INVOICEPATHS_H
#define INVOICEPATHS_H

#include <QStringList>
#include <QVariant>

class Invoice;
class InvoicePrintModel;
class Vat;

/** The value paths of invoice documents, one table per level. */
namespace InvoicePaths {

/** Resolves from the top: `invoices`, `seller`, `settings`. */
QVariant value(InvoicePrintModel &model, QStringList &path);

/** Resolves below an invoice, the seller and the settings. */
/** Customers that the registry does not know give invalid values. */
QVariant invoice(InvoicePrintModel &model, const Invoice &invoice, QStringList &path);
QVariant seller(InvoicePrintModel &model, QStringList &path);
QVariant settings(InvoicePrintModel &model, QStringList &path); ///< of the database, not of the settings file

/** Resolves below `vat`: the sums of each rate, in cents. */
QVariant vat(const Vat &vat, QStringList &path);

/** Drops the protocol of a web address, and a closing slash when it is the only one left. */
QString shortWebAddress(const QString &address);

} // namespace InvoicePaths

#endif

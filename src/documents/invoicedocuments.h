#ifndef INVOICEDOCUMENTS_H
#define INVOICEDOCUMENTS_H

#include "exportinvoices.h"

/** Makes the documents of invoices, see ExportInvoices. */
namespace InvoiceDocuments {

/** As ExportInvoices has them. */
[[nodiscard]] bool check(UseCaseContext &context, const InvoiceCriteria &criteria, std::optional<PrintFormat> format,
                         QVector<ExportInvoices::Checked> &checked);
[[nodiscard]] bool make(UseCaseContext &context, const ExportInvoices::Request &request,
                        QVector<ExportInvoices::File> &files);

} // namespace InvoiceDocuments

#endif

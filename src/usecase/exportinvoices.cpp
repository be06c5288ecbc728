#include "exportinvoices.h"

#include "documentmaker.h"
#include "usecasecontext.h"

bool ExportInvoices::check(UseCaseContext &context, const InvoiceCriteria &criteria, std::optional<PrintFormat> format,
                           QVector<Checked> &checked)
{
    DocumentMaker *maker = DocumentMaker::get(context.listener, false);
    return maker && maker->checkInvoices(context, criteria, format, checked);
}

bool ExportInvoices::run(UseCaseContext &context, const Request &request, QVector<File> &files)
{
    DocumentMaker *maker = DocumentMaker::get(context.listener, true);
    return maker && maker->exportInvoices(context, request, files);
}

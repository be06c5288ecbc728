#ifndef EXPORTINVOICES_H
#define EXPORTINVOICES_H

#include "einvoicerules.h"
#include "invoicecriteria.h"
#include "printformat.h"

#include <QVector>

#include <functional>
#include <optional>

struct UseCaseContext;

/** Writes invoices, one PDF or Finvoice file each, or all in one CSV file. */
namespace ExportInvoices {

struct Request {
    InvoiceCriteria criteria;      ///< none: all invoices; files are written in the order of the numbers
    QString fileName;              ///< a template, see ExportFileName; empty: lasku-$i.pdf, lasku-$i.xml, laskut.csv
    std::optional<QString> script; ///< the name of an invoice layout; else the one that the settings name
    std::optional<PrintFormat> format;          ///< else by the file name
    QString csvDelimiter = QStringLiteral(","); ///< one character
    bool writeSoap = false;                     ///< Finvoice in its transport envelope
    int printType = 0;                          ///< a TemplateStringHelper::Kind; 0: each invoice's own type
    bool makesFolders = false;                  ///< of the file names
    bool isTrial = false;                       ///< tells the files and writes none
    /** Called after each document. */
    std::function<void(int done, int total)> progress;
};

/** A file that was written. */
struct File {
    QString fileName;      ///< as written; of a trial, as it would be. Empty when errors were found
    int invoiceId = -1;    ///< -1: all invoices
    int invoiceNumber = 0; ///< 0: all invoices
    /** What the script threw while it wrote: text and line (Failure::scriptException); empty for none. */
    QStringList exception;
    /** Of an e-invoice: with an error among them nothing was written. */
    QVector<EInvoice::Finding> findings;
    PrintFormat format = pdfFormat; ///< never einvoiceFormat
    int typeCode = 0;               ///< see InvoicePrintModel::typeCode()
};

/** An invoice looked at before it is sent. */
struct Checked {
    int invoiceNumber = 0, customerNumber = 0; ///< customerNumber is 0 for a customer that is gone
    PrintFormat format = finvoice3Format; ///< that was checked against; of finvoiceFormat by the rules of Finvoice 3.0
    QVector<EInvoice::Finding> findings;  ///< in the order of the rules; empty: nothing to tell
};

/**
 * Checks invoices by the rules of an e-invoice.
 * @param format  else the one that the customer or the company is set to
 * @return false with the failure told
 */
[[nodiscard]] bool check(UseCaseContext &context, const InvoiceCriteria &criteria, std::optional<PrintFormat> format,
                         QVector<Checked> &checked);

/** @return false with the failure told; files that were written before stay */
[[nodiscard]] bool run(UseCaseContext &context, const Request &request, QVector<File> &files);

} // namespace ExportInvoices

#endif

#ifndef EXPORTLIST_H
#define EXPORTLIST_H

#include "invoicecriteria.h"
#include "paymentcriteria.h"
#include "printformat.h"

#include <QString>
#include <QStringList>

#include <optional>

struct UseCaseContext;

/** Writes a list for people, as one PDF or CSV file. */
namespace ExportList {

/** The invoice list, the registers of customers and products, and the payment journal. */
enum Kind { invoices = 0, customers = 1, products = 2, payments = 3 };

struct Request {
    InvoiceCriteria invoices;                   ///< of the lists of invoices and payments
    PaymentCriteria payments;                   ///< of the list of payments
    int columnFlags = 0;                        ///< bit n for the column n of columns(); 0: the usual ones
    std::optional<int> sort;                    ///< the number of a column
    bool landscape = false;                     ///< of PDF files
    QString fileName;                           ///< empty: the list's own name
    std::optional<PrintFormat> format;          ///< else by the file name
    QString csvDelimiter = QStringLiteral(","); ///< one character
    QDate day;                                  ///< that the list shows as its own; invalid: today
    bool keepsFiles = false;                    ///< a file of the name is a failure, not overwritten
    bool makesFolders = false;                  ///< of the file name
    bool isTrial = false;                       ///< tells the file and writes none
};

/** The columns that a list can show and be ordered by; the place of a name is its number. */
QStringList columns(Kind kind);

/** @param fileName  set to the file's. @return false with the failure told */
[[nodiscard]] bool run(UseCaseContext &context, Kind kind, const Request &request, QString &fileName);

} // namespace ExportList

#endif

#ifndef MONTHPAGE_H
#define MONTHPAGE_H

#include "records.h"

#include <QHash>

/** The page that opens an archive: one file of HTML, without scripts and without anything from elsewhere. */
namespace MonthPage {

struct Content {
    QString company;                 ///< its name
    QDate from, to;                  ///< both included
    QVector<InvoiceRecord> invoices; ///< with their details; balances of the end of `to`
    QVector<PaymentRecord> payments;
    QHash<int, QString> papers, eInvoices; ///< names of files in the archive by the invoices' ids
    QHash<int, QString> remarks;           ///< why there is no e-invoice, the same
    QStringList files;                     ///< all other ones
};

/** In the language of the run, in UTF-8. */
QByteArray make(const Content &content);

} // namespace MonthPage

#endif

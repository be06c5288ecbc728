#ifndef INVOICECRITERIA_H
#define INVOICECRITERIA_H

#include <QDate>
#include <QString>

#include <memory>

class InvoiceSelection;

/** A search for invoices. A field that holds an invalid date, a negative number or an empty text sets no condition. */
class InvoiceCriteria {
public:
    /** Values of paymentState; any other means both. */
    enum PaymentState { paid = 0, open = 1 };

    QDate dateFrom, dateTo, date;                    ///< both ends included; `date` is the one day
    QDate dueDateFrom, dueDateTo;                    ///< both ends included
    QDate deliveryDateFrom, deliveryDateTo;          ///< an invoice without a delivery date counts with its own date
    int numberFrom = -1, numberTo = -1, number = -1; ///< both ends included; `number` is the one
    int id = -1, customerId = -1;                    ///< ids of the database
    int types = -1;                                  ///< bit t wants invoices of type t, 0 to 3
    int paymentState = -1;                           ///< a PaymentState
    QDate balanceDate;       ///< when valid, the payment state is judged by the payments up to this date
    QString referenceNumber; ///< compared as stored: without blanks, all of it
    QString text;            ///< a LIKE pattern for the rows' texts, with "\" before a literal "%", "_" or "\"
    std::shared_ptr<const InvoiceSelection> selection; ///< what must hold besides, null for nothing
    int limit = -1;                                    ///< number of invoices wanted
    bool descending = false;                           ///< highest numbers first

    /** As constructed, without any condition; the copy shares the selection. */
    void clear() { *this = InvoiceCriteria(); }
    void copy(InvoiceCriteria *target) const { *target = *this; }
};

#endif

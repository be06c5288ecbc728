#ifndef INVOICESELECTION_H
#define INVOICESELECTION_H

#include <QDate>
#include <QString>
#include <QVector>

/**
 * Which invoices are meant, and in which order. Every condition that is set must hold; an invalid date, a negative
 * number and an empty text set none.
 */
class InvoiceSelection {
public:
    struct NumberRange {
        int from, to; ///< both included; -1 is no limit
    };
    /** How an invoice stands, a value of `state`; on day(). */
    enum State { empty, paid, open, overdue, credit };

    QVector<NumberRange> numbers; ///< any of them; empty for all
    QVector<int> ids;             ///< any of them besides the numbers
    /** A balance other than zero, one of zero, and one above zero that was due before day(). */
    bool withBalance = false, withoutBalance = false, isOverdue = false;
    int state = -1;                         ///< a State
    int customerId = -1;                    ///< of the database
    int type = -1;                          ///< Invoice::Type
    QString reference;                      ///< compared as stored, without blanks
    QDate dateFrom, dateTo;                 ///< both ends included
    QDate dueDateFrom, dueDateTo;           ///< both ends included
    QDate deliveryDateFrom, deliveryDateTo; ///< an invoice without a delivery date counts with its own date
    QDate asOf;                             ///< when valid, balances are those of the end of this day
    QDate today;                            ///< what is overdue counts from; must be valid
    QString text;                           ///< in rows, the customer's name and both references, letter case aside

    QString sort;            ///< a key of Query::invoiceSortKeys(); empty: by number
    bool descending = false; ///< ties by number and id turn too
    int limit = -1;          ///< after sorting

    /** Whether anything but the order and the limit is set. */
    bool restricts() const
    {
        return !numbers.isEmpty() || !ids.isEmpty() || withBalance || withoutBalance || isOverdue || state >= 0 ||
               customerId >= 0 || type >= 0 || !reference.isEmpty() || dateFrom.isValid() || dateTo.isValid() ||
               dueDateFrom.isValid() || dueDateTo.isValid() || deliveryDateFrom.isValid() || deliveryDateTo.isValid() ||
               !text.isEmpty();
    }
    /** What overdue is judged on. */
    QDate day() const { return asOf.isValid() ? asOf : today; }
};

#endif

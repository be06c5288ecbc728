#ifndef INVOICESTATE_H
#define INVOICESTATE_H

#include <QDate>

/** How an invoice stands. */
namespace InvoiceState {

/** In the order of InvoiceSelection::State. */
enum State {
    empty,   ///< nothing to pay and nothing paid
    paid,    ///< no balance
    open,    ///< a balance that is not due yet
    overdue, ///< a balance that was due before today
    credit,  ///< the buyer is owed: the balance is below zero
};

/** @param total, balance  cents. @param today  the day it is judged on */
State of(int total, int balance, const QDate &dueDate, const QDate &today);

/** "overdue" */
const char *word(State state);

} // namespace InvoiceState

#endif

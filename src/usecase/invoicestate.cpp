#include "invoicestate.h"

InvoiceState::State InvoiceState::of(int total, int balance, const QDate &dueDate, const QDate &today)
{
    if (balance == 0)
        return total == 0 ? empty : paid;
    if (balance < 0)
        return credit;
    return dueDate.isValid() && dueDate < today ? overdue : open;
}

const char *InvoiceState::word(State state)
{
    static constexpr const char *words[] = {"empty", "paid", "open", "overdue", "credit"};
    return words[state];
}

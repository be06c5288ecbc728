#ifndef LASTSAVEDIDS_H
#define LASTSAVEDIDS_H

/** The ids that the value "@" stands for: what commands of this run saved last of each kind; 0 before that. */
struct LastSavedIds {
    /** Ids of the database. A row's is that of the row, not of its invoice. */
    int bankAccount = 0;
    int customer = 0;
    int invoice = 0;
    int invoiceItem = 0;
    int product = 0;
    int payment = 0;
};

#endif

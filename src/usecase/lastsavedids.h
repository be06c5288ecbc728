#ifndef LASTSAVEDIDS_H
#define LASTSAVEDIDS_H

/** The ids that the value "@" stands for: what commands of this run saved last of each kind; 0 before that. */
struct LastSavedIds {
    int bankAccount = 0;
    int customer = 0;
    int invoice = 0;
    int invoiceItem = 0;
    int product = 0;
    int payment = 0;
};

#endif

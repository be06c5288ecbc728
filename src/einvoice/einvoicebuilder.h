#ifndef EINVOICEBUILDER_H
#define EINVOICEBUILDER_H

#include "einvoicedocument.h"

#include <QList>

class BankAccount;
class Customer;
class Invoice;
class InvoiceItem;
class Settings;

namespace EInvoice {

/** What a document is made of; all belong to the caller. */
struct Source {
    /** References: their objects must outlive build(), not the document that it makes. */
    const Invoice &invoice;
    const QVector<InvoiceItem> &items;  ///< in their order
    const Customer &customer;           ///< default-constructed when it is gone
    const Settings &settings;           ///< for the seller, and for terms that neither invoice nor customer has
    const QList<BankAccount> &accounts; ///< those that are printed
    /** "maksumuistutus" and the like when it is asked for as a document of another kind; empty for its own. */
    QString kindText;
};

/** Makes the semantic model of an invoice. Whatever is missing is left empty: the rules tell. */
Document build(const Source &source);

} // namespace EInvoice

#endif

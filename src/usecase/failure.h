#ifndef FAILURE_H
#define FAILURE_H

/**
 * Why a use case did not do its work. A code has no words: each front end has a sentence (and an exit code) for it,
 * with the arguments named here in its place holders.
 */
namespace Failure {

/** Where a code takes arguments its comment names them, in order; in the second group the heading does. */
enum Code {
    // The database
    database,               ///< the reason in the database's own words
    connectionLost,         ///< where the backend gives no text of its own
    databaseLocked,         ///< the same: another program holds it
    databaseNumberTaken,    ///< number in the list
    databaseNumberUnknown,  ///< number in the list
    settingsFileUnwritable, ///< file name
    noDatabaseListed,       ///< no database is configured, or none of the wanted number
    databaseMissing,        ///< file name

    // A record that was named: what was searched
    bankAccountIdUnknown,
    bankAccountNameUnknown,
    bankAccountNameAmbiguous,
    customerIdUnknown,
    customerNumberUnknown,
    customerNameUnknown,
    customerNameAmbiguous,
    productIdUnknown,
    productNumberUnknown,
    productNumberAmbiguous,
    productNameUnknown,
    productNameAmbiguous,
    invoiceIdUnknown,
    invoiceNumberUnknown,
    invoiceItemIdUnknown,
    paymentIdUnknown,

    // Documents
    documentsUnavailable,  ///< reason: the part that makes them cannot be loaded
    layoutUnknown,         ///< name
    scriptUnreadable,      ///< the file or resource of a script cannot be opened
    scriptException,       ///< text, line
    scriptWithoutFunction, ///< the script defines neither print() nor, for XML, write()
    layoutNameTaken,       ///< name
    fileUnreadable,        ///< file name, reason
    paymentFormatUnknown,  ///< file name, reason
    fileUnwritable,        ///< file name, reason
    fileExists,            ///< file name; never overwritten where this is told

    // Rules
    invoiceTotalTooLarge,       ///< total or balance beyond 32 bits of cents
    rowTotalTooLarge,           ///< the same of a row
    invoiceCustomerMissing,     ///< a new invoice was given no customer
    noNextInvoiceNumber,        ///< the highest number is taken
    noNextCustomerNumber,       ///< the same of customers
    paymentTermsBeyondCalendar, ///< the terms
};

} // namespace Failure

#endif

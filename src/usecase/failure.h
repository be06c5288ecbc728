#ifndef FAILURE_H
#define FAILURE_H

/**
 * Why a use case did not do its work. A code has no words: each front end has a sentence (and an exit code) for it,
 * with the arguments named here in its place holders.
 */
namespace Failure {

/** The comments name the arguments, in order; without one there are none but in the second group, which has one. */
enum Code {
    // The database
    database,               ///< the reason in the database's own words
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
    layoutUnknown, ///< name
    scriptUnreadable,
    scriptException, ///< text, line
    scriptWithoutFunction,
    layoutNameTaken,      ///< name
    fileUnreadable,       ///< file name, reason
    paymentFormatUnknown, ///< file name, reason
    fileUnwritable,       ///< file name, reason
    fileExists,           ///< file name; never overwritten where this is told

    // Rules
    invoiceTotalTooLarge, ///< total or balance beyond 32 bits of cents
    rowTotalTooLarge,     ///< the same of a row
    invoiceCustomerMissing,
    noNextInvoiceNumber, ///< the highest number is taken
    noNextCustomerNumber,
    paymentTermsBeyondCalendar, ///< the terms
};

} // namespace Failure

#endif

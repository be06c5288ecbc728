#ifndef NOTICE_H
#define NOTICE_H

/** What a use case tells of its work on the way, for those who want to follow it. Without words, as a Failure. */
namespace Notice {

/** Where a code takes arguments its comment names them, in order. */
enum Code {
    openingSqlite,     ///< file name
    openingPostgresql, ///< database name
    savingInvoice,     ///< number
    savingRow,         ///< invoice id, name of the product
    savingPayment,     ///< none
};

} // namespace Notice

#endif

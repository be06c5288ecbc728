#ifndef IMPORTEDPAYMENT_H
#define IMPORTEDPAYMENT_H

#include <QDate>
#include <QString>

/**
 * What became of a payment. saved: matched and new; alreadyImported: an equal payment is stored; unmatched: it names no
 * invoice, or takes back what nobody has paid; ambiguous: several invoices would do; error: a damaged record, or an
 * amount too large for the invoice.
 */
enum class ImportResult { saved, alreadyImported, unmatched, ambiguous, error };

/** A payment (or a damaged record) of a bank's file, and what became of it. */
struct ImportedPayment {
    QString fileName;         ///< as it was given
    long long lineNumber = 0; ///< from 1
    QDate date;               ///< the bank's entry date
    int amount = 0;           ///< cents; negative for a correction or a payment out
    QString referenceNumber;  ///< national form without leading zeros, empty for none
    QString payerName;        ///< empty for none; on a payment out its payee
    QString archiveId;        ///< the bank's, empty for none
    QString format;           ///< of the file, see PaymentFileReader::format()
    int bankAccountId = -1;   ///< -1: none of the seller's accounts
    int invoiceId = -1;       ///< -1: none
    int invoiceNumber = 0;    ///< 0 while invoiceId is -1
    /** Error also for a damaged record: only its line and message are set. */
    ImportResult result = ImportResult::unmatched;
    QString message; ///< why, empty for a saved one
};

#endif

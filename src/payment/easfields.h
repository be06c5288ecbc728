#ifndef EASFIELDS_H
#define EASFIELDS_H

#include "fixedrecord.h"

/** The fields of an electronic account statement's records that are read (service description 3.3). */
namespace EASFields {

/** Of every record: its code, and its length in characters. */
constexpr FixedField recordCode{"record code", 1, 3};
constexpr FixedField recordLength{"record length", 4, 3};
/** The same place under the name that messages use for a record of another length. */
constexpr FixedField lengthOfRecord{"length of the record", 4, 3};

// T00
constexpr FixedField versionNumber{"version number", 7, 3};
/** 14 digits of the machine form, dates YYMMDD, time HHMM, balances in cents with the sign in a field of its own. */
constexpr FixedField accountNumber{"account number", 10, 14};
constexpr FixedField statementNumber{"account statement number", 24, 3};
constexpr FixedField startingDate{"starting date", 27, 6};
constexpr FixedField endingDate{"ending date", 33, 6};
constexpr FixedField creationDate{"creation date", 39, 6};
constexpr FixedField creationTime{"creation time", 45, 4};
constexpr FixedField openingSign{"sign", 72, 1};
constexpr FixedField openingBalance{"opening balance", 73, 18};
constexpr FixedField currency{"currency code", 97, 3};
constexpr FixedField ibanAndBic{"IBAN", 293, 30}; ///< IBAN (ISO 13616), a blank or slash and BIC

// T10
/** The sign is "+" or "-", the amount in cents; filingCode is the archiving code, paymentDate may be blank. */
constexpr FixedField transactionNumber{"transaction number", 7, 6};
constexpr FixedField filingCode{"filing code", 13, 18};
constexpr FixedField entryDate{"entry date", 31, 6};
constexpr FixedField valueDate{"value date", 37, 6};
constexpr FixedField paymentDate{"payment date", 43, 6};
/** 1 deposit, 2 withdrawal, 3 and 4 their corrections, 9 rejected. */
constexpr FixedField transactionCode{"transaction code", 49, 1};
constexpr FixedField definitionCode{"entry definition code", 50, 3};
constexpr FixedField definitionText{"entry definition text", 53, 35};
constexpr FixedField sign{"sign", 88, 1};
constexpr FixedField amount{"amount of transaction", 89, 18};
constexpr FixedField receiptCode{"receipt code", 107, 1}; ///< "E": an itemisation follows
constexpr FixedField otherParty{"payer's name", 109, 35};
constexpr FixedField referenceNumber{"reference number", 160, 20};
constexpr FixedField levelCode{"level code", 188, 1}; ///< blank or 0: an entry; 1 to 9: a part of the one above

// T11
/** Type 01 has itemCount, 09 payerName, 11 creditorReference and fullPayerName; the others are not read. */
constexpr FixedField informationType{"type of additional information", 7, 2};
constexpr FixedField itemCount{"number of items", 9, 8};
constexpr FixedField payerName{"payer's name", 9, 35};
constexpr FixedField creditorReference{"reference number", 9, 35}; ///< RF form (ISO 11649), else it is the payer's own
constexpr FixedField fullPayerName{"payer's name", 184, 70};

// T40
/** Cents; the sign is "+" or "-". */
constexpr FixedField balanceDate{"entry date", 7, 6};
constexpr FixedField balanceSign{"sign", 13, 1};
constexpr FixedField balance{"closing balance", 14, 18};

} // namespace EASFields

#endif

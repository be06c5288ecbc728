#ifndef EINVOICEDOCUMENT_H
#define EINVOICEDOCUMENT_H

#include <QDate>
#include <QString>
#include <QStringList>
#include <QVector>

/**
 * The semantic model of an invoice by EN 16931, without any syntax. The numbers behind the names are those of the
 * standard's business terms (BT). Sums are cents; of a credit note what is credited is positive.
 */
namespace EInvoice {

/** What a document is written as: Finvoice 3.0, or UBL 2.1 by Peppol BIS Billing 3. Rules differ by it. */
enum Format { finvoice3, peppol };

/** Seller (BG-4), buyer (BG-7) or deliver-to party (BG-13); texts are trimmed, empty where nothing is known. */
struct Party {
    QString name;                       ///< BT-27, BT-44
    QString tradeName;                  ///< BT-28
    QString businessId;                 ///< BT-30, BT-47, `0737546-2`
    QString vatNumber;                  ///< BT-31, BT-48, `FI07375462`
    QString taxRegistration, legalInfo; ///< BT-32, BT-33
    QString endpoint, endpointScheme;   ///< BT-34, BT-49, and the EAS code of their scheme
    QString operatorId;                 ///< the intermediator that carries the invoice
    QStringList streets;                ///< BT-35, BT-36
    QString town, postCode;             ///< BT-37, BT-38
    QString country;                    ///< BT-40, BT-55: ISO 3166-1, empty when it is not known
    QString countryText;                ///< as it stands in the record
    bool isCountryAssumed = false;      ///< Finland, by the business ID
    QString contact, phone, email;      ///< BT-41 to BT-43
};

/** The account for credit transfers (BG-17). The IBAN (ISO 13616) and the BIC (ISO 9362) are without blanks. */
struct Account {
    QString iban, bic, name; ///< BT-84, BT-86, BT-85
};

/** An invoice line (BG-25). */
struct Line {
    QString name, articleId, note; ///< BT-153, BT-155, BT-127
    QString unitText, unitCode;    ///< as in the record, and UN/ECE Rec 20 (BT-130)
    long long quantity = 0;        ///< BT-129, four decimals
    long long price = 0;           ///< BT-146, priceDecimals of them
    int priceDecimals = 2;         ///< 2 to 10, the fewest that lead back to the net amount
    long long net = 0;             ///< BT-131
    long long allowance = 0;       ///< BT-136; below zero a charge (BT-141)
    long long base = 0;            ///< BT-137
    int percent = 0;               ///< BT-138, hundredths; 0: base and percentage are left out
    QString category;              ///< BT-151
    int vatRate = 0;               ///< BT-152, hundredths of a percent
    QString reason, reasonCode;    ///< BT-120 and BT-121 of a row of its own
    bool isCategoryUnused = false; ///< the row has a category of its own, but bears VAT
    int position = 0;              ///< of the row on the invoice, from 1
};

/** A row of the VAT breakdown. */
struct Tax {
    QString category;            ///< BT-118
    int rate = 0;                ///< BT-119, hundredths of a percent
    long long base = 0, tax = 0; ///< BT-116, BT-117
    QString reason, reasonCode;  ///< BT-120, BT-121
    QString otherReasonCode;     ///< of a row that has another, for which there is no place
};

struct Document {
    /** How it is sent: BT-3 380 invoice and interest, 381 creditNote; notSent is for people only. */
    enum Kind { invoice, creditNote, interest, notSent };

    Kind kind = invoice; ///< of the invoice's type, or of the kind asked for
    QString kindText;    ///< of one that is not sent, "maksumuistutus"
    int number = 0;      ///< BT-1
    /** BT-2, BT-9, BT-72, BT-73, BT-74; invalid where not told. */
    QDate date, dueDate, deliveryDate, periodStart, periodEnd;
    QString buyerReference, project, contract, order, accounting; ///< BT-10, 11, 12, 13, 19
    QStringList terms, notes;                                     ///< BT-20, BT-22
    int interestOnArrears = 0;                                    ///< hundredths of a percent; in terms too
    int buyerNumber = -1;                                         ///< BT-46, the seller's own number of the buyer
    QString precedingNumber;                                      ///< BT-25
    QDate precedingDate;                                          ///< BT-26
    QString reference;                                            ///< BT-83, without blanks
    QString sellerReference;               ///< no business term: Finvoice has an element for it, UBL takes it as a note
    Party seller, buyer;                   ///< BG-4, BG-7
    Party deliverTo;                       ///< BT-70 to BT-80; empty for none
    bool hasDeliverTo = false;             ///< false: deliverTo says nothing
    bool isDeliverToAssumed = false;       ///< the buyer's address, since nothing was said
    QVector<Account> accounts;             ///< those that are printed, in the seller's order
    QVector<Line> lines;                   ///< rows of text alone are in notes
    QVector<Tax> taxes;                    ///< BG-23, ascending by rate, then category
    long long net = 0, tax = 0, total = 0; ///< BT-106 and 109, BT-110, BT-112
    long long paid = 0, rounding = 0, payable = 0; ///< BT-113, BT-114, BT-115
    bool isTotalWrong = false;                     ///< the stored total is not the sum of the rows
    int overflowRow = 0;                           ///< position of a row whose product does not fit 64 bits, 0 for none
};

} // namespace EInvoice

#endif

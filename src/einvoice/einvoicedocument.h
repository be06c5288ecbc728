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

enum Format { finvoice3, peppol };

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

struct Account {
    QString iban, bic, name; ///< BT-84, BT-86, BT-85
};

struct Line {
    QString name, articleId, note; ///< BT-153, BT-155, BT-127
    QString unitText, unitCode;    ///< as in the record, and UN/ECE Rec 20 (BT-130)
    long long quantity = 0;        ///< BT-129, four decimals
    long long price = 0;           ///< BT-146, priceDecimals of them
    int priceDecimals = 2;
    long long net = 0;       ///< BT-131
    long long allowance = 0; ///< BT-136; below zero a charge (BT-141)
    long long base = 0;      ///< BT-137
    int percent = 0;         ///< BT-138, hundredths; 0: base and percentage are left out
    QString category;        ///< BT-151
    int vatRate = 0;         ///< BT-152, hundredths of a percent
    QString reason, reasonCode;
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
    enum Kind { invoice, creditNote, interest, notSent };

    Kind kind = invoice;
    QString kindText; ///< of one that is not sent, "maksumuistutus"
    int number = 0;
    QDate date, dueDate, deliveryDate, periodStart, periodEnd;
    QString buyerReference, project, contract, order, accounting; ///< BT-10, 11, 12, 13, 19
    QStringList terms, notes;                                     ///< BT-20, BT-22
    int interestOnArrears = 0;                                    ///< hundredths of a percent; in terms too
    int buyerNumber = -1;                                         ///< BT-46, the seller's own number of the buyer
    QString precedingNumber;                                      ///< BT-25
    QDate precedingDate;                                          ///< BT-26
    QString reference;                                            ///< BT-83, without blanks
    QString sellerReference;
    Party seller, buyer;
    Party deliverTo; ///< BT-70 to BT-80; empty for none
    bool hasDeliverTo = false;
    bool isDeliverToAssumed = false; ///< the buyer's address, since nothing was said
    QVector<Account> accounts;
    QVector<Line> lines;
    QVector<Tax> taxes;
    long long net = 0, tax = 0, total = 0;         ///< BT-106 and 109, BT-110, BT-112
    long long paid = 0, rounding = 0, payable = 0; ///< BT-113, BT-114, BT-115
    bool isTotalWrong = false;                     ///< the stored total is not the sum of the rows
    int overflowRow = 0;                           ///< position of a row whose product does not fit 64 bits, 0 for none
};

} // namespace EInvoice

#endif

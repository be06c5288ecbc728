#ifndef RECORDS_H
#define RECORDS_H

#include "bankaccount.h"
#include "customer.h"
#include "field.h"
#include "invoice.h"
#include "invoiceitem.h"
#include "payment.h"
#include "product.h"

#include <QVariantMap>
#include <QVector>

// What the field tables read: records of the database with what belongs to them.

/** openCount and openBalance are zero until a command has asked for them. */
struct CustomerRecord {
    Customer customer;
    int openCount = 0;         ///< invoices with a balance
    long long openBalance = 0; ///< cents
};

struct AccountRecord {
    BankAccount account;
};

/** A product as it is stored; nothing is computed for it. */
struct ProductRecord {
    Product product;
};

/** A payment on an invoice. */
struct PaymentRecord {
    Payment payment;
    int invoiceNumber = 0; ///< what people call the invoice, not its id
    QString accountName;   ///< null for none
};

/** A row of an invoice with what is computed from it: net and total are after the discount. */
struct RowRecord {
    InvoiceItem item;
    int position = 0;    ///< on its invoice, from 1
    int productId = -1;  ///< of the product with its number, -1 for none
    long long net = 0;   ///< cents
    long long total = 0; ///< with VAT, cents
};

/** An invoice's sums of one VAT rate, cents. */
struct VatRateRecord {
    int vatRate = 0;                       ///< hundredths of a percent
    long long net = 0, vat = 0, total = 0; ///< the VAT follows the rounding mode of the settings
};

/** Rows, payments, rates and sums are there only when they were asked for, see InvoiceReader::read(). */
struct InvoiceRecord {
    Invoice invoice;         ///< `balance` is that of the end of the day when the selection has asOf
    int customerNumber = -1; ///< -1: the customer has no number
    QString customerName;    ///< as the customer is called now
    QDate today;             ///< what is overdue counts from
    // Only where the rows are wanted:
    long long net = 0, vat = 0;      ///< cents; total is in the invoice
    QVector<VatRateRecord> vatRates; ///< ascending by rate
    QVector<RowRecord> rows;         ///< as on the invoice
    QVector<PaymentRecord> payments; ///< of this invoice only
};

/** A file that an export wrote. */
struct FileRecord {
    QString fileName;       ///< empty for a file that was not written
    int invoiceNumber = -1; ///< -1: of none, or of all
    QString error;          ///< null for none
};

/** A database on the list of the settings file. */
struct CompanyRecord {
    /** @param entry  of the form of DatabaseList; one without a number is not on the list */
    static CompanyRecord of(const QVariantMap &entry, int lastUsed);

    int number = 0;               ///< in the list, from 1
    bool isPostgreSQL = false;    ///< else SQLite
    QString file, host, database; ///< null where they do not apply
    bool isSelected = false;      ///< used when no company is named
};

/** What the upgrade of a company's database did. */
struct CompanyUpgradeRecord {
    int number = 0;            ///< in the list
    QString name;              ///< the seller's, null when the database could not be read
    int before = 0, after = 0; ///< versions of the schema; 0 is not known
    QString error;             ///< null for none
};

/** A setting as it is told: the description is in the language of the run, the value as the type is typed. */
struct SettingRecord {
    QString key, value, description;  ///< the key is path-like, `seller/vatNumber`
    ValueType type = ValueType::text; ///< how value is to be read
};

/** A stored layout, or a built-in one without an id. */
struct LayoutRecord {
    int id = -1;             ///< -1: built in
    QString type, name;      ///< type: "invoice" or "finvoice"
    bool isSelected = false; ///< the one that prints invoices
};

/** What the check of the database found. */
struct FindingRecord {
    QString check, table, message; ///< check is a fixed word for programs; table as in the database
    int id = -1;                   ///< -1: about no single record
};

/** What a rule of e-invoices found in an invoice. */
struct CheckRecord {
    int invoiceNumber = 0;
    /**
     * Rule and term are those of EN 16931, "BR-11" and "BT-55"; severity is "error", "warning" or "note"; field and
     * command tell where to mend it, empty when nowhere.
     */
    QString rule, severity, term, field, message, command;
};

/** A document that was sent, as the journal has it. */
struct JournalRecord {
    int line = 0; ///< from 1
    QString time; ///< UTC, ISO 8601
    int invoiceNumber = 0;
    int invoiceId = -1;
    QString kind, format;   ///< words of `journalKinds` and of the formats of exports
    QString file;           ///< as it was told
    QString sha256, record; ///< of the file and of the invoice as it was, hexadecimal
    QString previous, hash; ///< of the line before and of this line, the same
};

/** What the check of the journal found. */
struct JournalFindingRecord {
    int line = 0;          ///< of the journal
    int invoiceNumber = 0; ///< 0 for none
    QString finding, message;
};

/** The words of document kinds, in the order of InvoicePrintModel::typeCode(); null ends them. */
extern const Choice journalKinds[];
/** The words of invoice types, in the order of Invoice::Type; null ends them. */
extern const Choice invoiceTypes[];
/** The words of states, in the order of InvoiceSelection::State; null ends them. */
extern const Choice invoiceStates[];

/**
 * The fields of each kind of record: a getter must be given the address of a record of that kind.
 * CustomerRecord, ProductRecord, AccountRecord, PaymentRecord, RowRecord, VatRateRecord, InvoiceRecord, FileRecord,
 * CheckRecord, CompanyRecord, CompanyUpgradeRecord, SettingRecord, LayoutRecord, FindingRecord, JournalRecord,
 * JournalFindingRecord and, for imports, ImportedPayment.
 */
extern const RecordTable customerTable;
extern const RecordTable productTable;
extern const RecordTable accountTable;
extern const RecordTable paymentTable;
extern const RecordTable rowTable;
extern const RecordTable vatRateTable;
extern const RecordTable invoiceTable;
extern const RecordTable fileTable;
extern const RecordTable checkTable;
extern const RecordTable companyTable;
extern const RecordTable companyUpgradeTable;
extern const RecordTable settingTable;
extern const RecordTable layoutTable;
extern const RecordTable findingTable;
extern const RecordTable importTable;
extern const RecordTable journalTable;
extern const RecordTable journalFindingTable;

#endif

#ifndef RECORDS_H
#define RECORDS_H

#include "bankaccount.h"
#include "customer.h"
#include "field.h"
#include "invoice.h"
#include "invoiceitem.h"
#include "payment.h"
#include "product.h"

#include <QVector>

// What the field tables read: records of the database with what belongs to them.

struct CustomerRecord {
    Customer customer;
    int openCount = 0;         ///< invoices with a balance
    long long openBalance = 0; ///< cents
};

struct AccountRecord {
    BankAccount account;
};

struct ProductRecord {
    Product product;
};

struct PaymentRecord {
    Payment payment;
    int invoiceNumber = 0;
    QString accountName; ///< null for none
};

struct RowRecord {
    InvoiceItem item;
    int position = 0;    ///< on its invoice, from 1
    int productId = -1;  ///< of the product with its number, -1 for none
    long long net = 0;   ///< cents
    long long total = 0; ///< with VAT, cents
};

/** An invoice's sums of one VAT rate, cents. */
struct VatRateRecord {
    int vatRate = 0; ///< hundredths of a percent
    long long net = 0, vat = 0, total = 0;
};

struct InvoiceRecord {
    Invoice invoice;
    int customerNumber = -1;
    QString customerName;
    QDate today; ///< what is overdue counts from
    // Only where the rows are wanted:
    long long net = 0, vat = 0;
    QVector<VatRateRecord> vatRates;
    QVector<RowRecord> rows;
    QVector<PaymentRecord> payments;
};

/** A file that an export wrote. */
struct FileRecord {
    QString fileName;
    int invoiceNumber = -1; ///< -1: of none, or of all
    QString error;          ///< null for none
};

/** A database on the list of the settings file. */
struct CompanyRecord {
    int number = 0;
    bool isPostgreSQL = false;
    QString file, host, database; ///< null where they do not apply
    bool isSelected = false;
};

struct SettingRecord {
    QString key, value, description;
    ValueType type = ValueType::text;
};

/** A stored layout, or a built-in one without an id. */
struct LayoutRecord {
    int id = -1;
    QString type, name;
    bool isSelected = false;
};

struct FindingRecord {
    QString check, table, message;
    int id = -1; ///< -1: about no single record
};

/** What a rule of e-invoices found in an invoice. */
struct CheckRecord {
    int invoiceNumber = 0;
    QString rule, severity, term, field, message, command;
};

/** The words of invoice types, in the order of Invoice::Type; null ends them. */
extern const Choice invoiceTypes[];
extern const Choice invoiceStates[];

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
extern const RecordTable settingTable;
extern const RecordTable layoutTable;
extern const RecordTable findingTable;
extern const RecordTable importTable;

#endif

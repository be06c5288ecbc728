#ifndef TABLECOLUMNS_H
#define TABLECOLUMNS_H

#include <QString>
#include <QVariantList>

class BankAccount;
class Cursor;
class Customer;
class Invoice;
class InvoiceItem;
class Payment;
class PrintScript;
class Product;
class Settings;

/**
 * How a record lies in its table. The column list is written once: statements are made of it, and bind and read keep
 * its order. Readers convert what the columns hold and check nothing.
 */
template <class Record> struct TableColumns {
    static const char *const table; ///< the name in both schemas
    /** All columns but the id, comma-separated. */
    static const char *const columns;
    /** The values of `columns`, in order. */
    static QVariantList values(const Record &record);
    /** Reads the id and then `columns` (settings: `columns` only), from the given column of the current row on. */
    static void read(const Cursor &row, int first, Record &record);
};

/** @return the column list with the id in front, each column with the prefix ("", "i.") */
template <class Record> QString selectedColumns(const QString &prefix = QString());

#endif

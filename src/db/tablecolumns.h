#ifndef TABLECOLUMNS_H
#define TABLECOLUMNS_H

#include <QDate>
#include <QString>
#include <QVariantList>

class BankAccount;
class Customer;
class Invoice;
class InvoiceItem;
class Payment;
class PrintScript;
class Product;
class QSqlQuery;
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
    static void read(const QSqlQuery &row, int first, Record &record);
};

/** A date column as either backend gives it; invalid for none. */
QDate dateValue(const QSqlQuery &row, int column);
/** An integer column, 0 for none, without the general conversion where that is possible. */
int integerValue(const QSqlQuery &row, int column);

/** @return the column list with the id in front, each column with the prefix ("", "i.") */
template <class Record> QString selectedColumns(const QString &prefix = QString());

#endif

#ifndef DATABASECHECK_H
#define DATABASECHECK_H

#include <QCoreApplication>
#include <QHash>
#include <QString>
#include <QVector>

#include <memory>

class Cursor;
class Database;

/** Something in the database that is not as it should be. */
struct Finding {
    const char *check; ///< which check found it, see DatabaseCheck
    QString table;     ///< empty when it is about the whole file
    int id;            ///< of the record, -1 when it is about no single one
    QString message;   ///< a sentence in the language of the run, figures in it with a comma
};

/**
 * Looks a database over: its file, its schema and the books. Changes nothing unless asked to repair.
 *
 * The checks: integrity (SQLite's own), schemaVersion, columns, invoiceTotal and invoiceBalance (stored figures against
 * rows and payments), itemWithoutInvoice, paymentWithoutInvoice, invoiceWithoutCustomer, referenceNumber,
 * duplicateNumber, numberGap.
 */
class DatabaseCheck {
    Q_DECLARE_TR_FUNCTIONS(DatabaseCheck)
public:
    explicit DatabaseCheck(const Database &database); ///< open, outlives this

    /** @return false, with the reason in lastError(), when a statement fails; the findings so far are kept */
    [[nodiscard]] bool run();
    /** Writes the right totals and balances where run() found wrong ones, and marks those findings as repaired. */
    [[nodiscard]] bool repairTotals();

    /** In the order of the checks; also the repaired ones. */
    const QVector<Finding> &findings() const { return m_findings; }
    /** Findings that no repair has settled. */
    int openCount() const { return m_findings.size() - m_repairedCount; }
    QString lastError() const { return m_lastError; }

private:
    /** What the rows and the payments of an invoice come to. */
    struct Sums {
        long long total = 0; ///< cents
        long long paid = 0;  ///< cents
    };

    /** Lets a function take each row. @return false, with the text kept, on failure */
    template <class Take> bool readAll(const QString &sql, Take take);
    void add(const char *check, const char *table, int id, const QString &message); ///< @param id  -1 for none
    /** One check each. @return false only when a statement fails: findings are no failure */
    bool checkIntegrity();
    bool checkSchema();
    bool checkLinks();
    bool checkReferenceNumbers();
    bool checkNumbers();
    bool checkTotals();
    bool readSums(QHash<int, Sums> &sums); ///< of every invoice, by id, in one pass

    const Database &m_database;       ///< not owned
    std::unique_ptr<Cursor> m_cursor; ///< for all statements
    QVector<Finding> m_findings;      ///< in the order of the checks
    QHash<int, Sums> m_wrongInvoices; ///< by id, with the right figures
    int m_repairedCount = 0;          ///< findings that repairTotals() settled
    QString m_lastError;              ///< null until a failure
};

#endif

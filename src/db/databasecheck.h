#ifndef DATABASECHECK_H
#define DATABASECHECK_H

#include <QCoreApplication>
#include <QHash>
#include <QSqlDatabase>
#include <QString>
#include <QVector>

class QSqlQuery;

/** Something in the database that is not as it should be. */
struct Finding {
    const char *check; ///< which check found it, see DatabaseCheck
    QString table;
    int id; ///< of the record, -1 when it is about no single one
    QString message;
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
    DatabaseCheck(const QSqlDatabase &connection, bool sqlite) : m_connection(connection), m_isSQLite(sqlite) {}

    /** @return false, with the reason in lastError(), when a statement fails; the findings so far are kept */
    [[nodiscard]] bool run();
    /** Writes the right totals and balances where run() found wrong ones, and marks those findings as repaired. */
    [[nodiscard]] bool repairTotals();

    const QVector<Finding> &findings() const { return m_findings; }
    /** Findings that no repair has settled. */
    int openCount() const { return m_findings.size() - m_repairedCount; }
    QString lastError() const { return m_lastError; }

private:
    struct Sums {
        long long total = 0; ///< cents
        long long paid = 0;
    };

    bool execute(QSqlQuery &query, const QString &sql);
    void add(const char *check, const char *table, int id, const QString &message);
    bool checkIntegrity();
    bool checkSchema();
    bool checkLinks();
    bool checkReferenceNumbers();
    bool checkNumbers();
    bool checkTotals();
    bool readSums(QHash<int, Sums> &sums);

    QSqlDatabase m_connection;
    bool m_isSQLite;
    QVector<Finding> m_findings;
    QHash<int, Sums> m_wrongInvoices; ///< by id, with the right figures
    int m_repairedCount = 0;
    QString m_lastError;
};

#endif

#ifndef PAYMENTMATCHER_H
#define PAYMENTMATCHER_H

#include "importedpayment.h"
#include "invoiceledger.h"

#include <QCoreApplication>
#include <QHash>
#include <QVector>

#include <map>

class DatabaseSession;

/** Finds the invoice that each payment of a bank's file pays, and saves the payments that are new. */
class PaymentMatcher {
    Q_DECLARE_TR_FUNCTIONS(PaymentMatcher)
public:
    explicit PaymentMatcher(DatabaseSession &session) : m_session(session) {}

    /**
     * Matches payments, in the order of the file, and sets their results. Nothing is written.
     * @return false, with the failure told, when the database cannot be read
     */
    [[nodiscard]] bool match(QVector<ImportedPayment> &payments);
    /** Writes the payments that match() found new; for use in a transaction. @return false as match() */
    [[nodiscard]] bool save();
    /** The invoices whose payments have changed. */
    QVector<int> changedInvoices() const { return m_changedInvoices; }

private:
    bool readReferences(const QVector<ImportedPayment> &payments);
    bool candidates(const QString &reference, QVector<InvoiceLedger *> &found);
    bool matchOne(ImportedPayment &payment);
    InvoiceLedger *choose(const ImportedPayment &payment, const QVector<InvoiceLedger *> &invoices,
                          ImportResult &result, QString &message) const;

    DatabaseSession &m_session;
    QHash<QString, QVector<int>> m_invoicesByReference; ///< of the references in the file
    std::map<int, InvoiceLedger> m_ledgers;             ///< by invoice id, in the order of saving
    QVector<int> m_changedInvoices;
};

#endif

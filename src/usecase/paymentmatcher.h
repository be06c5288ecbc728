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
    /** @param session  not owned, open */
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
    /** One walk over all invoices, however many payments there are. */
    bool readReferences(const QVector<ImportedPayment> &payments);
    /** Every invoice of the reference, read when first asked for; false with the failure told. */
    bool candidates(const QString &reference, QVector<InvoiceLedger *> &found);
    /** Sets result, message and invoice; false only when the database cannot be read. */
    bool matchOne(ImportedPayment &payment);
    /**
     * The invoice that the payment is known to, else the only one that it fits: it settles the balance, takes back a
     * payment held, or nobody else has the reference. @return null, with result and message set, when none or several
     * do
     */
    InvoiceLedger *choose(const ImportedPayment &payment, const QVector<InvoiceLedger *> &invoices,
                          ImportResult &result, QString &message) const;

    DatabaseSession &m_session;                         ///< not owned
    QHash<QString, QVector<int>> m_invoicesByReference; ///< of the references in the file
    std::map<int, InvoiceLedger> m_ledgers;             ///< by invoice id, in the order of saving
    QVector<int> m_changedInvoices;                     ///< ids, ascending; of save()
};

#endif

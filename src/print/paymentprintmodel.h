#ifndef PAYMENTPRINTMODEL_H
#define PAYMENTPRINTMODEL_H

#include "invoice.h"
#include "invoicecriteria.h"
#include "payment.h"
#include "paymentcriteria.h"
#include "printmodel.h"

#include <QHash>
#include <QVector>

#include <optional>

class BankAccount;
class Customer;
class Registry;

/**
 * The model of the payment journal: the payments of a search, each with its invoice, customer and bank account, and the
 * search in words. Customers and accounts are looked up in the registry, whose lists must have been fetched before.
 */
class PaymentPrintModel : public PrintModel {
    Q_OBJECT
public:
    /** The first ten are the numbers of the columns. */
    enum SortOrder {
        byNumber,
        byDate,           ///< the invoice date
        byDueDate,        ///< invoices without one come first
        byDeliveryDate,   ///< invoices without one come first
        byCustomerNumber, ///< of customers that are gone -1
        byCustomerName,
        byTotalAmount, ///< of the invoice
        byPaymentAmount,
        byPaymentDate,
        byBankAccount, ///< by the bank's name; payments without an account first
        byNumberDescending
    };
    static constexpr int defaultColumnFlags = 0x3ff; ///< all

    struct Entry {
        Invoice invoice; ///< what the journal shows of it; without its type, see invoiceType()
        Payment payment; ///< `amount` in cents
    };

    /** @param registry  not owned */
    explicit PaymentPrintModel(Registry *registry, QObject *parent = nullptr);
    ~PaymentPrintModel() override;

    // Owned by the model; filled in before run().
    InvoiceCriteria *invoiceCriteria() { return &m_invoiceCriteria; }
    PaymentCriteria *paymentCriteria() { return &m_paymentCriteria; }
    int columnFlags() const { return m_columnFlags; }
    /** Bit n shows the column number n of `columns`. */
    void setColumnFlags(int flags) { m_columnFlags = flags; }

    /** Loads the payments; on failure there are none. They stand in the order of the last sort(), by date without one.
     */
    [[nodiscard]] bool run() override;
    /**
     * Sorts what is listed and what run() will list; what is equal keeps its order. Names are compared by code units.
     * @param order  one of SortOrder; any other changes nothing
     */
    void sort(int order);

    /** See PrintModel. Failures of run() and of the export stay in lastError(). */
    QString title() const override { return tr("Suorituspäiväkirja"); }
    QString lastError() const override { return m_lastError; }
    using PrintModel::value;
    QVariant value(QStringList &path) override;
    [[nodiscard]] bool exportToCSV(const QString &fileName, const QString &format) override;

    const QVector<Entry> &entries() const { return m_entries; } ///< valid until the next run() or sort()
    int invoiceType(int invoiceId) const;                       ///< an Invoice::Type; 0 when the invoice cannot be read
    long long totalAmount() const;                              ///< cents; an invoice with several payments counts once
    long long totalPaymentAmount() const;                       ///< cents
    // Null when the registry does not know it.
    const Customer *customer(const Entry &entry) const;
    const BankAccount *bankAccount(const Entry &entry) const;
    const Registry &registry() const { return *m_registry; }                 ///< not owned
    const QStringList &criteriaStrings() const { return m_criteriaStrings; } ///< one line each, made by run()

private:
    Registry *m_registry; ///< not owned
    /** Both must hold. */
    InvoiceCriteria m_invoiceCriteria;
    PaymentCriteria m_paymentCriteria;
    int m_columnFlags = defaultColumnFlags;
    int m_sortOrder = -1;                                  ///< -1: as the search gives them, by date
    QVector<Entry> m_entries;                              ///< in the order shown
    mutable std::optional<QHash<int, int>> m_invoiceTypes; ///< by invoice id; read when first asked for
    QStringList m_criteriaStrings;                         ///< see CriteriaTexts
    QString m_lastError;                                   ///< empty before a failure
};

#endif

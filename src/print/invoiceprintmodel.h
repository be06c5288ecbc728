#ifndef INVOICEPRINTMODEL_H
#define INVOICEPRINTMODEL_H

#include "bankaccount.h"
#include "invoice.h"
#include "invoicecriteria.h"
#include "invoiceitem.h"
#include "printmodel.h"
#include "vat.h"

#include <QHash>
#include <QList>
#include <QVector>

#include <optional>

class Customer;
class Registry;
class Settings;

/**
 * The model behind every invoice document: one or many invoices with their rows, VAT breakdown and customers, the
 * seller and the settings. Paths begin with `invoices`, `seller` or `settings`; the logo is the image `seller/logo`.
 *
 * Holds copies of what it shows; customers are looked up in the registry, whose lists must have been fetched before.
 */
class InvoicePrintModel : public PrintModel {
    Q_OBJECT
public:
    /** Document kinds that a print can ask for in place of every invoice's own type. */
    enum PrintType { ownType = 0, reminder = 3, receipt = 4, deliveryNote = 5 };

    /** @param registry  not owned; its settings and bank accounts must have been fetched */
    explicit InvoicePrintModel(Registry *registry, QObject *parent = nullptr);
    ~InvoicePrintModel() override;

    /** A PrintType; ownType lets each invoice keep its own. */
    int printType() const { return m_printType; }
    void setPrintType(int type) { m_printType = type; }
    void setTitle(const QString &title) { m_title = title; }
    /** See PrintModel; the title is "Lasku", translated, unless set. */
    QString title() const override { return m_title; }
    QString lastError() const override { return m_lastError; }
    QDate date() const override; ///< of the first invoice
    /** Owned by the model; filled in before run(). */
    InvoiceCriteria *criteria() { return &m_criteria; }

    /** Loads the invoices of the criteria and their rows in place of what was there. */
    [[nodiscard]] bool run() override;
    /** Appends an invoice of another model, with its rows. */
    void copyInvoice(InvoicePrintModel *source, int index);
    void copyBankAccounts(); ///< anew from the registry; done by the constructor too
    /** Forgets the invoices; criteria, print type and title stay. */
    void clear();

    /** The pointer is valid until invoices are added or cleared; the index is not checked. */
    int invoiceCount() const { return m_invoices.size(); }
    Invoice *invoice(int index) { return &m_invoices[index]; }
    /** In the order of the rows; empty for an invoice without. */
    const QVector<InvoiceItem> &items(const Invoice &invoice) const;
    /** The sums of an invoice's rows; valid until those of another invoice are asked for. */
    const Vat &vat(const Invoice &invoice) const;
    /** Null when the registry knows no such customer. */
    Customer *customer(const Invoice &invoice) const;
    /** 0 invoice, 1 interest invoice, 2 credit note, 3 payment reminder, 4 receipt, 5 delivery note. */
    int typeCode(const Invoice &invoice) const;
    const QList<BankAccount> &bankAccounts() const { return m_bankAccounts; }
    const QList<BankAccount> &visibleBankAccounts() const { return m_visibleBankAccounts; }
    /** The digits for the first visible account, see Invoice::barcode(); empty without one. */
    QString barcode(const Invoice &invoice, int version) const;
    const QImage &logo() const; ///< null for none
    Settings *settings() const;
    Registry *registry() const { return m_registry; }

    using PrintModel::image;
    using PrintModel::value;
    QVariant value(QStringList &path) override; ///< see InvoicePaths
    QImage image(QStringList &path) override;   ///< `seller/logo` is the only one
    /** One line a row of an invoice, see PrintModel. */
    [[nodiscard]] bool exportToCSV(const QString &fileName, const QString &format) override;

    // What the keys vatNumber, businessId and hasVatNumber of a customer tell.
    virtual QString customerVatNumber(Customer *customer) const;
    virtual QString customerBusinessId(Customer *customer) const;
    virtual bool customerHasVatNumber(Customer *customer) const;

private:
    void setRoundingMode(); ///< of m_vat, by the settings

    Registry *m_registry;       ///< not owned
    InvoiceCriteria m_criteria; ///< conditions of run()
    int m_printType = ownType;  ///< a PrintType
    QString m_title;
    QString m_lastError;                           ///< empty before a failure
    QList<Invoice> m_invoices;                     ///< in the order of the criteria
    QHash<int, QVector<InvoiceItem>> m_items;      ///< by invoice id
    QList<BankAccount> m_bankAccounts;             ///< copies, in the seller's order
    QList<BankAccount> m_visibleBankAccounts;      ///< those of them that are printed
    mutable std::optional<QImage> m_logo;          ///< decoded when first asked for
    mutable Vat m_vat;                             ///< of m_vatInvoice
    mutable const Invoice *m_vatInvoice = nullptr; ///< whose rows m_vat holds
};

#endif

#ifndef INVOICELISTPRINTMODEL_H
#define INVOICELISTPRINTMODEL_H

#include "invoice.h"
#include "invoicecriteria.h"
#include "printmodel.h"
#include "vat.h"

#include <QVector>

class Customer;
class Registry;

/**
 * The model of the invoice list: the invoices of a search, their VAT breakdown and totals, and the search in words.
 * Customers are looked up in the registry, whose list must have been fetched before.
 */
class InvoiceListPrintModel : public PrintModel {
    Q_OBJECT
public:
    /** The first ten are the numbers of the columns. */
    enum SortOrder {
        byNumber,
        byDate,           ///< the invoice date
        byDueDate,        ///< invoices without one come first
        byDeliveryDate,   ///< the stored date: invoices without one come first
        byCustomerNumber, ///< of customers that are gone -1
        byCustomerName,
        byTotalVatExcluded,
        byVatAmount,
        byTotalVatIncluded,
        byBalance, ///< as listed: of the criteria's balance date when there is one
        byNumberDescending
    };
    static constexpr int defaultColumnFlags = 0x1ff; ///< all but the balance and the reference number

    struct Entry {
        Invoice invoice;        ///< without the fields that no list shows
        int totalVatAmount = 0; ///< cents
        Vat vat;                ///< of the invoice's rows
    };

    /** @param registry  not owned */
    explicit InvoiceListPrintModel(Registry *registry, QObject *parent = nullptr);
    ~InvoiceListPrintModel() override;

    /** Owned by the model; filled in before run(). */
    InvoiceCriteria *criteria() { return &m_criteria; }
    int columnFlags() const { return m_columnFlags; }
    /** Bit n shows the column number n of `columns`. */
    void setColumnFlags(int flags) { m_columnFlags = flags; }

    /** Loads the list; on failure it is empty. The order is that of the last sort(), by number without one. */
    [[nodiscard]] bool run() override;
    /**
     * Sorts what is listed and what run() will list, ties by invoice number. Names are compared by code units.
     * @param order  one of SortOrder; any other changes nothing
     */
    void sort(int order);

    /** See PrintModel. The columns of the CSV file are fixed, but for those that the settings file adds. */
    QString title() const override { return tr("Laskuluettelo"); }
    QString lastError() const override { return m_lastError; }
    using PrintModel::value;
    QVariant value(QStringList &path) override;
    /** The error of a failure stays in lastError(). */
    [[nodiscard]] bool exportToCSV(const QString &fileName, const QString &format) override;

    const QVector<Entry> &entries() const { return m_entries; } ///< valid until the next run() or sort()
    const Vat &vat() const { return m_vat; }                    ///< of all rows of all entries
    long long totalBalance() const;                             ///< cents; 64 bits, a list goes beyond an invoice
    const Customer *customer(const Entry &entry) const;         ///< null when the registry does not know it
    const Registry &registry() const { return *m_registry; }    ///< not owned
    const QStringList &criteriaStrings() const { return m_criteriaStrings; } ///< one line each, made by run()

private:
    /** Each fills what its name tells from m_criteria; rows go into the sums of their entry and of the list. */
    void buildCriteriaStrings();
    bool addRows(class Query &query);
    bool fail(const QString &error); ///< empties the list. @return false

    Registry *m_registry;       ///< not owned
    InvoiceCriteria m_criteria; ///< conditions of run()
    int m_columnFlags = defaultColumnFlags;
    int m_sortOrder = byNumber;    ///< a SortOrder
    QVector<Entry> m_entries;      ///< in the order shown
    Vat m_vat;                     ///< by the rounding mode of the settings
    QStringList m_criteriaStrings; ///< see CriteriaTexts
    QString m_lastError;           ///< empty before a failure
};

#endif

#ifndef CUSTOMERLISTPRINTMODEL_H
#define CUSTOMERLISTPRINTMODEL_H

#include "printmodel.h"

#include <QList>

class Customer;
class Registry;

/** The model of the customer register. Its customers belong to the registry (or whoever added them), not to it. */
class CustomerListPrintModel : public PrintModel {
    Q_OBJECT
public:
    /** The numbers of the columns. */
    enum SortOrder { byNumber, byName, byStreetName, byPostCode, byTownName, byCountry, byContact };

    /** @param registry  not owned */
    explicit CustomerListPrintModel(Registry *registry, QObject *parent = nullptr);
    ~CustomerListPrintModel() override;

    /** Appends every customer of the registry, removed ones excepted, in its order. */
    void copyCustomersFromRegistry();
    /** Stays the caller's, must outlive the model. */
    void addCustomer(Customer *customer) { m_customers.append(customer); }
    /**
     * Sorts stably; texts are compared by code units.
     * @param order  one of SortOrder; any other changes nothing
     */
    void sort(int order);

    /** See PrintModel. Values are those of the customers as they stand when asked for. */
    QString title() const override { return tr("Asiakasluettelo"); }
    QString lastError() const override { return m_lastError; }
    using PrintModel::value;
    QVariant value(QStringList &path) override;
    /** The error of a failure stays in lastError(). */
    [[nodiscard]] bool exportToCSV(const QString &fileName, const QString &format) override;

    /** Not owned; in the order of the last sort(). */
    const QList<Customer *> &customers() const { return m_customers; }
    const Registry &registry() const { return *m_registry; } ///< for the seller's name

private:
    Registry *m_registry;          ///< not owned
    QList<Customer *> m_customers; ///< not owned
    QString m_lastError;           ///< of exportToCSV(); empty before a failure
};

#endif

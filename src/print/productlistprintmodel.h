#ifndef PRODUCTLISTPRINTMODEL_H
#define PRODUCTLISTPRINTMODEL_H

#include "printmodel.h"

#include <QList>

class Product;
class Registry;

/** The model of the product register. Its products belong to the registry (or whoever added them), not to it. */
class ProductListPrintModel : public PrintModel {
    Q_OBJECT
public:
    /** The numbers of the columns. */
    enum SortOrder { byNumber, byName, byUnitCode, byAmountVatIncluded, byCategory };

    /** @param registry  not owned */
    explicit ProductListPrintModel(Registry *registry, QObject *parent = nullptr);
    ~ProductListPrintModel() override;

    /** Appends every product of the registry in its order. */
    void copyProductsFromRegistry();
    void addProduct(Product *product) { m_products.append(product); } ///< stays the caller's, must outlive the model
    /**
     * Sorts stably; texts, numbers too, are compared by code units.
     * @param order  one of SortOrder; any other changes nothing
     */
    void sort(int order);

    /** See PrintModel. Values are those of the products as they stand when asked for. */
    QString title() const override { return tr("Tuoteluettelo"); }
    QString lastError() const override { return m_lastError; }
    using PrintModel::value;
    QVariant value(QStringList &path) override;
    /** The error of a failure stays in lastError(). */
    [[nodiscard]] bool exportToCSV(const QString &fileName, const QString &format) override;

    /** Not owned; in the order of the last sort(). */
    const QList<Product *> &products() const { return m_products; }
    const Registry &registry() const { return *m_registry; } ///< for the seller's name

private:
    Registry *m_registry;        ///< not owned
    QList<Product *> m_products; ///< not owned
    QString m_lastError;         ///< of exportToCSV(); empty before a failure
};

#endif

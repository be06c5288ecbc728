#ifndef XMLSCRIPTMODEL_H
#define XMLSCRIPTMODEL_H

#include "invoiceprintmodel.h"

/**
 * The model of an XML document: one invoice, under `invoice` without an index, with the seller and the settings. A
 * customer's field that holds a business ID or a VAT number is told in both forms.
 */
class XmlScriptModel : public InvoicePrintModel {
    Q_OBJECT
public:
    explicit XmlScriptModel(Registry *registry, QObject *parent = nullptr); ///< not owned
    ~XmlScriptModel() override;

    /** Empty. */
    QString title() const override { return QString(); }
    using InvoicePrintModel::value;
    QVariant value(QStringList &path) override;

    /** Both are made of the field `vatNumber`, whichever form it holds; empty, or false, when it is neither. */
    QString customerVatNumber(Customer *customer) const override;
    QString customerBusinessId(Customer *customer) const override;
    bool customerHasVatNumber(Customer *customer) const override;
};

#endif

#ifndef DOCUMENTS_H
#define DOCUMENTS_H

#include "documentmaker.h"

/** The one maker of documents. */
class Documents : public DocumentMaker {
public:
    /** As DocumentMaker has them. */
    void startApplication(int &argc, char **argv) override;
    bool checkInvoices(UseCaseContext &context, const InvoiceCriteria &criteria, std::optional<PrintFormat> format,
                       QVector<ExportInvoices::Checked> &checked) override;
    bool exportInvoices(UseCaseContext &context, const ExportInvoices::Request &request,
                        QVector<ExportInvoices::File> &files) override;
    bool exportList(UseCaseContext &context, ExportList::Kind kind, const ExportList::Request &request,
                    QString &fileName) override;
    bool isScript(const QString &source, QString &reason, int &line) override;
    QSize imageSize(const QByteArray &bytes) override;
};

/** The one object, for who links this folder, and for who looks the function up in the module. */
extern "C" DocumentMaker *billoraDocuments();

#endif

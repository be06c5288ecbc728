#include "documents.h"

#include "invoicedocuments.h"
#include "listdocument.h"

#include <QApplication>
#include <QImage>
#include <QScriptEngine>

DocumentMaker *billoraDocuments()
{
    static Documents documents;
    return &documents;
}

// Never deleted: the destructor would load the font configuration only to free it.
void Documents::startApplication(int &argc, char **argv) { new QApplication(argc, argv); }

bool Documents::checkInvoices(UseCaseContext &context, const InvoiceCriteria &criteria,
                              std::optional<PrintFormat> format, QVector<ExportInvoices::Checked> &checked)
{
    return InvoiceDocuments::check(context, criteria, format, checked);
}

bool Documents::exportInvoices(UseCaseContext &context, const ExportInvoices::Request &request,
                               QVector<ExportInvoices::File> &files)
{
    return InvoiceDocuments::make(context, request, files);
}

bool Documents::exportList(UseCaseContext &context, ExportList::Kind kind, const ExportList::Request &request,
                           QString &fileName)
{
    return ListDocument::make(context, kind, request, fileName);
}

bool Documents::isScript(const QString &source, QString &reason, int &line)
{
    const QScriptSyntaxCheckResult syntax = QScriptEngine::checkSyntax(source);
    reason = syntax.errorMessage().isEmpty() ? QStringLiteral("SyntaxError") : syntax.errorMessage();
    line = syntax.errorLineNumber();
    return syntax.state() == QScriptSyntaxCheckResult::Valid;
}

QSize Documents::imageSize(const QByteArray &bytes)
{
    const QImage image = QImage::fromData(bytes);
    return image.isNull() ? QSize() : image.size();
}

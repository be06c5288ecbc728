#ifndef DOCUMENTMAKER_H
#define DOCUMENTMAKER_H

#include "exportinvoices.h"
#include "exportlist.h"

#include <QSize>

class UseCaseListener;

/**
 * What draws documents and runs scripts. It stands above the use cases, so that a program can do without it, or load it
 * when it is first needed.
 */
class DocumentMaker {
public:
    virtual ~DocumentMaker() = default;

    /** Makes the application object that drawing needs; there must be none. @param argc  outlives the program */
    virtual void startApplication(int &argc, char **argv) = 0;
    // The use cases of the same names.
    [[nodiscard]] virtual bool checkInvoices(UseCaseContext &context, const InvoiceCriteria &criteria,
                                             std::optional<PrintFormat> format,
                                             QVector<ExportInvoices::Checked> &checked) = 0;
    [[nodiscard]] virtual bool exportInvoices(UseCaseContext &context, const ExportInvoices::Request &request,
                                              QVector<ExportInvoices::File> &files) = 0;
    [[nodiscard]] virtual bool exportList(UseCaseContext &context, ExportList::Kind kind,
                                          const ExportList::Request &request, QString &fileName) = 0;
    /** Whether a script can be parsed. @param reason  why not, with its line */
    virtual bool isScript(const QString &source, QString &reason, int &line) = 0;
    virtual QSize imageSize(const QByteArray &bytes) = 0; ///< pixels; invalid for what is no image

    /** Where a program has it from; set before the first use. */
    struct Source {
        /** @return null with the reason when it is not there */
        DocumentMaker *(*load)(QString &reason) = nullptr;
        /** Called before something is drawn, each time; null where the program is ready anyway. */
        void (*startDrawing)(DocumentMaker &maker) = nullptr;
    };
    static void setSource(const Source &source);
    /** @param draws  see Source::startDrawing(). @return null, with documentsUnavailable told, when it is not there */
    static DocumentMaker *get(UseCaseListener &listener, bool draws);
};

#endif

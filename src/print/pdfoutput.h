#ifndef PDFOUTPUT_H
#define PDFOUTPUT_H

#include "replacedfile.h"

#include <QCoreApplication>
#include <QString>

class QPrinter;

/**
 * Makes a printer write its PDF file as a whole or not at all: it writes beside the file, and a complete document then
 * takes the file's place. The library's own PDF writing tells nobody of a full disk. What is no regular file is written
 * directly; a printer that writes no file is left alone.
 */
class PdfOutput {
    Q_DECLARE_TR_FUNCTIONS(PdfOutput)
public:
    /** @param printer  not owned; has its output file name back when this object is gone */
    explicit PdfOutput(QPrinter *printer);
    ~PdfOutput();

    /** To be called before the painter begins, which would only warn on standard error. */
    [[nodiscard]] bool open();
    /** To be called when the painter has ended. @return whether the document is in the file */
    [[nodiscard]] bool commit();
    QString errorString() const { return m_errorString; }

private:
    bool fail(const QString &message);
    bool isWritten() const;

    QPrinter *m_printer;
    const QString m_fileName; ///< as given; empty for no file
    ReplacedFile m_place;
    QString m_errorString;
};

#endif

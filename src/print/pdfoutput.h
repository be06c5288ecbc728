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
    [[nodiscard]] bool open(); ///< also makes the temporary file, in which nobody could have put a link
    /** To be called when the painter has ended. @return whether the document is in the file */
    [[nodiscard]] bool commit();
    /** The system's own text or a translated one; null until a failure. */
    QString errorString() const { return m_errorString; }

private:
    bool fail(const QString &message); ///< keeps the message. @return false
    bool isWritten() const;            ///< looks for the end mark %%EOF: the library reports no error of writing

    QPrinter *m_printer;      ///< not owned
    const QString m_fileName; ///< as given; empty for no file
    ReplacedFile m_place;     ///< without a place for pipes and for printers that write no file
    QString m_errorString;    ///< null until a failure
};

#endif

#ifndef PDFOUTPUT_H
#define PDFOUTPUT_H

#include "replacedfile.h"

#include <QCoreApplication>
#include <QDate>
#include <QString>

class QPainter;
class QPrinter;

/**
 * Makes a printer write its PDF file as a whole or not at all: it writes beside the file, and a complete document then
 * takes the file's place. The library's own PDF writing tells nobody of a full disk. What is no regular file is written
 * directly; a printer that writes no file is left alone.
 *
 * The same document has the same bytes on every day and in every time zone: its creation is the beginning of the day
 * that it is of. Only what is no regular file has the time of its writing.
 */
class PdfOutput {
    Q_DECLARE_TR_FUNCTIONS(PdfOutput)
public:
    /**
     * @param printer  not owned; has its output file name back when this object is gone
     * @param date     the day that the document is of
     */
    PdfOutput(QPrinter *printer, const QDate &date);
    ~PdfOutput();

    /**
     * Makes the temporary file, in which nobody could have put a link, and begins to paint into it.
     * @return false with the reason in errorString(), which stays null where the library has none
     */
    [[nodiscard]] bool begin(QPainter &painter);
    /** To be called when the painter has ended. @return whether the document is in the file */
    [[nodiscard]] bool commit();
    /** The system's own text or a translated one; null until a failure. */
    QString errorString() const { return m_errorString; }

private:
    bool fail(const QString &message); ///< keeps the message. @return false
    bool open();                       ///< the library would only warn on standard error
    bool finish() const;               ///< sets the creation. @return whether the document has its end

    QPrinter *m_printer;      ///< not owned
    const QDate m_date;       ///< of the document
    const QString m_fileName; ///< as given; empty for no file
    ReplacedFile m_place;     ///< without a place for pipes and for printers that write no file
    QString m_errorString;    ///< null until a failure
};

#endif

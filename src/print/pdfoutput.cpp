#include "pdfoutput.h"

#include <QFile>
#include <QFileInfo>
#include <QPrinter>

PdfOutput::PdfOutput(QPrinter *printer)
    : m_printer(printer),
      m_fileName(printer->outputFormat() == QPrinter::PdfFormat ? printer->outputFileName() : QString()),
      m_place(m_fileName)
{
    if (!m_place.temporaryName().isEmpty())
        m_printer->setOutputFileName(m_place.temporaryName());
}

PdfOutput::~PdfOutput()
{
    if (!m_place.temporaryName().isEmpty())
        m_printer->setOutputFileName(m_fileName);
}

/** Whether the document has its end; the writing itself reports no errors. */
bool PdfOutput::isWritten() const
{
    static const QByteArray end = QByteArrayLiteral("%%EOF\n");
    QFile file(m_place.temporaryName());
    return file.open(QIODevice::ReadOnly) && file.seek(qMax(0LL, file.size() - end.size())) && file.readAll() == end;
}

bool PdfOutput::fail(const QString &message)
{
    m_errorString = message;
    return false;
}

bool PdfOutput::open()
{
    if (m_fileName.isEmpty())
        return true;
    if (!m_place.mayBeReplaced())
        return fail(m_place.errorString());
    // A pipe must not be opened here: closing it would tell its reader that all is over.
    if (m_place.temporaryName().isEmpty())
        return true;
    QFile file(m_place.temporaryName());
    return file.open(QIODevice::WriteOnly | QIODevice::NewOnly) || fail(file.errorString());
}

bool PdfOutput::commit()
{
    if (m_place.temporaryName().isEmpty())
        return true;
    if (!isWritten())
        return fail(tr("Tiedoston kirjoittaminen jäi kesken"));
    return m_place.putInPlace() || fail(m_place.errorString());
}

#include "pdfoutput.h"

#include "utczone.h"

#include <QFile>
#include <QFileInfo>
#include <QPainter>
#include <QPrinter>

PdfOutput::PdfOutput(QPrinter *printer, const QDate &date)
    : m_printer(printer), m_date(date),
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

/** The writing itself reports no errors: a whole document is known by its end. */
bool PdfOutput::finish() const
{
    static const QByteArray creation = QByteArrayLiteral("/CreationDate (D:"), end = QByteArrayLiteral("%%EOF\n");
    constexpr qint64 headSize = 1024; // bytes; the creation is in the first object
    QFile file(m_place.temporaryName());
    if (!file.open(QIODevice::ReadWrite))
        return false;
    const int place = file.read(headSize).indexOf(creation);
    const QByteArray moment = m_date.toString(QStringLiteral("yyyyMMdd000000")).toLatin1();
    if (place >= 0 && (!file.seek(place + creation.size()) || file.write(moment) != moment.size()))
        return false;
    return file.seek(qMax(0LL, file.size() - end.size())) && file.readAll() == end;
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

bool PdfOutput::begin(QPainter &painter)
{
    if (!open())
        return false;
    // The library writes the creation now, with the offset from UTC behind it, which would be longer elsewhere.
    const UtcZone utc;
    return painter.begin(m_printer);
}

bool PdfOutput::commit()
{
    if (m_place.temporaryName().isEmpty())
        return true;
    if (!finish())
        return fail(tr("Tiedoston kirjoittaminen jäi kesken"));
    return m_place.putInPlace() || fail(m_place.errorString());
}

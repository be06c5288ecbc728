#include "pdfoutput.h"

#include <QFile>
#include <QFileInfo>
#include <QPrinter>

#include <cerrno>
#include <cstdio>
#include <cstring>

PdfOutput::PdfOutput(QPrinter *printer)
    : m_printer(printer),
      m_fileName(printer->outputFormat() == QPrinter::PdfFormat ? printer->outputFileName() : QString())
{
    const QFileInfo file(m_fileName);
    if (m_fileName.isEmpty() || (file.exists() && !file.isFile()))
        return;
    m_target = file.exists() ? file.canonicalFilePath() : m_fileName;
    // A name of its own length: the file's may be as long as the file system takes.
    m_temporary = QStringLiteral("%1/.billora-%2.tmp")
                      .arg(QFileInfo(m_target).absolutePath(), QString::number(QCoreApplication::applicationPid()));
    m_printer->setOutputFileName(m_temporary);
}

PdfOutput::~PdfOutput()
{
    if (m_temporary.isEmpty())
        return;
    QFile::remove(m_temporary);
    m_printer->setOutputFileName(m_fileName);
}

/** Whether the document has its end; the writing itself reports no errors. */
bool PdfOutput::isWritten() const
{
    static const QByteArray end = QByteArrayLiteral("%%EOF\n");
    QFile file(m_temporary);
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
    // A pipe must not be opened here: closing it would tell its reader that all is over.
    if (m_temporary.isEmpty() && !QFileInfo(m_fileName).isDir())
        return true;
    const QFileInfo target(m_fileName);
    if (target.exists() && !target.isWritable()) // a rename would not ask
        return fail(QString::fromLocal8Bit(std::strerror(EACCES)));
    QFile file(m_temporary.isEmpty() ? m_fileName : m_temporary);
    return file.open(QIODevice::WriteOnly) || fail(file.errorString());
}

bool PdfOutput::commit()
{
    if (m_temporary.isEmpty())
        return true;
    if (!isWritten())
        return fail(tr("Tiedoston kirjoittaminen jäi kesken"));
    if (QFile::exists(m_target))
        QFile::setPermissions(m_temporary, QFile::permissions(m_target));
    if (std::rename(QFile::encodeName(m_temporary), QFile::encodeName(m_target)) != 0)
        return fail(qt_error_string(errno));
    return true;
}

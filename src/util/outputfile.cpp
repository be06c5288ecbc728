#include "outputfile.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

OutputFile::OutputFile(const QString &fileName)
{
    const QFileInfo existing(fileName);
    if (existing.exists() && !existing.isFile() && !existing.isDir()) {
        m_file = std::make_unique<QFile>(fileName);
        return;
    }
    m_file = std::make_unique<QSaveFile>(fileName);
}

OutputFile::~OutputFile() = default;

bool OutputFile::open() { return m_file->open(QIODevice::WriteOnly); }

bool OutputFile::commit()
{
    const bool isFlushed = m_file->flush() && m_file->error() == QFileDevice::NoError;
    if (auto *file = qobject_cast<QSaveFile *>(m_file.get())) {
        if (!isFlushed)
            file->cancelWriting(); // the library itself does not notice what fails only now, as on a full disk
        return file->commit();
    }
    const bool isWritten = isFlushed;
    m_file->close();
    return isWritten && m_file->error() == QFileDevice::NoError;
}

QIODevice *OutputFile::device() const { return m_file.get(); }

QString OutputFile::errorString() const { return m_file->errorString(); }

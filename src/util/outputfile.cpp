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
    auto file = std::make_unique<QSaveFile>(fileName);
    file->setDirectWriteFallback(true); // where only the file, not its folder, may be written
    m_file = std::move(file);
}

OutputFile::~OutputFile() = default;

bool OutputFile::open() { return m_file->open(QIODevice::WriteOnly); }

bool OutputFile::commit()
{
    if (auto *file = qobject_cast<QSaveFile *>(m_file.get()))
        return file->commit();
    m_file->flush();
    const bool isWritten = m_file->error() == QFileDevice::NoError;
    m_file->close();
    return isWritten && m_file->error() == QFileDevice::NoError;
}

QIODevice *OutputFile::device() const { return m_file.get(); }

QString OutputFile::errorString() const { return m_file->errorString(); }

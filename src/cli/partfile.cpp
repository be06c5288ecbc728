#include "partfile.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <unistd.h>

namespace {

constexpr int tailLength = 64;

} // namespace

PartFile::PartFile(const QString &fileName) : m_fileName(fileName)
{
    // Short and without the name's own letters, so that any name that is legal makes a legal one.
    m_partName = QStringLiteral("%1/.billora-%2.part").arg(QFileInfo(fileName).path()).arg(::getpid());
}

PartFile::~PartFile()
{
    if (!m_partName.isEmpty())
        QFile::remove(m_partName);
}

bool PartFile::fail(const QString &reason)
{
    m_lastError = tr("Tiedostoa %1 ei voi kirjoittaa: %2").arg(m_fileName, reason);
    return false;
}

bool PartFile::create()
{
    if (QFileInfo(m_fileName).isDir())
        return fail(QString::fromLocal8Bit(std::strerror(EISDIR)));
    QFile file(m_partName);
    if (!file.open(QIODevice::WriteOnly)) {
        fail(file.errorString());
        m_partName.clear();
        return false;
    }
    return true;
}

bool PartFile::endsWith(const QByteArray &ending) const
{
    QFile file(m_partName);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    file.seek(qMax<qint64>(0, file.size() - tailLength));
    return file.readAll().trimmed().endsWith(ending);
}

bool PartFile::commit(const QByteArray &ending)
{
    if (!endsWith(ending))
        return fail(tr("levy on täynnä tai kirjoitus keskeytyi"));
    if (std::rename(QFile::encodeName(m_partName).constData(), QFile::encodeName(m_fileName).constData()) != 0)
        return fail(QString::fromLocal8Bit(std::strerror(errno)));
    m_partName.clear();
    return true;
}

#include "replacedfile.h"

#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include <cerrno>
#include <cstdio>

ReplacedFile::ReplacedFile(const QString &fileName) : m_fileName(fileName)
{
    const QFileInfo file(fileName);
    if (fileName.isEmpty() || (file.exists() && !file.isFile()))
        return;
    m_target = file.exists() ? file.canonicalFilePath() : fileName;
    // A name of its own length: the file's may be as long as the file system takes.
    // Nobody can guess it and put a link there.
    m_temporary =
        QStringLiteral("%1/.billora-%2.tmp")
            .arg(QFileInfo(m_target).absolutePath(), QString::number(QRandomGenerator::system()->generate64(), 36));
}

ReplacedFile::~ReplacedFile()
{
    if (!m_temporary.isEmpty())
        QFile::remove(m_temporary);
}

bool ReplacedFile::fail(int error)
{
    m_errorString = qt_error_string(error);
    return false;
}

bool ReplacedFile::mayBeReplaced()
{
    const QFileInfo file(m_fileName);
    if (file.isDir())
        return fail(EISDIR);
    return !file.exists() || file.isWritable() || fail(EACCES); // a rename would not ask
}

bool ReplacedFile::putInPlace()
{
    if (QFile::exists(m_target))
        QFile::setPermissions(m_temporary, QFile::permissions(m_target));
    return std::rename(QFile::encodeName(m_temporary), QFile::encodeName(m_target)) == 0 || fail(errno);
}

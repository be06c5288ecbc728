#include "replacedfile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include <cerrno>
#include <cstdio>

namespace {

QString randomText() { return QString::number(QRandomGenerator::system()->generate64(), 36); }

/** How temporary names of this process, and of its children, begin. */
const QString &prefix()
{
    static const QString text = QStringLiteral(".billora-%1-").arg(randomText());
    return text;
}

/** The file behind a symbolic link. */
QString target(const QFileInfo &file) { return file.exists() ? file.canonicalFilePath() : file.filePath(); }

} // namespace

ReplacedFile::ReplacedFile(const QString &fileName) : m_fileName(fileName)
{
    const QFileInfo file(fileName);
    if (fileName.isEmpty() || (file.exists() && !file.isFile()))
        return;
    m_target = target(file);
    // A name of its own length: the file's may be as long as the file system takes.
    // Nobody can guess it and put a link there.
    m_temporary = QStringLiteral("%1/%2%3.tmp").arg(QFileInfo(m_target).absolutePath(), prefix(), randomText());
    m_unfinished.emplace(m_temporary);
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

void ReplacedFile::removeLeftOvers(const QString &fileName)
{
    QDir folder(QFileInfo(target(QFileInfo(fileName))).absolutePath());
    for (const QString &name : folder.entryList({prefix() + QLatin1Char('*')}, QDir::Files | QDir::Hidden))
        folder.remove(name);
}

void ReplacedFile::prepareFork() { prefix(); }

#include "journalfile.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr int waits = 200, waitMicroseconds = 50000;
constexpr int pieceSize = 1 << 18; // bytes
constexpr mode_t readableAndWritable = 0666;

bool writeAll(int file, const QByteArray &bytes)
{
    ssize_t written = 0;
    do {
        written = ::write(file, bytes.constData(), static_cast<size_t>(bytes.size()));
    } while (written < 0 && errno == EINTR);
    if (written >= 0 && written < bytes.size())
        errno = ENOSPC;
    return written == bytes.size();
}

} // namespace

JournalFile::JournalFile(const QString &database)
    : m_database(QFileInfo(database).canonicalFilePath()), m_name(m_database + QLatin1String(".journal"))
{
}

JournalFile::~JournalFile() { release(); }

void JournalFile::release()
{
    if (m_file >= 0)
        ::close(m_file); // and with it the lock
    m_file = -1;
}

bool JournalFile::failWith(int error)
{
    release();
    return fail(qt_error_string(error));
}

bool JournalFile::take(int kind)
{
    for (int i = 0; i < waits; ++i) {
        if (::flock(m_file, kind | LOCK_NB) == 0)
            return true;
        if (errno != EWOULDBLOCK && errno != EINTR)
            break;
        ::usleep(waitMicroseconds);
    }
    return failWith(errno);
}

QByteArray JournalFile::head() const
{
    QFile file(m_name + QLatin1String(".head"));
    return file.open(QIODevice::ReadOnly) ? file.readAll().trimmed() : QByteArray();
}

bool JournalFile::lock(QByteArray &head, QByteArray &last)
{
    release();
    struct stat database = {};
    const mode_t mode = ::stat(QFile::encodeName(m_database), &database) == 0 ? database.st_mode & readableAndWritable
                                                                              : S_IRUSR | S_IWUSR;
    const QByteArray name = QFile::encodeName(m_name);
    m_file = ::open(name, O_RDWR | O_CREAT | O_APPEND | O_CLOEXEC | O_NOFOLLOW, S_IRUSR | S_IWUSR);
    if (m_file < 0 || !take(LOCK_EX))
        return m_file < 0 ? failWith(errno) : false;
    const off_t size = ::lseek(m_file, 0, SEEK_END);
    if (size == 0 && ::fchmod(m_file, mode) != 0)
        return failWith(errno);
    head = this->head();
    // Back from the end to the last line that is whole.
    QByteArray tail;
    off_t from = size;
    int end = -1, begin = -1;
    while (from > 0 && begin < 0) {
        const off_t length = std::min<off_t>(from, pieceSize);
        QByteArray piece(static_cast<int>(length), Qt::Uninitialized);
        from -= length;
        if (::pread(m_file, piece.data(), static_cast<size_t>(length), from) != length)
            return failWith(EIO);
        tail.prepend(piece);
        end = tail.lastIndexOf('\n');
        begin = end <= 0 ? -1 : tail.lastIndexOf('\n', end - 1);
    }
    m_isTorn = size > 0 && !tail.endsWith('\n');
    last = end < 0 ? QByteArray() : tail.mid(begin + 1, end - begin - 1);
    return true;
}

bool JournalFile::writeHead(const QByteArray &head, bool toDisk)
{
    const QByteArray name = QFile::encodeName(m_name + QLatin1String(".head")), fresh = name + ".new";
    struct stat journal = {};
    const int file = ::open(fresh, O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC | O_NOFOLLOW, S_IRUSR | S_IWUSR);
    if (file < 0)
        return false;
    const bool written = ::fstat(m_file, &journal) == 0 && ::fchmod(file, journal.st_mode & readableAndWritable) == 0 &&
                         writeAll(file, head + '\n') && (!toDisk || ::fsync(file) == 0);
    const int error = errno;
    ::close(file);
    errno = error;
    return written && std::rename(fresh, name) == 0;
}

bool JournalFile::write(const QByteArray &intent, const QVector<Line> &lines, const QByteArray &head)
{
    QByteArray bytes;
    if (m_isTorn)
        bytes += '\n'; // what was cut off stays, as a line that is none
    for (const Line &line : lines)
        bytes += line.text + '\n';
    // The intent tells what the last line was and will be: a power cut here is told from lines taken away.
    if (!writeHead(intent, true) || !writeAll(m_file, bytes) || ::fsync(m_file) != 0 || !writeHead(head, false))
        return failWith(errno);
    release();
    return true;
}

bool JournalFile::read(QByteArray &head, const Each &each, int)
{
    release();
    head = this->head();
    m_file = ::open(QFile::encodeName(m_name), O_RDONLY | O_CLOEXEC);
    if (m_file < 0)
        return errno == ENOENT || failWith(errno);
    if (!take(LOCK_SH))
        return false;
    head = this->head();
    off_t left = ::lseek(m_file, 0, SEEK_END);
    ::lseek(m_file, 0, SEEK_SET);
    ::flock(m_file, LOCK_UN); // what is added from now on lies behind
    QByteArray bytes, piece(pieceSize, Qt::Uninitialized);
    bool isWanted = true;
    while (isWanted && left > 0) {
        const ssize_t size = ::read(m_file, piece.data(), static_cast<size_t>(std::min<off_t>(left, pieceSize)));
        if (size < 0)
            return failWith(errno);
        if (size == 0)
            break;
        left -= size;
        bytes.append(piece.constData(), static_cast<int>(size));
        int from = 0;
        for (int end = bytes.indexOf('\n'); isWanted && end >= 0; end = bytes.indexOf('\n', from)) {
            isWanted = each(bytes.mid(from, end - from));
            from = end + 1;
        }
        bytes.remove(0, from);
    }
    if (isWanted && !bytes.isEmpty())
        each(bytes);
    release();
    return true;
}

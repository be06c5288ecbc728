#include "childprocess.h"

#include <QFile>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using Length = quint32;

/** Set in the copy only: the limits are for it. */
bool isChild = false;

/** @return whether all of it was written */
bool writeAll(int descriptor, const QByteArray &bytes)
{
    qint64 done = 0;
    while (done < bytes.size()) {
        const ssize_t written = ::write(descriptor, bytes.constData() + done, size_t(bytes.size() - done));
        if (written < 0 && errno != EINTR)
            return false;
        done += qMax<qint64>(written, 0);
    }
    return true;
}

/** Lowers a limit; never raises one. */
void setLimit(__rlimit_resource_t resource, rlim_t wanted)
{
    rlimit limit;
    if (::getrlimit(resource, &limit) == 0) {
        limit.rlim_cur = qMin(limit.rlim_max, wanted);
        ::setrlimit(resource, &limit);
    }
}

[[noreturn]] void runChild(const std::function<void(const ChildProcess::Send &)> &work, int descriptor)
{
    isChild = true;
    ::prctl(PR_SET_PDEATHSIG, SIGKILL); // nobody would wait for the rest
    setLimit(RLIMIT_CORE, 0);           // the death is told, it need not be examined
    for (const int signal : {SIGSEGV, SIGBUS, SIGABRT, SIGXCPU})
        std::signal(signal, SIG_DFL);
    std::set_terminate([] { std::abort(); }); // without the library's words on standard error
    work([descriptor](const QByteArray &message) {
        const Length length = Length(message.size());
        if (!writeAll(descriptor, QByteArray(reinterpret_cast<const char *>(&length), sizeof length) + message))
            ::_exit(EXIT_FAILURE);
    });
    ::_exit(EXIT_SUCCESS); // what the process has open, buffered or registered is not the copy's to close
}

void readMessages(int descriptor, const std::function<void(const QByteArray &)> &receive)
{
    QByteArray bytes;
    char buffer[4096];
    for (;;) {
        const ssize_t count = ::read(descriptor, buffer, sizeof buffer);
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return;
        bytes.append(buffer, int(count));
        Length length;
        while (bytes.size() >= int(sizeof length)) {
            std::memcpy(&length, bytes.constData(), sizeof length);
            if (Length(bytes.size()) - sizeof length < length)
                break;
            receive(bytes.mid(sizeof length, int(length)));
            bytes.remove(0, int(sizeof length + length));
        }
    }
}

} // namespace

bool ChildProcess::run(const std::function<void(const Send &)> &work,
                       const std::function<void(const QByteArray &)> &receive)
{
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC) != 0) {
        work(receive);
        return true;
    }
    std::fflush(nullptr);
    const pid_t child = ::fork();
    if (child == 0) {
        ::close(ends[0]);
        runChild(work, ends[1]);
    }
    ::close(ends[1]);
    if (child > 0)
        readMessages(ends[0], receive);
    ::close(ends[0]);
    if (child < 0) {
        work(receive);
        return true;
    }
    int status = 0;
    while (::waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    return WIFEXITED(status) && WEXITSTATUS(status) == EXIT_SUCCESS;
}

void ChildProcess::limitMemory(qint64 bytes)
{
#ifndef __SANITIZE_ADDRESS__
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!isChild || !file.open(QIODevice::ReadOnly))
        return;
    const qint64 pages = file.readLine().split(' ').value(0).toLongLong();
    setLimit(RLIMIT_AS, rlim_t(pages * ::sysconf(_SC_PAGESIZE) + bytes));
#else
    Q_UNUSED(bytes)
#endif
}

void ChildProcess::limitTime(int seconds)
{
    rusage used;
    if (isChild && ::getrusage(RUSAGE_SELF, &used) == 0)
        setLimit(RLIMIT_CPU, rlim_t(used.ru_utime.tv_sec + used.ru_stime.tv_sec + 1 + seconds));
}

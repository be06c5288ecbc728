#include "unfinishedfile.h"

#include <QFile>

#include <cstring>
#include <unistd.h>

namespace {

constexpr int slotCount = 8;
constexpr int longestName = 4096;
constexpr int watchedSignals[] = {SIGINT, SIGTERM, SIGHUP};

// What the handler reads: plain memory. A name counts once its first byte stands.
char names[slotCount][longestName];

void removeFiles(int signal)
{
    for (const auto &name : names) {
        if (name[0] != 0)
            ::unlink(name);
    }
    ::signal(signal, SIG_DFL);
    ::raise(signal);
}

/** A signal that is ignored, as under nohup, stays so. */
void watchSignals()
{
    for (const int signal : watchedSignals) {
        struct sigaction present = {};
        if (::sigaction(signal, nullptr, &present) != 0 || present.sa_handler != SIG_DFL)
            continue;
        struct sigaction removing = {};
        removing.sa_handler = removeFiles;
        ::sigaction(signal, &removing, nullptr);
    }
}

} // namespace

SignalPause::SignalPause()
{
    sigset_t paused;
    sigemptyset(&paused);
    for (const int signal : watchedSignals)
        sigaddset(&paused, signal);
    ::sigprocmask(SIG_BLOCK, &paused, &m_earlier);
}

SignalPause::~SignalPause() { ::sigprocmask(SIG_SETMASK, &m_earlier, nullptr); }

UnfinishedFile::UnfinishedFile(const QString &name)
{
    static const bool isWatching = (watchSignals(), true);
    Q_UNUSED(isWatching)
    const QByteArray path = QFile::encodeName(name);
    for (int i = 0; i < slotCount && m_slot < 0 && !path.isEmpty() && path.size() < longestName; ++i) {
        if (names[i][0] != 0)
            continue;
        m_slot = i;
        std::memcpy(names[i] + 1, path.constData() + 1, static_cast<std::size_t>(path.size()));
        names[i][0] = path.at(0);
    }
}

UnfinishedFile::~UnfinishedFile()
{
    if (m_slot >= 0)
        names[m_slot][0] = 0;
}

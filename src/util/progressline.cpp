#include "progressline.h"

#include <cstdio>
#include <unistd.h>

namespace {

constexpr qint64 firstMs = 1000; // what takes less needs no telling
constexpr qint64 stepMs = 200;

} // namespace

ProgressLine::ProgressLine(int total) : m_total(total), m_isTerminal(::isatty(STDERR_FILENO) == 1), m_nextMs(firstMs)
{
    m_timer.start();
}

ProgressLine::~ProgressLine()
{
    if (m_isShown)
        std::fputs("\r\033[K", stderr);
}

void ProgressLine::show(int done)
{
    if (!m_isTerminal || m_timer.elapsed() < m_nextMs)
        return;
    m_nextMs = m_timer.elapsed() + stepMs;
    m_isShown = true;
    std::fprintf(stderr, "\r%d / %d", done, m_total);
    std::fflush(stderr);
}

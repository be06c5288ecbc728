#include "progressbar.h"

#include "terminal.h"

#include <QString>

#include <unistd.h>

namespace {

constexpr int least = 20; // fewer are done before a bar is read
constexpr int width = 30;
constexpr qint64 stepMs = 100;

} // namespace

ProgressBar::ProgressBar(int total) : m_total(total), m_isWanted(total >= least && Terminal::isError())
{
    m_sinceLast.start();
}

ProgressBar::~ProgressBar()
{
    if (m_isShown)
        Terminal::write(STDERR_FILENO, "\r\033[K");
}

void ProgressBar::show(int done)
{
    if (!m_isWanted || (m_isShown && m_sinceLast.elapsed() < stepMs))
        return;
    m_sinceLast.restart();
    m_isShown = true;
    const int filled = static_cast<int>(static_cast<long long>(done) * width / m_total);
    const QString bar = QString(filled, QLatin1Char('#')) + QString(width - filled, QLatin1Char('.'));
    Terminal::write(STDERR_FILENO,
                    QStringLiteral("\r[%1] %2/%3").arg(bar, QString::number(done), QString::number(m_total)).toUtf8());
}

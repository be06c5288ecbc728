#include "terminal.h"

#include <QTextCodec>

#include <cerrno>
#include <cwchar>
#include <poll.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace {

constexpr int usualWidth = 80;
constexpr int leastWidth = 20;

int lastOutputError = 0;

int columnsOf(uint codePoint)
{
    if (codePoint < 0x300) // no locale is needed to know these
        return codePoint < 32 || codePoint == 127 ? 0 : 1;
    const int columns = ::wcwidth(static_cast<wchar_t>(codePoint));
    return columns < 0 ? 1 : columns;
}

} // namespace

bool Terminal::isInput() { return ::isatty(STDIN_FILENO) == 1; }

bool Terminal::isOutput() { return ::isatty(STDOUT_FILENO) == 1; }

bool Terminal::isError() { return ::isatty(STDERR_FILENO) == 1; }

int Terminal::width()
{
    const int asked = qEnvironmentVariableIntValue("COLUMNS");
    if (asked >= leastWidth)
        return asked;
    winsize size = {};
    if (::ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col >= leastWidth)
        return size.ws_col;
    return usualWidth;
}

int Terminal::width(const QString &text)
{
    int columns = 0;
    const QVector<uint> codePoints = text.toUcs4();
    for (const uint codePoint : codePoints)
        columns += columnsOf(codePoint);
    return columns;
}

QString Terminal::fitted(const QString &text, int columns)
{
    if (width(text) <= columns)
        return text;
    QString kept;
    int used = 1; // the ellipsis
    const QVector<uint> codePoints = text.toUcs4();
    for (const uint codePoint : codePoints) {
        used += columnsOf(codePoint);
        if (used > columns)
            break;
        kept += QString::fromUcs4(&codePoint, 1);
    }
    return kept + QChar(0x2026);
}

bool Terminal::write(int descriptor, const QByteArray &bytes)
{
    const char *rest = bytes.constData();
    qint64 length = bytes.size();
    while (length > 0) {
        const ssize_t written = ::write(descriptor, rest, static_cast<std::size_t>(length));
        if (written < 0 && errno == EINTR)
            continue;
        if (written < 0 && (errno == EAGAIN || errno == EWOULDBLOCK)) { // the reader's pipe is full and set not to wait
            pollfd wait = {descriptor, POLLOUT, 0};
            ::poll(&wait, 1, -1);
            continue;
        }
        if (written <= 0) {
            if (descriptor == STDOUT_FILENO && errno != EPIPE)
                lastOutputError = errno;
            return false;
        }
        rest += written;
        length -= written;
    }
    return true;
}

QString Terminal::outputError() { return lastOutputError == 0 ? QString() : qt_error_string(lastOutputError); }

void Terminal::writeError(const QString &line)
{
    write(STDERR_FILENO, QTextCodec::codecForLocale()->fromUnicode(line + QLatin1Char('\n')));
}

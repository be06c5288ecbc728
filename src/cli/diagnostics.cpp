#include "diagnostics.h"

#include <QTextCodec>

#include <cstdio>

void Diagnostics::printErrorMessage(const QString &message) const
{
    const QByteArray line = QTextCodec::codecForLocale()->fromUnicode(message + QLatin1Char('\n'));
    std::fwrite(line.constData(), 1, static_cast<std::size_t>(line.size()), stderr);
}

void Diagnostics::printDebugMessage(const QString &message) const
{
    if (verbose)
        printErrorMessage(message);
}

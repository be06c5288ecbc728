#include "commandstatus.h"

void CommandStatus::clear()
{
    command.clear();
    lastError.clear();
    exitCode = 0;
    m_answered = false;
}

void CommandStatus::endAnswered(ExitCode code)
{
    exitCode = static_cast<int>(code);
    m_answered = true;
}

bool CommandStatus::fail(ExitCode code, const QString &message)
{
    lastError = message;
    exitCode = static_cast<int>(code);
    return false;
}

bool CommandStatus::failUnknownParameter(const QString &key)
{
    return fail(ExitCode::badCommandLine, tr("Virheellinen parametri: %1").arg(key));
}

QString CommandStatus::prefixedError() const
{
    return command.isEmpty() ? lastError : command + QLatin1String(": ") + lastError;
}

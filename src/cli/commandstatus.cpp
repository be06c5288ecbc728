#include "commandstatus.h"

#include "diagnostics.h"
#include "sentences.h"

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

bool CommandStatus::fail(Failure::Code code, const QStringList &arguments)
{
    lastError = Sentences::text(code, arguments);
    if (Sentences::exitCode(code) != ExitCode::success)
        exitCode = static_cast<int>(Sentences::exitCode(code));
    return false;
}

void CommandStatus::note(Notice::Code code, const QStringList &arguments)
{
    if (m_diagnostics.verbose)
        m_diagnostics.printDebugMessage(Sentences::text(code, arguments));
}

QString CommandStatus::prefixedError() const
{
    return command.isEmpty() ? lastError : command + QLatin1String(": ") + lastError;
}

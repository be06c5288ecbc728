#ifndef COMMANDSTATUS_H
#define COMMANDSTATUS_H

#include "exitcode.h"
#include "usecaselistener.h"

#include <QCoreApplication>
#include <QString>

class Diagnostics;

/** The outcome of the command line being executed: the first failure ends it. */
class CommandStatus : public UseCaseListener {
    Q_DECLARE_TR_FUNCTIONS(CommandStatus)
public:
    /** @param diagnostics  where notices go; belongs to the caller */
    explicit CommandStatus(const Diagnostics &diagnostics) : m_diagnostics(diagnostics) {}

    QString command;   ///< the command's name, in front of its error message; empty for an unknown command
    QString lastError; ///< of the last failure, without the command's name; empty after clear()
    int exitCode = 0;  ///< an ExitCode; what the process ends with

    /** For the next command line; the process ends with the exit code of the last. */
    void clear();
    bool hasFailed() const { return exitCode != 0; }
    /** Whether the failure still needs a response that tells it. */
    bool needsAnswer() const { return hasFailed() && !m_answered; }

    /** Ends the command line with an exit code after a response that tells why in its records. */
    void endAnswered(ExitCode code);

    /** Sets message and exit code. @return false, so that a failing operation ends in one line */
    bool fail(ExitCode code, const QString &message);
    bool failUnknownParameter(const QString &key); ///< badCommandLine

    /** Sets the sentence and the exit code that the failure has in this program. @return false */
    bool fail(Failure::Code code, const QStringList &arguments = {}) override;
    /** Tells it on standard error when verbose. */
    void note(Notice::Code code, const QStringList &arguments = {}) override;

    /** The message as it is answered: behind the command's name and a colon. */
    QString prefixedError() const;

private:
    const Diagnostics &m_diagnostics; ///< not owned
    bool m_answered = false;          ///< the response told the failure itself
};

#endif

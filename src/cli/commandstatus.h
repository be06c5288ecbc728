#ifndef COMMANDSTATUS_H
#define COMMANDSTATUS_H

#include "exitcode.h"

#include <QCoreApplication>
#include <QString>

/** The outcome of the command line being executed: the first failure ends it. */
class CommandStatus {
    Q_DECLARE_TR_FUNCTIONS(CommandStatus)
public:
    QString command; ///< the command's name, in front of its error message; empty for an unknown command
    QString lastError;
    int exitCode = 0;

    void clear();
    bool hasFailed() const { return exitCode != 0; }
    /** Whether the failure still needs a response that tells it. */
    bool needsAnswer() const { return hasFailed() && !m_answered; }

    /** Ends the command line with an exit code after a response that tells why in its records. */
    void endAnswered(ExitCode code);

    /** Sets message and exit code. @return false, so that a failing operation ends in one line */
    bool fail(ExitCode code, const QString &message);
    bool failUnknownParameter(const QString &key);

    /** The message as it is answered: behind the command's name and a colon. */
    QString prefixedError() const;

private:
    bool m_answered = false;
};

#endif

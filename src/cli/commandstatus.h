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

    /** Sets message and exit code. @return false, so that a failing operation ends in one line */
    bool fail(ExitCode code, const QString &message);
    bool failUnknownParameter(const QString &key);

    /** The message as it is answered: behind the command's name and a colon. */
    QString prefixedError() const;
};

#endif

#ifndef TASK_H
#define TASK_H

#include "answer.h"
#include "arguments.h"
#include "calendar.h"
#include "command.h"
#include "problem.h"
#include "session.h"
#include "valuereader.h"

/** Who is at the other end, and what was agreed with them. */
struct Manners {
    bool isInteractive = false; ///< questions can be asked
    bool agreesToAll = false;   ///< --yes
    bool isDryRun = false;      ///< commands run as ever, and nothing is stored
};

/** One command being run: what it was given and where its answer goes. */
class Task {
public:
    /** None of the arguments is copied but the manners: the others outlive the task. */
    Task(Session &runSession, const Command &run, const Arguments &given, Answer &to, const Manners &how)
        : session(runSession), command(run), arguments(given), answer(to), manners(how),
          reader(runSession, Calendar::today())
    {
    }

    /** The first problem that is told ends the command. */
    Session &session;
    const Command &command;
    const Arguments &arguments;
    Answer &answer;
    const Manners manners;
    const ValueReader reader; ///< dates count from the day on which the task was made
    int exitCode = 0;         ///< of a command that ended well, 0 or exitNeedsLook

    UseCaseContext &context() { return session.context(); } ///< the session's

    /** Tells the problem that ends the command. @return false */
    bool fail(Problem::Code code, const QString &message, const QString &option = QString(),
              const QString &value = QString());
    bool fail(const Problem &problem) { return session.fail(problem); }

    /** Tells that what is to be done is done in one company at a time. @return false */
    bool failSeveralCompanies();

    /** Answers with the bytes of a document that was made. @return false with the problem told */
    bool answerWithFile(const QString &fileName);

    /** Whether a flag of the command was given. */
    bool flag(const char *name) const { return ValueReader::isTrue(arguments.text(name)); }

    /**
     * Asks before something is lost. With --yes, or in a trial, nothing is asked.
     * @param count  records concerned; above ten, or with `all`, the number must be typed
     * @return false, with the problem told, when the answer is no or nobody can be asked
     */
    bool confirm(const QString &question, int count, bool all);
};

#endif

#ifndef RUNNER_H
#define RUNNER_H

#include "answer.h"
#include "arguments.h"
#include "command.h"
#include "session.h"
#include "task.h"

#include <QByteArray>

/** Runs commands, however they came: one of the command line, a line of a batch, a tool's call. */
class Runner {
public:
    /** @param session  not owned, opened when a command needs it */
    explicit Runner(Session &session) : m_session(session) {}

    /**
     * @param key       of a repeatable request, empty for none
     * @param exitCode  of a command that ended well
     * @return false with the session's problem set; nothing is kept then
     */
    [[nodiscard]] bool run(const Command &command, const Arguments &arguments, Answer &answer, const Manners &manners,
                           const QString &key, int &exitCode);

    /**
     * Runs what a program asks for in JSON, and gives the result as JSON.
     * @param result  without the end of its line
     */
    [[nodiscard]] bool runForProgram(const Command &command, Arguments arguments, const Manners &manners,
                                     const QString &key, QByteArray &result, int &exitCode);

    /** The id of what the last command of the noun saved, 0 for none. */
    int lastSaved(const Command &command) const;

    /** What makes a request the same as another one: a digest of the command and all it was given. */
    static QString digest(const QString &command, const Arguments &arguments);

private:
    /** Flags that are neither yes nor no, and what is missing; the problem is then told. */
    bool check(const Command &command, const Arguments &arguments, const Manners &manners);
    /** Names and types that a program gave must be the command's: nothing is overlooked. */
    bool checkNames(const Command &command, const Arguments &arguments);
    bool runKeyed(Task &task, const QString &key); ///< the request and its key are kept together, or neither

    Session &m_session; ///< not owned
};

#endif

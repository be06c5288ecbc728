#ifndef PROGRAM_H
#define PROGRAM_H

#include "answer.h"
#include "arguments.h"
#include "optionparser.h"
#include "session.h"
#include "task.h"

#include <QStringList>

/** The program: understands a command line, runs it, and tells how it went. */
class Program {
public:
    /** @param words  behind the program's name. @return the exit code */
    int run(const QStringList &words);
    /** The exit code of the process: an answer that was lost on its way is told, and counts. */
    int exitCode(int ofRun) const;

private:
    bool readGlobals(const CommandLine &line);    ///< the session has the problem when it is false
    bool readForm(const Arguments &global);       ///< json, jsonl and csv exclude each other
    void chooseLanguage(const Arguments &global); ///< before anything is told: also the help depends on it
    /** For shells, see Completer. @return 0 whatever is wrong */
    int complete(const QStringList &before, QStringList words);
    /** @return the exit code; an answer that was not written is taken back on failure. */
    int execute(const Command &command, const Arguments &arguments);
    /** The same in each company that the pattern of `--db` names, with the answers in one. */
    int executeForEach(const Command &command, const Arguments &arguments);
    /** To standard error, as JSON in the machine forms. @param company  its number, 0 for none. @return the exit code
     * of the problem */
    int report(const Problem &problem, int company = 0) const;

    Session m_session;       ///< opened when the first command needs it
    AnswerOptions m_options; ///< of the global options
    Manners m_manners;       ///< of the global options
    QString m_key;           ///< of a repeatable request, empty for none
};

#endif

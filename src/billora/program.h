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
    /** Whether the command line draws documents, for which the application object must know fonts. */
    static bool paints(const QStringList &words);

    /** @param words  behind the program's name. @return the exit code */
    int run(const QStringList &words);

private:
    bool readGlobals(const CommandLine &line);
    bool readForm(const Arguments &global);
    void chooseLanguage(const Arguments &global);
    int complete(const QStringList &before, QStringList words);
    int execute(const Command &command, const Arguments &arguments);
    int report(const Problem &problem) const;

    Session m_session;
    AnswerOptions m_options;
    Manners m_manners;
    QString m_key;
};

#endif

#ifndef OPTIONPARSER_H
#define OPTIONPARSER_H

#include "arguments.h"
#include "command.h"
#include "problem.h"

#include <QStringList>

/** A command line, taken apart. */
struct CommandLine {
    const Command *command = nullptr; ///< null: no command, or a noun alone
    QString noun;                     ///< the noun, where there is one
    Arguments arguments;              ///< of the command
    Arguments global;                 ///< of the options that every command knows
    Problem problem;                  ///< set when the line is wrong; what was understood is still there
};

/**
 * Takes the words of a command line apart by the table of commands. Options stand anywhere, `--` ends them; the order
 * of words never matters but for plain words among themselves.
 */
namespace OptionParser {

/** Never fails: what is wrong is in the result, the first problem only. */
CommandLine parse(const QStringList &words);

/** What is missing for the command to run: its required words and options. @return a problem that may not be set */
Problem missing(const Command &command, const Arguments &arguments);

} // namespace OptionParser

#endif

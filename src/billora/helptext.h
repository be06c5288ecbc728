#ifndef HELPTEXT_H
#define HELPTEXT_H

#include "command.h"

#include <QString>

/** The help, made of the table of commands, in the language of the run; at most 80 columns. */
namespace HelpText {

/** @param topic  empty for the program, a noun, a command ("invoice add") or a topic; empty result for none of them */
QString of(const QString &topic);

/** `invoice add CUSTOMER [--row ROW]… [OPTIONS]` */
QString usage(const Command &command);
/** How the value of an option is shown, `DATE`. */
QString placeholder(const Option &option);
/** A command line of the examples, LF included; a long one goes on after a backslash, as a shell reads it. */
QString example(const QString &words, const QString &indent);
/** The names of the topics that are no commands. */
QStringList topics();

} // namespace HelpText

#endif

#ifndef COMMANDTABLE_H
#define COMMANDTABLE_H

#include "command.h"

#include <QStringList>
#include <QVector>

/** All commands, in the order of the help: each noun with its verbs, then the words that stand alone. */
namespace CommandTable {

/** @return the groups, one a noun and one for the plain words */
const QVector<CommandGroup> &groups();
/** @return null when there is none of the name, "invoice add" */
const Command *find(const QString &name);
/** The names of all commands. */
QStringList names();
/** The nouns, each once; a plain word is none. */
QStringList nouns();
/** What a noun is about, Finnish; null for a word that is none. */
const char *nounSummary(const QString &noun);
/** The verbs of a noun. */
QStringList verbs(const QString &noun);

/** The options that every command knows. */
const OptionGroup &globalOptions();
/** The option that the user's word names in the command, its field of that name, or a global one; null for none. */
const Option *findOption(const Command *command, const QString &name);

/** The plain words of a command, in order: its options of that kind, then the required fields of what it adds. */
QVector<const Option *> plainWords(const Command &command);
/** All options that the command knows besides the global ones, fields included. */
QVector<const Option *> options(const Command &command);

/** `dueDate` as it is typed: `due-date`. */
QString hyphenated(const QString &name);
/** `due-date` as fields are named: `dueDate`. */
QString camelCase(const QString &option);

} // namespace CommandTable

#endif

#ifndef COMPLETIONSCRIPT_H
#define COMPLETIONSCRIPT_H

#include <QString>

/** The scripts that make a shell complete the program's words; each asks the program itself, see Completer. */
namespace CompletionScript {

/** @param shell  bash, zsh or fish. @return empty for another one */
QString of(const QString &shell);

} // namespace CompletionScript

#endif

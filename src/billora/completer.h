#ifndef COMPLETER_H
#define COMPLETER_H

#include <QStringList>

class Session;

/**
 * What may stand at the cursor: lines of `value<TAB>description`, and at last `:files` or `:none`. The database is only
 * read, never upgraded; on any trouble nothing is known.
 */
namespace Completer {

/** @param words  of the line behind the program's name; the last one is at the cursor, perhaps empty */
QStringList complete(Session &session, const QStringList &words);

} // namespace Completer

#endif

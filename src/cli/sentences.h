#ifndef SENTENCES_H
#define SENTENCES_H

#include "exitcode.h"
#include "failure.h"
#include "notice.h"

#include <QStringList>

/** What the use cases' codes are in the words of this program. */
namespace Sentences {

/** In the language of the run, Finnish without a translation. @param arguments  up to three fill the place holders */
QString text(Failure::Code code, const QStringList &arguments);
/** `success` for a failure that leaves the exit code as it is. */
ExitCode exitCode(Failure::Code code);

/** For standard error; the same. */
QString text(Notice::Code code, const QStringList &arguments);

/** Fills %1 to %3 in one step: a "%2" inside an argument stays as it is. Further arguments are dropped. */
QString fill(const QString &sentence, const QStringList &arguments);

} // namespace Sentences

#endif

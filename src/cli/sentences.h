#ifndef SENTENCES_H
#define SENTENCES_H

#include "exitcode.h"
#include "failure.h"
#include "notice.h"

#include <QStringList>

/** What the use cases' codes are in the words of this program. */
namespace Sentences {

/** @return the sentence of a failure, its place holders filled */
QString text(Failure::Code code, const QStringList &arguments);
/** success for a failure that leaves the exit code as it is */
ExitCode exitCode(Failure::Code code);

QString text(Notice::Code code, const QStringList &arguments);

/** Fills %1, %2, … in one step: a "%2" inside an argument stays as it is. */
QString fill(const QString &sentence, const QStringList &arguments);

} // namespace Sentences

#endif

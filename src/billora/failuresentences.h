#ifndef FAILURESENTENCES_H
#define FAILURESENTENCES_H

#include "failure.h"
#include "notice.h"
#include "problem.h"

#include <QStringList>

/** What the use cases' codes are in the words of this program, see also Failure. */
namespace FailureSentences {

/** Both are in the language of the run; a failure's code and exit code do not depend on it. */
Problem problem(Failure::Code code, const QStringList &arguments);
QString text(Notice::Code code, const QStringList &arguments);

} // namespace FailureSentences

#endif

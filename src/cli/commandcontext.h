#ifndef COMMANDCONTEXT_H
#define COMMANDCONTEXT_H

#include "commandstatus.h"
#include "criteriaparser.h"
#include "diagnostics.h"
#include "responsewriter.h"
#include "usecasecontext.h"
#include "valueparser.h"

#include <QCoreApplication>

/** What use cases tell this program. A base of the context, so that it is there before they are. */
struct CommandReports {
    Diagnostics diagnostics;           ///< before the status, which refers to it
    CommandStatus status{diagnostics}; ///< the outcome of the present command line
};

/** What a command works with. Lives as long as the run. */
struct CommandContext : CommandReports, UseCaseContext {
    Q_DECLARE_TR_FUNCTIONS(CommandContext)
public:
    /** @param outputDescriptor  where the responses go */
    CommandContext(Registry &registry, int outputDescriptor)
        : UseCaseContext(registry, status), response(outputDescriptor), values(status), criteria(values, finder)
    {
    }

    ResponseWriter response; ///< one response at a time
    ValueParser values;      ///< failures go to the status
    CriteriaParser criteria; ///< refers to `values` and to the finder of the use cases
};

/** Whether a saving command adds a record or changes one; how a search command treats what it finds. */
enum class SaveCommandMode { add = 0, edit = 1 };
enum class FindCommandMode { find = 0, remove = 1 }; ///< remove answers with a number instead of records

#endif

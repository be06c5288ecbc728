#ifndef COMMANDCONTEXT_H
#define COMMANDCONTEXT_H

#include "commandstatus.h"
#include "criteriaparser.h"
#include "databasesession.h"
#include "diagnostics.h"
#include "lastsavedids.h"
#include "recordfinder.h"
#include "responsewriter.h"
#include "valueparser.h"

#include <QCoreApplication>

/** What a command works with. Lives as long as the run. */
struct CommandContext {
    Q_DECLARE_TR_FUNCTIONS(CommandContext)
public:
    /** @param outputDescriptor  where the responses go */
    CommandContext(Registry &registry, int outputDescriptor)
        : response(outputDescriptor), values(status), session(registry, status, diagnostics), finder(session, status),
          criteria(values, finder)
    {
    }

    CommandStatus status;
    Diagnostics diagnostics;
    ResponseWriter response;
    ValueParser values;
    LastSavedIds lastSaved;
    DatabaseSession session;
    RecordFinder finder;
    CriteriaParser criteria;
};

/** Whether a saving command adds a record or changes one; how a search command treats what it finds. */
enum class SaveCommandMode { add = 0, edit = 1 };
enum class FindCommandMode { find = 0, remove = 1 };

#endif

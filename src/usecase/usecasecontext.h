#ifndef USECASECONTEXT_H
#define USECASECONTEXT_H

#include "databasesession.h"
#include "lastsavedids.h"
#include "recordfinder.h"
#include "usecaselistener.h"

/** What use cases work with. Lives as long as the run. */
struct UseCaseContext {
    /** Both belong to the front end and outlive the context. */
    UseCaseContext(Registry &registry, UseCaseListener &frontEnd)
        : listener(frontEnd), session(registry, frontEnd), finder(session, frontEnd)
    {
    }

    UseCaseListener &listener; ///< not owned
    DatabaseSession session;   ///< closed until a command needs the database
    RecordFinder finder;       ///< of the same session
    LastSavedIds lastSaved;    ///< of the run, whatever database is open
};

#endif

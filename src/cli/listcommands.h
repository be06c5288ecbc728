#ifndef LISTCOMMANDS_H
#define LISTCOMMANDS_H

#include "commandcontext.h"
#include "parametertable.h"
#include "query.h"
#include "recordediting.h"
#include "writetransaction.h"

#include <QVector>

/*
 * The saving and finding commands of the records that the registry caches (bank accounts, customers, products). What
 * differs is told by a Kind:
 *
 *     using Record, State (with members `record` and `found`), Search
 *     list                               the cached list
 *     parameters, searchKeys             the tables of keys
 *     records(registry), matches(record, search), print(response, record)
 *     lookupMissing(), requiredMissing(record), savingMessage(record)
 *     complete(context, record)          fills what was not given
 *     removeRecord(context, record)      marks it removed or deletes it
 */

/**
 * Saves in one transaction of its own and answers with the record. On failure the status is set, nothing is answered
 * and nothing stored.
 */
template <class Kind> void saveListRecord(CommandContext &context, QStringList &args, SaveCommandMode mode)
{
    if (!context.session.ensureOpen())
        return;
    const ParameterList words = parseParameters(args);
    WriteTransaction transaction(context.session);
    if (!transaction.hasBegun())
        return;
    if (mode == SaveCommandMode::edit)
        context.session.recheck(Kind::list); // another program's changes to the record must not be undone
    typename Kind::State state;
    if (!applyParameters(context, words, Kind::parameters, mode, state))
        return;
    auto &record = state.record;
    QString missing = Kind::requiredMissing(record);
    if (mode == SaveCommandMode::edit && !state.found)
        missing = Kind::lookupMissing();
    if (!missing.isEmpty()) {
        context.status.fail(ExitCode::badData, missing);
        return;
    }
    if (!Kind::complete(context, record))
        return;
    context.diagnostics.printDebugMessage(Kind::savingMessage(record));
    if (!RecordEditing::save(context, record) || !transaction.commit())
        return;
    context.response.startResponse(QStringLiteral("OK"));
    Kind::print(context.response, record);
    context.response.endResponse();
}

/**
 * @param count  set on success only
 * @return false, with the status set and nothing removed
 */
template <class Kind> bool removeListRecords(CommandContext &context, const typename Kind::Search &search, int &count)
{
    WriteTransaction transaction(context.session);
    if (!transaction.hasBegun())
        return false;
    context.session.recheck(Kind::list);
    if (!context.session.fetch(Kind::list))
        return false;
    QVector<typename Kind::Record> matching;
    for (const auto *record : Kind::records(context.session.registry())) {
        if (Kind::matches(*record, search))
            matching.append(*record);
    }
    for (auto &record : matching) {
        if (!Kind::removeRecord(context, record))
            return false;
    }
    if (!transaction.commit())
        return false;
    count = matching.size();
    return true;
}

/** Finds in the cached list, removes in a list read again within the transaction. Keys that are not given match all. */
template <class Kind> void findListRecords(CommandContext &context, QStringList &args, FindCommandMode mode)
{
    if (!context.session.ensureOpen())
        return;
    typename Kind::Search search;
    if (!applyParameters(context, parseParameters(args), Kind::searchKeys, SaveCommandMode::edit, search))
        return;
    if (mode == FindCommandMode::remove) {
        int count = 0;
        if (!removeListRecords<Kind>(context, search, count))
            return;
        context.response.startResponse(QStringLiteral("OK"));
        context.response.printNumRemoved(count);
    } else {
        if (!context.session.fetch(Kind::list))
            return;
        context.response.startResponse(QStringLiteral("OK"));
        for (const auto *record : Kind::records(context.session.registry())) {
            if (Kind::matches(*record, search))
                Kind::print(context.response, *record);
        }
    }
    context.response.endResponse();
}

#endif

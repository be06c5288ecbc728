#ifndef SEARCHCOMMAND_H
#define SEARCHCOMMAND_H

#include "commandcontext.h"
#include "parameterlist.h"
#include "query.h"
#include "writetransaction.h"

#include <QVector>

/*
 * The find and remove commands of the records that are searched in the database (invoices, payments). What differs is
 * told by a Kind:
 *
 *     using Search                       the parameters
 *     parse(context, words, search)
 *     find(context, search)              answers with the records
 *     restricts(query, search)           whether the search sets any condition
 *     readIds(query, search, ids)        the ids of what is found
 *     remove(context, id)               with the failure told
 */

/** @return the number of records removed, -1 on failure */
template <class Kind> int removeFound(CommandContext &context, const typename Kind::Search &search)
{
    WriteTransaction transaction(context.session);
    if (!transaction.hasBegun())
        return -1;
    Query *query = context.session.query();
    QVector<int> ids;
    if (!Kind::readIds(*query, search, ids) || query->hasReadError()) {
        context.session.failQuery();
        return -1;
    }
    for (const int id : qAsConst(ids)) {
        if (!Kind::remove(context, id))
            return -1;
    }
    return transaction.commit() ? ids.size() : -1;
}

/** Finds, or removes in one transaction and answers with the number. Without any keys removing takes all. */
template <class Kind> void runSearchCommand(CommandContext &context, QStringList &args, FindCommandMode mode)
{
    if (!context.session.ensureOpen())
        return;
    typename Kind::Search search;
    const ParameterList words = parseParameters(args);
    if (!Kind::parse(context, words, search))
        return;
    if (mode == FindCommandMode::find) {
        Kind::find(context, search);
        return;
    }
    // Keys that restrict nothing (a negative number does not) are no order to remove everything.
    if (!words.isEmpty() && !Kind::restricts(*context.session.query(), search)) {
        context.status.fail(ExitCode::badData, CommandContext::tr("Hakuehdot eivät rajaa poistettavia tietoja"));
        return;
    }
    const int count = removeFound<Kind>(context, search);
    if (count < 0)
        return;
    context.response.startResponse(QStringLiteral("OK"));
    context.response.printNumRemoved(count);
    context.response.endResponse();
}

/** Ends the answer of a search; one whose rows ended in a failure is an error. */
inline void endFound(CommandContext &context)
{
    if (context.session.query()->hasReadError()) {
        context.response.abandonResponse();
        context.session.failQuery();
    } else {
        context.response.endResponse();
    }
}

#endif

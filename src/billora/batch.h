#ifndef BATCH_H
#define BATCH_H

#include "jsonarguments.h"
#include "runner.h"

#include <QByteArray>
#include <QHash>

#include <functional>

/** Runs the lines of standard input: each a command in JSON, each with an answer of one line. */
class Batch {
public:
    struct Options {
        bool isEach = false; ///< a transaction for each line, and on after failures
        Manners manners;     ///< isInteractive has no effect: nobody is asked
        QString key;         ///< of the whole
    };
    /** @return false when nobody reads any more */
    using Write = std::function<bool(const QByteArray &line)>;

    /**
     * @param session  not owned
     * @param write    gets whole lines, LF included
     */
    Batch(Session &session, const Options &options, Write write);

    /** @return the exit code */
    int run();

private:
    /** The answer of a line that went well; else the session has the problem. */
    bool runLine(const QByteArray &json, QByteArray &result);
    bool insertNames(Arguments &arguments); ///< `@name` becomes `id:N` wherever a value is nothing else
    bool writeFailure(int line);            ///< @param line  from 1; 0: the whole
    /** The last line of the answer. @return false when nobody reads any more */
    bool writeEnd(bool isCommitted, int lines, int failed, bool isReplayed = false);
    /**
     * Writes the gathered answers, unless the next line is there already and they are few.
     * @return false when nobody reads any more
     */
    bool send(bool isNextThere);
    bool writeResult(int line, const QByteArray &result, bool isNextThere); ///< @return as send()
    int runEach();                                                          ///< @return 3 when a line failed
    int runTogether(); ///< one transaction: all lines or none, which also an unread answer means

    Session &m_session;        ///< not owned
    Runner m_runner;           ///< of the same session
    Options m_options;         ///< as given
    Write m_write;             ///< see Write
    QByteArray m_gathered;     ///< answers not written yet
    QHash<QString, int> m_ids; ///< by the names of `as`
};

#endif

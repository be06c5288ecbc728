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
        Manners manners;
        QString key; ///< of the whole
    };
    /** @return false when nobody reads any more */
    using Write = std::function<bool(const QByteArray &line)>;

    Batch(Session &session, const Options &options, Write write);

    /** @return the exit code */
    int run();

private:
    bool runLine(const QByteArray &json, QByteArray &result);
    bool insertNames(Arguments &arguments);
    bool writeFailure(int line);
    bool writeEnd(bool isCommitted, int lines, int failed, bool isReplayed = false);
    int runEach();
    int runTogether();

    Session &m_session;
    Runner m_runner;
    Options m_options;
    Write m_write;
    QHash<QString, int> m_ids; ///< by the names of `as`
};

#endif

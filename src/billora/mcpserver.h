#ifndef MCPSERVER_H
#define MCPSERVER_H

#include "runner.h"

#include <rapidjson/document.h>

#include <QByteArray>

#include <functional>

/**
 * A server of the Model Context Protocol (revision 2025-06-18) on standard input and output: JSON-RPC 2.0, one message
 * a line. Its tools are the commands that a batch takes.
 */
class McpServer {
public:
    /** What was decided when the server was started: it holds for every call. */
    struct Options {
        bool isReadOnly = false; ///< only commands that write nothing are tools
        bool mayRemove = false;  ///< also commands that remove are tools
        Manners manners;         ///< a call counts as agreed to
    };
    /** @return false when nobody reads any more */
    using Write = std::function<bool(const QByteArray &line)>;

    /**
     * @param session  not owned
     * @param write    gets whole lines, LF included
     */
    McpServer(Session &session, const Options &options, Write write);

    /** Serves until the input ends. */
    void run();

private:
    using Json = rapidjson::Value; ///< numbers within are their texts

    /** @return the answer, empty for a notification */
    QByteArray answer(const QByteArray &line);
    /** The results of the methods, without the frame of JSON-RPC. */
    QByteArray initialize(const Json &message);
    QByteArray listTools() const;
    /**
     * A tool that fails is a result with isError and the problem. @param isWrong  there is no such tool; nothing was
     * run
     */
    QByteArray callTool(const Json &message, bool &isWrong);
    bool isTool(const Command &command) const; ///< of its name, with "_" for the blank

    Session &m_session; ///< not owned
    Runner m_runner;    ///< of the same session
    Options m_options;  ///< as given
    Write m_write;      ///< see Write
};

#endif

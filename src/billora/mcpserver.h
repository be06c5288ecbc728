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
    struct Options {
        bool isReadOnly = false;
        bool mayRemove = false;
        Manners manners;
    };
    /** @return false when nobody reads any more */
    using Write = std::function<bool(const QByteArray &line)>;

    McpServer(Session &session, const Options &options, Write write);

    /** Serves until the input ends. */
    void run();

private:
    using Json = rapidjson::Value;

    /** @return the answer, empty for a notification */
    QByteArray answer(const QByteArray &line);
    QByteArray initialize(const Json &message);
    QByteArray listTools() const;
    QByteArray callTool(const Json &message, bool &isWrong);
    bool isTool(const Command &command) const;

    Session &m_session;
    Runner m_runner;
    Options m_options;
    Write m_write;
};

#endif

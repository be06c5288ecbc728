#include "mcpserver.h"

#include "calendar.h"
#include "commandtable.h"
#include "description.h"
#include "inputline.h"
#include "jsonarguments.h"
#include "jsonwriter.h"
#include "texts.h"

#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <unistd.h>

namespace {

constexpr char ownRevision[] = "2025-06-18";
constexpr const char *revisions[] = {"2024-11-05", "2025-03-26", ownRevision};
constexpr int parseError = -32700, invalidRequest = -32600, methodNotFound = -32601, invalidParams = -32602;

QByteArray toJson(const rapidjson::Value &value)
{
    rapidjson::StringBuffer buffer;
    rapidjson::Writer<rapidjson::StringBuffer> writer(buffer);
    value.Accept(writer);
    return QByteArray(buffer.GetString(), static_cast<int>(buffer.GetSize()));
}

const rapidjson::Value *member(const rapidjson::Value &object, const char *name)
{
    if (!object.IsObject())
        return nullptr;
    const auto found = object.FindMember(name);
    return found == object.MemberEnd() ? nullptr : &found->value;
}

QString textOf(const rapidjson::Value *value)
{
    return value && value->IsString()
               ? QString::fromUtf8(value->GetString(), static_cast<int>(value->GetStringLength()))
               : QString();
}

QByteArray response(const QByteArray &id, const QByteArray &result)
{
    return "{\"jsonrpc\":\"2.0\",\"id\":" + id + ",\"result\":" + result + "}";
}

QByteArray failure(const QByteArray &id, int code, const QString &message)
{
    QByteArray bytes = "{\"jsonrpc\":\"2.0\",\"id\":" + id + ",\"error\":";
    JsonWriter json(bytes);
    json.beginObject();
    json.member("code", code);
    json.member("message", message);
    json.endObject();
    return bytes + '}';
}

QString toolName(const Command &command)
{
    return QString::fromLatin1(command.name).replace(QLatin1Char(' '), QLatin1Char('_'));
}

/** Whether the id stood in the line as a number and not as a text. */
bool isNumberInLine(const QByteArray &line, const QByteArray &text)
{
    bool isNumber = false;
    text.toDouble(&isNumber);
    return isNumber && !QByteArray(line).replace(' ', "").contains("\"id\":\"" + text + '"');
}

} // namespace

McpServer::McpServer(Session &session, const Options &options, Write write)
    : m_session(session), m_runner(session), m_options(options), m_write(std::move(write))
{
}

bool McpServer::isTool(const Command &command) const
{
    if (command.is(Command::single) || command.name[0] == '_')
        return false;
    if (m_options.isReadOnly && (command.is(Command::writes) || command.is(Command::eachOnly)))
        return false;
    return m_options.mayRemove || !command.is(Command::destructive);
}

QByteArray McpServer::initialize(const Json &message)
{
    const Json *params = member(message, "params");
    const QString wanted = params ? textOf(member(*params, "protocolVersion")) : QString();
    QString revision = QLatin1String(ownRevision);
    for (const char *known : revisions) {
        if (wanted == QLatin1String(known))
            revision = wanted;
    }
    QByteArray bytes;
    JsonWriter json(bytes);
    json.beginObject();
    json.member("protocolVersion", revision);
    json.name("capabilities");
    json.beginObject();
    json.name("tools");
    json.beginObject();
    json.endObject();
    json.endObject();
    json.name("serverInfo");
    json.beginObject();
    json.member("name", "billora");
    json.member("version", BILLORA_VERSION);
    json.endObject();
    json.endObject();
    return bytes;
}

QByteArray McpServer::listTools() const
{
    QByteArray bytes;
    JsonWriter json(bytes);
    json.beginObject();
    json.name("tools");
    json.beginArray();
    for (const CommandGroup &group : CommandTable::groups()) {
        for (const Command &command : group) {
            if (!isTool(command))
                continue;
            json.beginObject();
            json.member("name", toolName(command));
            json.member("description", text(command.summary));
            json.name("inputSchema");
            Description::writeInputSchema(json, command);
            json.name("outputSchema");
            Description::writeOutputSchema(json, command);
            json.name("annotations");
            json.beginObject();
            json.member("readOnlyHint", !command.is(Command::writes) && !command.is(Command::eachOnly));
            json.member("destructiveHint", command.is(Command::destructive));
            json.endObject();
            json.endObject();
        }
    }
    json.endArray();
    json.endObject();
    return bytes;
}

QByteArray McpServer::callTool(const Json &message, bool &isWrong)
{
    const Json *params = member(message, "params");
    const QString name = params ? textOf(member(*params, "name")) : QString();
    const Command *command = CommandTable::find(QString(name).replace(QLatin1Char('_'), QLatin1Char(' ')));
    isWrong = !command || !isTool(*command);
    if (isWrong)
        return QByteArray();
    const Json *given = member(*params, "arguments");
    const QByteArray object = given && !given->IsNull() ? toJson(*given) : QByteArray("{}");
    const ValueReader reader(m_session, Calendar::today());
    Arguments arguments;
    Manners manners = m_options.manners;
    manners.agreesToAll = true; // what may be removed was decided when the server was started
    QByteArray result;
    int exitCode = 0;
    m_session.clearProblem();
    const bool done = JsonArguments::readObject(reader, object, arguments) &&
                      m_runner.runForProgram(*command, arguments, manners, QString(), result, exitCode);
    if (!done) {
        result.clear();
        JsonWriter json(result);
        m_session.problem().write(json);
        m_session.clearProblem();
    } else if (result.startsWith('[')) {
        result = "{\"records\":" + result + "}";
    } else if (result == "null") {
        result = "{}";
    }
    QByteArray bytes;
    JsonWriter json(bytes);
    json.beginObject();
    json.name("content");
    json.beginArray();
    json.beginObject();
    json.member("type", "text");
    json.member("text", QString::fromUtf8(result));
    json.endObject();
    json.endArray();
    if (!done)
        json.member("isError", true);
    else
        json.member("isError", false);
    bytes += ",\"structuredContent\":" + result + "}";
    return bytes;
}

QByteArray McpServer::answer(const QByteArray &line)
{
    rapidjson::Document message;
    message.Parse<rapidjson::kParseNumbersAsStringsFlag | rapidjson::kParseIterativeFlag |
                  rapidjson::kParseValidateEncodingFlag>(line.constData(), static_cast<std::size_t>(line.size()));
    if (message.HasParseError())
        return failure("null", parseError, QStringLiteral("Parse error"));
    const Json *idValue = member(message, "id");
    // An id goes back as it came: a number was read as its text.
    QByteArray id = "null";
    if (idValue && idValue->IsString()) {
        const QByteArray text(idValue->GetString(), static_cast<int>(idValue->GetStringLength()));
        id = isNumberInLine(line, text) ? text : toJson(*idValue);
    }
    const QString method = textOf(member(message, "method"));
    if (!message.IsObject() || textOf(member(message, "jsonrpc")) != QLatin1String("2.0") || method.isEmpty())
        return failure(id, invalidRequest, QStringLiteral("Invalid Request"));
    if (!idValue || method.startsWith(QLatin1String("notifications/")))
        return QByteArray();
    if (method == QLatin1String("initialize"))
        return response(id, initialize(message));
    if (method == QLatin1String("ping"))
        return response(id, "{}");
    if (method == QLatin1String("tools/list"))
        return response(id, listTools());
    if (method != QLatin1String("tools/call"))
        return failure(id, methodNotFound, QStringLiteral("Method not found"));
    bool isWrong = false;
    const QByteArray result = callTool(message, isWrong);
    return isWrong ? failure(id, invalidParams, QStringLiteral("Unknown tool")) : response(id, result);
}

void McpServer::run()
{
    InputLine input(STDIN_FILENO);
    QByteArray line;
    while (input.readBytes(line)) {
        if (line.trimmed().isEmpty())
            continue;
        const QByteArray bytes = answer(line);
        if (!bytes.isEmpty() && !m_write(bytes + '\n'))
            return;
    }
}

#include "jsonarguments.h"

#include "localetext.h"
#include "problem.h"
#include "texts.h"

#define RAPIDJSON_HAS_STDSTRING 0
#include <rapidjson/document.h>
#include <rapidjson/error/en.h>

#include <cstring>

namespace {

using Json = rapidjson::GenericValue<rapidjson::UTF8<>>;

/** Deeper than this is no request, and would take the stack. */
constexpr unsigned parseFlags =
    rapidjson::kParseNumbersAsStringsFlag | rapidjson::kParseValidateEncodingFlag | rapidjson::kParseIterativeFlag;

bool failJson(const ValueReader &reader, const QString &reason)
{
    Problem problem;
    problem.code = Problem::badJson;
    problem.message = text(TEXT("virheellinen JSON: %1")).arg(reason);
    return reader.fail(problem);
}

QString textOf(const Json &value)
{
    return LocaleText::fromUtf8(value.GetString(), static_cast<int>(value.GetStringLength()));
}

/** Half of a surrogate pair is no character, and is let through by the library as three bytes. */
bool hasHalfCharacter(const Json &value)
{
    const char *at = value.GetString();
    const char *const end = at + value.GetStringLength();
    constexpr char first = '\xED';
    while ((at = static_cast<const char *>(std::memchr(at, first, static_cast<std::size_t>(end - at))))) {
        if (at + 1 < end && static_cast<unsigned char>(at[1]) >= 0xA0)
            return true;
        ++at;
    }
    return false;
}

/** Memory for a request of the usual size, lest each line asks for some; one request is read at a time. */
char room[65536];

bool parse(const ValueReader &reader, const QByteArray &json, rapidjson::Document &document)
{
    document.Parse<parseFlags>(json.constData(), static_cast<std::size_t>(json.size()));
    if (document.HasParseError())
        return failJson(reader, text(TEXT("%1, merkki %2"))
                                    .arg(QLatin1String(rapidjson::GetParseError_En(document.GetParseError())),
                                         QString::number(document.GetErrorOffset() + 1)));
    return document.IsObject() || failJson(reader, text(TEXT("rivi ei ole olio")));
}

bool takeObject(const ValueReader &reader, const Json &object, const QString &path, Arguments &arguments);

bool takeMember(const ValueReader &reader, const QString &name, const Json &value, const QString &path,
                Arguments &arguments)
{
    const QString place = path + name;
    if (arguments.has(name) || (name == QLatin1String("rows") && arguments.hasRows))
        return failJson(reader, text(TEXT("nimi on kahdesti: %1")).arg(place));
    const auto isText = [&](const Json &string, const QString &at) {
        return !hasHalfCharacter(string) || failJson(reader, text(TEXT("puolikas merkki: %1")).arg(at));
    };
    if (value.IsString()) {
        if (!isText(value, place))
            return false;
        arguments.add(name, textOf(value));
    } else if (value.IsBool()) {
        arguments.add(name, value.GetBool() ? QStringLiteral("true") : QStringLiteral("false"));
        arguments.booleans.append(name);
    } else if (value.IsNull()) {
        arguments.add(name, QString());
        arguments.nulls.append(name);
    } else if (value.IsArray()) {
        const bool isRows = path.isEmpty() && name == QLatin1String("rows");
        if (isRows)
            arguments.hasRows = true;
        else
            arguments.lists.append(name);
        int index = 0;
        for (const Json &element : value.GetArray()) {
            const QString at = place + QLatin1Char('[') + QString::number(index++) + QLatin1Char(']');
            if (element.IsObject() && isRows) {
                Arguments row;
                if (!takeObject(reader, element, at + QLatin1Char('.'), row))
                    return false;
                arguments.rows.append(row);
            } else if (element.IsString() && !isRows) {
                if (!isText(element, at))
                    return false;
                arguments.add(name, textOf(element));
            } else {
                return reader.failValue(name, QString(), text(TEXT("%1 ei voi olla tätä tyyppiä")).arg(at));
            }
        }
    } else {
        return reader.failValue(name, QString(), text(TEXT("%1 ei voi olla tätä tyyppiä")).arg(place));
    }
    return true;
}

bool takeObject(const ValueReader &reader, const Json &object, const QString &path, Arguments &arguments)
{
    for (const auto &member : object.GetObject()) {
        if (!takeMember(reader, textOf(member.name), member.value, path, arguments))
            return false;
    }
    return true;
}

} // namespace

bool JsonArguments::readObject(const ValueReader &reader, const QByteArray &json, Arguments &arguments)
{
    rapidjson::MemoryPoolAllocator<> allocator(room, sizeof room);
    rapidjson::Document document(&allocator);
    return parse(reader, json, document) && takeObject(reader, document, QString(), arguments);
}

bool JsonArguments::readLine(const ValueReader &reader, const QByteArray &json, Line &line)
{
    rapidjson::MemoryPoolAllocator<> allocator(room, sizeof room);
    rapidjson::Document document(&allocator);
    if (!parse(reader, json, document))
        return false;
    const struct {
        const char *name;
        QString *target;
    } texts[] = {{"command", &line.command}, {"as", &line.as}, {"key", &line.key}};
    bool hasArguments = false;
    for (const auto &member : document.GetObject()) {
        const QString name = textOf(member.name);
        QString *target = nullptr;
        for (const auto &row : texts) {
            if (name == QLatin1String(row.name))
                target = row.target;
        }
        if (target) {
            if (!member.value.IsString() || !target->isNull())
                return failJson(reader, text(TEXT("%1 on yksi teksti")).arg(name));
            *target = textOf(member.value);
        } else if (name == QLatin1String("args")) {
            if (!member.value.IsObject() || hasArguments)
                return failJson(reader, text(TEXT("args on yksi olio")));
            hasArguments = true;
            if (!takeObject(reader, member.value, QString(), line.arguments))
                return false;
        } else {
            Problem problem;
            problem.code = Problem::unknownField;
            problem.message = text(TEXT("tuntematon nimi: %1")).arg(name);
            problem.option = name;
            return reader.fail(problem);
        }
    }
    if (!line.command.isEmpty())
        return true;
    Problem problem;
    problem.code = Problem::missingOption;
    problem.message = text(TEXT("command puuttuu"));
    problem.option = QStringLiteral("command");
    return reader.fail(problem);
}

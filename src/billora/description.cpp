#include "description.h"

#include "commandtable.h"
#include "companycolumns.h"
#include "jsonwriter.h"
#include "problem.h"
#include "records.h"
#include "texts.h"

#include <QStringList>

namespace {

const RecordTable *const tables[] = {
    &invoiceTable, &rowTable,     &vatRateTable,        &customerTable, &productTable,       &accountTable,
    &paymentTable, &companyTable, &companyUpgradeTable, &settingTable,  &layoutTable,        &findingTable,
    &importTable,  &fileTable,    &checkTable,          &journalTable,  &journalFindingTable};

bool isWhole(ValueType type)
{
    return type == ValueType::integer || type == ValueType::id || type == ValueType::position;
}

/** What a field may be besides its type: not set. */
bool mayBeNull(const Field &field) { return field.type != ValueType::records && field.type != ValueType::flag; }

void writeChoices(JsonWriter &json, const Choice *choices, bool withNull)
{
    json.name("enum");
    json.beginArray();
    for (const Choice *choice = choices; choice->word; ++choice)
        json.string(QLatin1String(choice->word));
    if (withNull)
        json.null();
    json.endArray();
}

void writeType(JsonWriter &json, const char *type, bool withNull)
{
    if (!withNull) {
        json.member("type", type);
        return;
    }
    json.name("type");
    json.beginArray();
    json.string(QLatin1String(type));
    json.string(QStringLiteral("null"));
    json.endArray();
}

const char *jsonType(ValueType type)
{
    if (type == ValueType::flag)
        return "boolean";
    return isWhole(type) ? "integer" : "string";
}

void writeObjectSchema(JsonWriter &json, const RecordTable &table);

void writeFieldSchema(JsonWriter &json, const Field &field)
{
    json.beginObject();
    if (field.type == ValueType::records) {
        json.member("type", "array");
        json.name("items");
        json.beginObject();
        writeObjectSchema(json, *field.nested);
        json.endObject();
    } else {
        writeType(json, jsonType(field.type), mayBeNull(field));
        if (field.choices)
            writeChoices(json, field.choices, mayBeNull(field));
        if (isDecimal(field.type))
            json.member("pattern", "^-?[0-9]+([.][0-9]+)?$");
        if (field.type == ValueType::date)
            json.member("format", "date");
    }
    json.member("description", text(field.description ? field.description : field.heading));
    json.endObject();
}

/** Whether a command lists the records of several companies. */
bool isOfSeveralCompanies(const RecordTable &table)
{
    for (const CommandGroup &group : CommandTable::groups()) {
        for (const Command &command : group) {
            if (command.result == &table && command.is(Command::companies))
                return true;
        }
    }
    return false;
}

/** The members of the schema of an object. `a.b` makes an object `a`. */
void writeObjectSchema(JsonWriter &json, const RecordTable &table)
{
    json.member("type", "object");
    json.name("properties");
    json.beginObject();
    QString open;
    for (const Field &field : table) {
        const QString name = QLatin1String(field.name);
        const QString object = name.contains(QLatin1Char('.')) ? name.section(QLatin1Char('.'), 0, 0) : QString();
        if (object != open && !open.isEmpty()) {
            json.endObject();
            json.endObject();
        }
        if (object != open && !object.isEmpty()) {
            json.name(object.toLatin1().constData());
            json.beginObject();
            json.member("type", "object");
            json.name("properties");
            json.beginObject();
        }
        open = object;
        json.name(name.section(QLatin1Char('.'), -1).toLatin1().constData());
        writeFieldSchema(json, field);
    }
    if (!open.isEmpty()) {
        json.endObject();
        json.endObject();
    }
    if (isOfSeveralCompanies(table)) {
        json.name("company");
        json.beginObject();
        json.member("type", "object");
        json.name("properties");
        json.beginObject();
        for (const Field &field : CompanyColumns::table) {
            json.name(QByteArray(field.name).mid(int(qstrlen("company."))).constData());
            writeFieldSchema(json, field);
        }
        json.endObject();
        json.endObject();
    }
    json.name("dryRun");
    json.beginObject();
    json.member("type", "boolean");
    json.endObject();
    json.name("replayed");
    json.beginObject();
    json.member("type", "boolean");
    json.endObject();
    json.endObject();
    json.member("additionalProperties", false);
}

void writeOption(JsonWriter &json, const Command &command, const Option &option)
{
    const Field *field = command.edits ? command.edits->find(QLatin1String(option.name)) : nullptr;
    json.beginObject();
    const QString name = QLatin1String(option.name);
    json.member("name", name);
    json.member("option",
                option.is(Option::onlyWord) ? QString() : QLatin1String("--") + CommandTable::hyphenated(name));
    json.member("field", field ? name : QString());
    json.member("type", valueTypeName(option.type));
    json.member("required", option.is(Option::required));
    json.member("list", option.is(Option::list));
    json.name("choices");
    if (option.choices) {
        json.beginArray();
        for (const Choice *choice = option.choices; choice->word; ++choice)
            json.string(QLatin1String(choice->word));
        json.endArray();
    } else {
        json.null();
    }
    json.member("description", text(option.description));
    json.endObject();
}

void writeCommand(JsonWriter &json, const Command &command)
{
    json.beginObject();
    json.member("command", command.name);
    json.member("summary", text(command.summary));
    json.member("writes", command.is(Command::writes));
    json.member("destructive", command.is(Command::destructive));
    json.member("batch", !command.is(Command::single) && !command.is(Command::eachOnly));
    json.member("key", command.is(Command::keyed));
    json.member("companies", command.is(Command::companies));
    json.name("words");
    json.beginArray();
    const QVector<const Option *> words = CommandTable::plainWords(command);
    for (const Option *word : words)
        json.string(QLatin1String(word->name));
    json.endArray();
    json.name("options");
    json.beginArray();
    const QVector<const Option *> options = CommandTable::options(command);
    for (const Option *option : options)
        writeOption(json, command, *option);
    json.endArray();
    json.member("list", command.is(Command::lists));
    json.member("result", command.result ? QString::fromLatin1(command.result->name) : QString());
    json.endObject();
}

void writeRecord(JsonWriter &json, const RecordTable &table)
{
    json.beginArray();
    for (const Field &field : table) {
        json.beginObject();
        json.member("name", field.name);
        json.member("type", valueTypeName(field.type));
        json.member("summary", field.is(Field::summary));
        json.member("editable", field.is(Field::editable));
        json.member("records", field.nested ? QString::fromLatin1(field.nested->name) : QString());
        json.member("cli", field.protocolName ? QString::fromLatin1(field.protocolName) : QString());
        json.member("description", text(field.description ? field.description : field.heading));
        json.endObject();
    }
    json.endArray();
}

} // namespace

const RecordTable *Description::record(const QString &name)
{
    for (const RecordTable *table : tables) {
        if (name == QLatin1String(table->name))
            return table;
    }
    return nullptr;
}

QStringList Description::recordNames()
{
    QStringList names;
    for (const RecordTable *table : tables)
        names.append(QLatin1String(table->name));
    return names;
}

void Description::write(JsonWriter &json, const Command *only)
{
    json.beginObject();
    json.member("schema", schemaVersion);
    json.member("program", "billora");
    json.member("version", BILLORA_VERSION);
    json.name("commands");
    json.beginArray();
    for (const CommandGroup &group : CommandTable::groups()) {
        for (const Command &command : group) {
            const bool isHidden = command.name[0] == '_';
            if (only ? only == &command : !isHidden)
                writeCommand(json, command);
        }
    }
    json.endArray();
    json.name("globalOptions");
    json.beginArray();
    const Command none = {"", "", nullptr};
    for (const Option &option : CommandTable::globalOptions())
        writeOption(json, none, option);
    json.endArray();
    json.name("records");
    json.beginObject();
    for (const RecordTable *table : tables) {
        json.name(table->name);
        writeRecord(json, *table);
    }
    json.endObject();
    json.name("errors");
    json.beginArray();
    for (int i = 0; i < problemCodeCount; ++i) {
        json.beginObject();
        json.member("code", problemCodes[i].name);
        json.member("exit", problemCodes[i].exitCode);
        json.endObject();
    }
    json.endArray();
    json.name("exits");
    json.beginArray();
    for (int i = 0; i < exitMeaningCount; ++i) {
        json.beginObject();
        json.member("exit", exitMeanings[i].code);
        json.member("description", text(exitMeanings[i].text));
        json.endObject();
    }
    json.endArray();
    json.endObject();
}

void Description::writeSchema(JsonWriter &json, const RecordTable &table)
{
    json.beginObject();
    json.member("$schema", "https://json-schema.org/draft/2020-12/schema");
    json.member("title", table.name);
    writeObjectSchema(json, table);
    json.endObject();
}

void Description::writeInputSchema(JsonWriter &json, const Command &command)
{
    json.beginObject();
    json.member("type", "object");
    json.name("properties");
    json.beginObject();
    QStringList required;
    const QVector<const Option *> options = CommandTable::options(command);
    for (const Option *option : options) {
        const bool isNeeded = option->is(Option::required) &&
                              (command.is(Command::adds) || !command.edits || option->is(Option::plainWord));
        if (isNeeded)
            required.append(QLatin1String(option->name));
        json.name(option->name);
        json.beginObject();
        if (option->is(Option::list)) {
            json.member("type", "array");
            json.name("items");
            json.beginObject();
            json.name("type");
            json.beginArray();
            json.string(QStringLiteral("string"));
            json.string(QStringLiteral("integer"));
            json.endArray();
            json.endObject();
        } else if (option->type == ValueType::flag) {
            json.member("type", "boolean");
        } else {
            json.name("type");
            json.beginArray();
            json.string(QStringLiteral("string"));
            if (option->type != ValueType::text && option->type != ValueType::word)
                json.string(QStringLiteral("number"));
            json.endArray();
            if (option->choices)
                writeChoices(json, option->choices, false);
        }
        json.member("description", text(option->description));
        json.endObject();
    }
    if (command.edits == &invoiceTable && (command.is(Command::adds) || command.noun() == QLatin1String("invoice"))) {
        json.name("rows");
        json.beginObject();
        json.member("type", "array");
        json.name("items");
        json.beginObject();
        json.member("type", "object");
        json.name("properties");
        json.beginObject();
        json.name("product");
        json.beginObject();
        json.member("type", "string");
        json.endObject();
        for (const Field &field : rowTable) {
            if (!field.is(Field::editable))
                continue;
            json.name(field.name);
            json.beginObject();
            json.name("type");
            json.beginArray();
            json.string(QStringLiteral("string"));
            json.string(QStringLiteral("number"));
            json.endArray();
            json.endObject();
        }
        json.endObject();
        json.endObject();
        json.endObject();
    }
    json.endObject();
    json.name("required");
    json.beginArray();
    for (const QString &name : qAsConst(required))
        json.string(name);
    json.endArray();
    json.member("additionalProperties", false);
    json.endObject();
}

void Description::writeOutputSchema(JsonWriter &json, const Command &command)
{
    json.beginObject();
    if (!command.result) {
        json.member("type", "object");
    } else if (command.is(Command::lists)) {
        json.member("type", "object");
        json.name("properties");
        json.beginObject();
        json.name("records");
        json.beginObject();
        json.member("type", "array");
        json.name("items");
        json.beginObject();
        writeObjectSchema(json, *command.result);
        json.endObject();
        json.endObject();
        json.endObject();
    } else {
        writeObjectSchema(json, *command.result);
    }
    json.endObject();
}

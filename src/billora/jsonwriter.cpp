#include "jsonwriter.h"

#include "valuewriter.h"

#include <QHash>

void JsonWriter::separate()
{
    if (m_needsComma)
        m_target += ',';
    m_needsComma = true;
}

void JsonWriter::beginObject()
{
    separate();
    m_target += '{';
    m_needsComma = false;
}

void JsonWriter::endObject()
{
    m_target += '}';
    m_needsComma = true;
}

void JsonWriter::beginArray()
{
    separate();
    m_target += '[';
    m_needsComma = false;
}

void JsonWriter::endArray()
{
    m_target += ']';
    m_needsComma = true;
}

void JsonWriter::name(const char *name)
{
    separate();
    m_target += '"';
    m_target += name; // names of fields need no escaping
    m_target += "\":";
    m_needsComma = false;
}

void JsonWriter::string(const QString &value)
{
    separate();
    ByteGatherer bytes(m_target);
    ValueWriter::appendJsonString(bytes, value);
}

void JsonWriter::number(long long value)
{
    separate();
    m_target += QByteArray::number(value);
}

void JsonWriter::boolean(bool value)
{
    separate();
    m_target += value ? "true" : "false";
}

void JsonWriter::null()
{
    separate();
    m_target += "null";
}

void JsonWriter::member(const char *key, const QString &value)
{
    name(key);
    if (value.isNull())
        null();
    else
        string(value);
}

void JsonWriter::member(const char *key, int value)
{
    name(key);
    number(value);
}

void JsonWriter::member(const char *key, bool value)
{
    name(key);
    boolean(value);
}

void JsonWriter::members(const JsonMembers &members, const void *record)
{
    separate();
    members.append(m_target, record);
}

void JsonWriter::record(const RecordTable &table, const void *record)
{
    beginObject();
    JsonMembers::of(table).append(m_target, record);
    endObject();
}

const JsonMembers &JsonMembers::of(const RecordTable &table)
{
    static QHash<const RecordTable *, const JsonMembers *> made; // few, and as long as the program
    const JsonMembers *&members = made[&table];
    if (!members) {
        QVector<const Field *> all;
        for (const Field &field : table)
            all.append(&field);
        members = new JsonMembers(all);
    }
    return *members;
}

JsonMembers::JsonMembers(const QVector<const Field *> &fields)
{
    QByteArray open; // the object that is being written, "customer"
    bool needsComma = false;
    for (const Field *field : fields) {
        const QByteArray name = field->name;
        const int dot = name.indexOf('.');
        const QByteArray object = dot < 0 ? QByteArray() : name.left(dot);
        QByteArray prefix;
        if (!open.isEmpty() && object != open)
            prefix += '}';
        if (needsComma)
            prefix += ',';
        if (!object.isEmpty() && object != open)
            prefix += '"' + object + "\":{";
        open = object;
        prefix += '"' + name.mid(dot + 1) + "\":"; // names of fields need no escaping
        m_members.append({prefix, field});
        needsComma = true;
    }
    if (!open.isEmpty())
        m_end = "}";
}

void JsonMembers::append(QByteArray &target, const void *record) const
{
    ByteGatherer bytes(target);
    for (const Member &member : m_members) {
        bytes.append(member.prefix);
        const Value value = member.field->get(record);
        if (value.kind() != Value::records) {
            ValueWriter::appendJson(bytes, *member.field, value);
            continue;
        }
        JsonWriter json(bytes.target());
        json.beginArray();
        for (const void *nested : value.toRecords())
            json.record(*member.field->nested, nested);
        json.endArray();
    }
    bytes.append(m_end);
}

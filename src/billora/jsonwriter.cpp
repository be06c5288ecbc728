#include "jsonwriter.h"

#include "valuewriter.h"

#include <cstring>

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
    ValueWriter::appendJsonString(m_target, value);
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

void JsonWriter::members(const QVector<const Field *> &fields, const void *record)
{
    QByteArray open; // the object that is being written, "customer"
    for (const Field *field : fields) {
        const char *dot = std::strchr(field->name, '.');
        const int length = dot ? static_cast<int>(dot - field->name) : 0;
        if (!open.isEmpty() && (length != open.size() || std::strncmp(field->name, open.constData(), length) != 0)) {
            endObject();
            open.clear();
        }
        if (dot && open.isEmpty()) {
            open = QByteArray(field->name, length);
            name(open.constData());
            beginObject();
        }
        name(dot ? dot + 1 : field->name);
        const Value value = field->get(record);
        if (value.kind() != Value::records) {
            separate();
            ValueWriter::appendJson(m_target, *field, value);
            continue;
        }
        beginArray();
        for (const void *nested : value.toRecords())
            this->record(*field->nested, nested);
        endArray();
    }
    if (!open.isEmpty())
        endObject();
}

void JsonWriter::record(const RecordTable &table, const void *record)
{
    QVector<const Field *> all;
    for (const Field &field : table)
        all.append(&field);
    beginObject();
    members(all, record);
    endObject();
}

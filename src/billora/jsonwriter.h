#ifndef JSONWRITER_H
#define JSONWRITER_H

#include "field.h"

#include <QByteArray>
#include <QVector>

/** The members that records of a kind have, with what stands in front of each value made once: lists are long. */
class JsonMembers {
public:
    /** @param fields  in the order of the output; those of one object, as `a.b` and `a.c`, stand together */
    explicit JsonMembers(const QVector<const Field *> &fields);
    /** All fields of a table. */
    static const JsonMembers &of(const RecordTable &table);

    /** Appends the members of a record, without the braces around them. */
    void append(QByteArray &target, const void *record) const;

private:
    struct Member {
        QByteArray prefix;  ///< up to the value
        const Field *field; ///< not owned
    };

    QVector<Member> m_members; ///< in the order of the output
    QByteArray m_end;          ///< behind the last value
};

/** Appends strict JSON (RFC 8259) in UTF-8 to a buffer, as it is told; nothing is held. */
class JsonWriter {
public:
    /** @param target  belongs to the caller */
    explicit JsonWriter(QByteArray &target) : m_target(target) {}

    /** Each value, or member, puts its own comma in front; balance and names are the caller's care. */
    void beginObject();
    void endObject();
    void beginArray();
    void endArray();
    void name(const char *name);       ///< ASCII without quotes: not escaped
    void string(const QString &value); ///< escaped
    void number(long long value);      ///< digits; money and other decimals are strings, see ValueWriter
    void boolean(bool value);
    void null();

    // A member of the current object.
    /** A null text becomes null, an empty one "". */
    void member(const char *key, const QString &value);
    void member(const char *key, const char *value) { member(key, QString::fromUtf8(value)); }
    void member(const char *key, int value);
    void member(const char *key, bool value);

    /** Fields of a record as members of the current object; `a.b` makes an object `a`. */
    void members(const JsonMembers &members, const void *record);
    /** An object of all fields of a table. */
    void record(const RecordTable &table, const void *record);

    QByteArray &target() { return m_target; } ///< the caller's buffer

private:
    void separate(); ///< a comma unless the value is the first of its object or array

    QByteArray &m_target;      ///< not owned
    bool m_needsComma = false; ///< before the next value or member
};

#endif

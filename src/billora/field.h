#ifndef FIELD_H
#define FIELD_H

#include "value.h"
#include "valuetype.h"

struct RecordTable;
class ValueReader;

/** A word that a field may hold, and the text that people see for it. */
struct Choice {
    const char *word;            ///< null ends a list of choices
    const char *text;            ///< Finnish; shown in the language of the run
    const char *color = nullptr; ///< SGR code on terminals, "31"
};

/**
 * A field of a record, once for everything: its name is the JSON name, the CSV column, the line of the editor, the word
 * for --fields and --sort and, in words with hyphens, the option. A dot in the name makes an object in JSON.
 */
struct Field {
    /** Bits of `flags`. */
    enum Flag : unsigned {
        summary = 1,     ///< a list gives it without --full
        editable = 2,    ///< an option of add and edit
        required = 4,    ///< of add; may stand as a plain word, in the order of the table
        clearable = 8,   ///< an empty text or null empties it
        summed = 16,     ///< a table shows the sum below
        detail = 32,     ///< needs the rows and payments of the record
        handle = 64,     ///< what -q prints
        multiline = 128, ///< an editor shows it over several lines
    };

    const char *name;                           ///< lowerCamelCase
    ValueType type;                             ///< how it is read and written
    const char *heading;                        ///< of its column, Finnish
    const char *description;                    ///< a sentence for help, Finnish; null: the heading says it
    unsigned flags = 0;                         ///< of Flag
    Value (*get)(const void *record) = nullptr; ///< the address must be that of a record of the table
    /** Reads a value into the record being edited; null for a field that is not editable or is set in another way. */
    bool (*set)(void *record, const ValueReader &, const Field &, const QString &value) = nullptr;
    const Choice *choices = nullptr;     ///< of a word
    const RecordTable *nested = nullptr; ///< of records
    const char *protocolName = nullptr;  ///< in billora-cli, null where it has none
    const char *codeList = nullptr;      ///< of EInvoiceCodes: nothing but its codes is taken; null: anything

    bool is(Flag flag) const { return (flags & flag) != 0; }
};

/** The fields of a kind of record, in the order of the output. */
struct RecordTable {
    const char *name;    ///< "invoice"
    const Field *fields; ///< not owned: tables are constants
    int count;           ///< of fields
    const char *columns; ///< the fields of a list for people, separated by commas

    /** In the order of the output. */
    const Field *begin() const { return fields; }
    const Field *end() const { return fields + count; }
    /** @return null when there is none of the name */
    const Field *find(const QString &name) const;
    /** The names of the fields, in their order, made once: they are looked up for each record. */
    const QVector<QString> &names() const;
};

#endif

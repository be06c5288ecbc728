#ifndef COMMAND_H
#define COMMAND_H

#include "field.h"

#include <QString>
#include <QVector>

class Task;

/** A word or option of a command that is no field of its record. Its option is its name in words with hyphens. */
struct Option {
    /** Bits of `flags`. */
    enum Flag : unsigned {
        plainWord = 1, ///< stands as a plain word, in the order of the rows
        required = 2,  ///< missing it is a problem `missing-option`
        list = 4,      ///< may be repeated; as a plain word it takes all that are left
        onlyWord = 8,  ///< has no option form
    };

    const char *name;                  ///< lowerCamelCase, as in JSON
    ValueType type;                    ///< how its text is read
    const char *description;           ///< Finnish
    unsigned flags = 0;                ///< of Flag
    const Choice *choices = nullptr;   ///< of a word; null: any
    char letter = 0;                   ///< of the short form
    const char *placeholder = nullptr; ///< in usage lines; null: by the type
    const char *codeList = nullptr;    ///< as of Field

    bool is(Flag flag) const { return (flags & flag) != 0; }
};

/** A row of Option tables that several commands share. */
struct OptionGroup {
    const Option *options = nullptr; ///< not owned: tables are constants
    int count = 0;                   ///< of rows; a group that is not used has none

    const Option *begin() const { return options; }
    const Option *end() const { return options + count; }
};

/** Of a table with static lifetime. */
template <std::size_t n> constexpr OptionGroup group(const Option (&options)[n])
{
    return {options, static_cast<int>(n)};
}

/** A command: everything that parsing, help, man pages, completion and description need to know of it. */
struct Command {
    /** Bits of `flags`. */
    enum Flag : unsigned {
        writes = 1,       ///< changes the database
        destructive = 2,  ///< removes records
        noCompany = 4,    ///< works without a database
        paints = 8,       ///< draws documents: needs fonts
        lists = 16,       ///< answers with a list of records
        single = 32,      ///< not in a batch
        eachOnly = 64,    ///< in a batch only with --each
        adds = 128,       ///< required fields must be given
        keyed = 256,      ///< takes --key
        companies = 1024, ///< goes through several companies, whose records it only reads
        asks = 512,       ///< asks a person at a terminal for what is missing
    };

    const char *name;                    ///< "invoice add"
    const char *summary;                 ///< one line, Finnish
    bool (*run)(Task &);                 ///< @return false with the session's problem set
    unsigned flags = 0;                  ///< of Flag
    const RecordTable *result = nullptr; ///< what it answers with
    const RecordTable *edits = nullptr;  ///< its editable fields are options
    OptionGroup options[3] = {};         ///< in the order of the help; the rest stay empty
    const char *examples = nullptr;      ///< command lines without the program's name, one a line
    const char *details = nullptr;       ///< a paragraph for the help, Finnish

    /** The noun of a plain word is the word itself. */
    bool is(Flag flag) const { return (flags & flag) != 0; }
    QString noun() const { return QString::fromLatin1(name).section(QLatin1Char(' '), 0, 0); }
};

/** The commands of one noun, or of the plain words. */
struct CommandGroup {
    const Command *commands; ///< not owned: tables are constants
    int count;               ///< of commands

    const Command *begin() const { return commands; }
    const Command *end() const { return commands + count; }
};

/** Of a table with static lifetime. */
template <std::size_t n> constexpr CommandGroup commandGroup(const Command (&commands)[n])
{
    return {commands, static_cast<int>(n)};
}

#endif

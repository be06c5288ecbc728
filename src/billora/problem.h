#ifndef PROBLEM_H
#define PROBLEM_H

#include <QString>
#include <QStringList>
#include <QVector>

class JsonWriter;

/** Why a command failed: a code for programs, a sentence for people, and what helps both to do better. */
struct Problem {
    /** Stable for programs, see problemCodes. */
    enum Code {
        none,
        unknownCommand,    ///< no such noun, verb or plain word
        unknownOption,     ///< an option that the command does not have
        missingOption,     ///< a required word or option was not given
        missingSelection,  ///< a command that works on several was told none of them
        missingValue,      ///< an option stands at the end of the line, or empty where it must not be
        conflict,          ///< two options exclude each other, or one is given twice
        unknownField,      ///< no field of the record, JSON member or title has the name
        noCompany,         ///< no database is listed, or the listed one is gone
        database,          ///< the database's own failure, its words in the message
        file,              ///< a file cannot be read or written
        internal,          ///< a failure that has no sentence
        badValue,          ///< a value of another form, or beyond its range
        badJson,           ///< no JSON object, or one with a name twice
        notFound,          ///< no record is what the word names
        ambiguous,         ///< several records are what the word names
        rule,              ///< what was asked for must not be: a total too large, a script in error
        exists,            ///< the number, name or file is taken
        keyReused,         ///< another request was made under the key
        changedMeanwhile,  ///< somebody else changed the record while it was edited
        needsConfirmation, ///< nobody can be asked, and --yes was not given
        declined,          ///< the answer was no
        locked,            ///< another program holds the database; worth another try
    };

    /** A word that would have fitted, and what it is for people (may be empty). */
    struct Suggestion {
        QString word;        ///< as it would be typed
        QString description; ///< in the language of the run
    };

    Code code = none;                ///< none: nothing went wrong
    QString message;                 ///< a sentence without an end, in the language of the run
    QString option;                  ///< the name of the field or option at fault, empty for none
    QString value;                   ///< null where none is at fault
    QVector<Suggestion> suggestions; ///< the best first; may be empty
    QString see;                     ///< a command that shows more, "billora customer list"

    /** A problem without a code was not told yet, or there is none. */
    bool isSet() const { return code != none; }
    /** "not-found" */
    const char *codeName() const;
    int exitCode() const; ///< 0 when nothing is wrong
    /** Writes the error object of the machine forms. */
    void write(JsonWriter &json) const;
};

/** A code as programs see it. */
struct ProblemCode {
    Problem::Code code; ///< in the order of the enumeration
    const char *name;   ///< with hyphens, stable
    int exitCode;       ///< 1 to 5
};

extern const ProblemCode problemCodes[]; ///< one for each code but `none`
extern const int problemCodeCount;       ///< of rows

/** The exit codes, with their meaning in Finnish; 0 first. */
struct ExitMeaning {
    int code;         ///< of the process
    const char *text; ///< Finnish, for help
};
extern const ExitMeaning exitMeanings[]; ///< ascending, `exitInterrupted` last
extern const int exitMeaningCount;       ///< of rows

/** Ended well, and something needs a look. */
constexpr int exitNeedsLook = 6;
constexpr int exitInterrupted = 130; ///< 128 + SIGINT, as shells count

#endif

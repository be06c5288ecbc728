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
        unknownCommand,
        unknownOption,
        missingOption,
        missingSelection,
        missingValue,
        conflict,
        unknownField,
        noCompany,
        database,
        file,
        internal,
        badValue,
        badJson,
        notFound,
        ambiguous,
        rule,
        exists,
        keyReused,
        changedMeanwhile,
        needsConfirmation,
        declined,
        locked,
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

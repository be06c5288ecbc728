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
        QString word;
        QString description;
    };

    Code code = none;
    QString message; ///< a sentence without an end, in the language of the run
    QString option;  ///< the name of the field or option at fault, empty for none
    QString value;   ///< null where none is at fault
    QVector<Suggestion> suggestions;
    QString see; ///< a command that shows more, "billora customer list"

    bool isSet() const { return code != none; }
    /** "not-found" */
    const char *codeName() const;
    int exitCode() const;
    /** Writes the error object of the machine forms. */
    void write(JsonWriter &json) const;
};

/** A code as programs see it. */
struct ProblemCode {
    Problem::Code code;
    const char *name;
    int exitCode;
};

extern const ProblemCode problemCodes[];
extern const int problemCodeCount;

/** The exit codes, with their meaning in Finnish; 0 first. */
struct ExitMeaning {
    int code;
    const char *text;
};
extern const ExitMeaning exitMeanings[];
extern const int exitMeaningCount;

/** Ended well, and something needs a look. */
constexpr int exitNeedsLook = 6;
constexpr int exitInterrupted = 130;

#endif

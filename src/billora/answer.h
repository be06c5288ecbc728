#ifndef ANSWER_H
#define ANSWER_H

#include "field.h"
#include "jsonwriter.h"
#include "tablewriter.h"

#include <QStringList>
#include <QVector>

#include <functional>
#include <memory>

class ProblemSink;

/**
 * text for people or, in a pipe, lines parted by tabs; json one value (RFC 8259); jsonl an object a line (JSON Lines);
 * csv with commas and LF (quoted as in RFC 4180). All in UTF-8.
 */
enum class OutputForm { text, json, jsonl, csv };

/** How the answer of a command is written. */
struct AnswerOptions {
    OutputForm form = OutputForm::text; ///< the machine forms do not depend on the language
    bool quiet = false;                 ///< only the handle of each record
    bool isTerminal = false;            ///< people read it: aligned, their numbers and dates
    bool hasColor = false;              ///< SGR codes; only where isTerminal
    int width = 80;                     ///< of the terminal, columns
    QStringList fields;                 ///< the ones asked for, empty for the usual ones
    bool full = false;                  ///< all fields in a list, too
    bool isDryRun = false;              ///< the answer says so: nothing was stored
    QString key;                        ///< of a repeatable request that is a batch
};

/**
 * What a command answers, in any of the forms. A list is written as it is read, in large pieces; until the first piece
 * is written, take() can take everything back.
 */
class Answer {
public:
    /** Takes bytes of the answer. @return false when nobody reads any more */
    using Sink = std::function<bool(const QByteArray &)>;

    /** @param sink  called from within flush() only */
    Answer(const AnswerOptions &options, Sink sink);

    const AnswerOptions &options() const { return m_options; }
    /** Also where fields are chosen. */
    bool isText() const { return m_options.form == OutputForm::text && !m_options.quiet; }
    /** Whether sentences for people are wanted. */
    bool wantsSentences() const { return isText() && m_options.fields.isEmpty(); }
    /** A list gives all fields, not the usual ones alone. */
    void setFull(bool isFull) { m_options.full = isFull; }
    /** Marks the answer as given before: the record is told as it is now. */
    void setReplayed() { m_isReplayed = true; }

    /**
     * From now on the answer goes through several companies: one list, with the company in front of each record, and an
     * object for each where the command answers with one. What was told before of other companies is written.
     */
    void beginCompany(int number, const QString &name);
    /** Ends what beginCompany() began, also where no company was begun. */
    void endCompanies();

    /** Begins a list. @return false, with the problem told, when a wanted field is none of the table's */
    [[nodiscard]] bool beginList(const RecordTable &table, ProblemSink &sink);
    /** Whether the list shows a field with the flag, as those that need the rows of an invoice. */
    bool shows(Field::Flag flag) const;
    /** @return false when nobody reads any more */
    bool add(const void *record);
    void endList();

    /** A single record, whole. @return as beginList() */
    [[nodiscard]] bool show(const RecordTable &table, const void *record, ProblemSink &sink);
    /** What a writing command answers with: a sentence for people, the whole record for programs. */
    [[nodiscard]] bool saved(const RecordTable &table, const void *record, const QString &sentence, ProblemSink &sink);
    /** An answer without a table: JSON members in the machine forms, a sentence for people. */
    void object(const std::function<void(JsonWriter &)> &members, const QString &sentence);
    /** What a removing command answers with. @param handles  of the records, as texts */
    void removed(const QStringList &handles);
    /** A document in place of an answer. */
    void bytes(const QByteArray &document) { m_buffer += document; }
    /** A line of text for people. */
    void line(const QString &text);
    /** The same of something that was done: a trial says that it was not. */
    void doneLine(const QString &text);
    /** What to do next; only a person at a terminal is told. */
    void hint(const QString &text);

    /** Writes what is gathered. @return false when nobody reads any more */
    bool flush();
    /** Takes back what is not written yet, of several companies what the last one has told. @return whether everything
     * could be taken back */
    bool take();
    bool isReaderGone() const { return m_isReaderGone; }

private:
    /**
     * Sets table and fields. @param whole  a single record: all fields. @return false, with the problem told, for a
     * name that is none of the table's
     */
    bool choose(const RecordTable &table, bool whole, ProblemSink &sink);
    /** Without --fields: columns for people, the summary or all for programs. */
    void chooseUsual(const RecordTable &table, bool whole);
    /** By m_fields; quoted only where it must be. */
    void writeCsvLine(const std::function<QString(const Field &)> &cell);
    void writeRecord(const void *record); ///< in the form that was asked for, with its end of line
    /** A field that is not set has no line; lists of records below as tables. */
    void showForPeople(const RecordTable &table, const void *record);
    QString handleOf(const void *record) const; ///< `id:7` when no field of the table that is a handle is set
    void endMembers(JsonWriter &json) const;    ///< the marks of a trial and of a repeated request

    AnswerOptions m_options;                ///< fields may be added to by setFull() only
    Sink m_sink;                            ///< takes what is flushed
    QByteArray m_buffer;                    ///< UTF-8, not yet given to the sink
    const RecordTable *m_table = nullptr;   ///< of the present list or record; not owned
    QVector<const Field *> m_fields;        ///< chosen, in the order of the output
    std::unique_ptr<TableWriter> m_columns; ///< a list for people: all rows are held, for the widths
    std::unique_ptr<JsonMembers> m_members; ///< of m_fields, made when first needed
    bool m_isFirst = true;                  ///< no record of the list was added yet
    bool m_wasWritten = false;              ///< take() can no longer take all back
    bool m_isReaderGone = false;            ///< nothing is written from then on
    bool m_hasCompanies = false;            ///< see beginCompany()
    bool m_wasFirst = true;                 ///< m_isFirst when the buffer was written last
    bool m_isBegun = false;                 ///< of several companies one has begun its list
    bool m_isReplayed = false;              ///< see setReplayed()
};

#endif

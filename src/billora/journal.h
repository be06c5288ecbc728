#ifndef JOURNAL_H
#define JOURNAL_H

#include "invoiceselection.h"
#include "journalstore.h"
#include "records.h"

#include <functional>

class Task;

/**
 * The journal of the documents that were sent: a line each, as JSON (RFC 8259) in UTF-8, that holds the SHA-256 of the
 * line before. The head beside it holds the number and the SHA-256 of the last one. Who changes lines and the head as
 * one does so unseen: nothing here is secret.
 */
namespace Journal {

/** Which lines are meant: all conditions that are set must hold. */
struct Filter {
    InvoiceSelection invoices; ///< its numbers and ids
    QDate from, to;            ///< local days, both included; invalid: no limit

    bool matches(const JournalRecord &line) const;
};

QByteArray text(const JournalRecord &line); ///< as it stands in the journal, without LF

/** @return false for what is no line of a journal */
bool parse(const QByteArray &text, JournalRecord &line);

/**
 * Adds lines, all or none, on the disk when this returns true. Numbers and hashes of the lines before are set here.
 * @return false with the failure told
 */
[[nodiscard]] bool append(Task &task, const QVector<JournalRecord> &lines);

/**
 * Reads all lines. @param each  gets false for a line that is none; its number is then its place
 * @return false with the failure told
 */
[[nodiscard]] bool read(Task &task, const std::function<bool(const JournalRecord &, bool isLine)> &each,
                        int invoiceId = -1);

/** Checks the chain from the first line to the head. @param sent  gets each line. @return false with the failure told
 */
[[nodiscard]] bool verify(Task &task, const std::function<void(const JournalRecord &)> &sent,
                          const std::function<void(const JournalFindingRecord &)> &found);

/** Tells that the store cannot be read or written. @return false */
bool fail(Task &task, const JournalStore &store);

} // namespace Journal

#endif

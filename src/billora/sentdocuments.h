#ifndef SENTDOCUMENTS_H
#define SENTDOCUMENTS_H

#include "exportinvoices.h"
#include "invoiceselection.h"
#include "records.h"

#include <QHash>
#include <QSet>
#include <QVector>

class Task;

/** The documents that a command writes for sending, on their way into the journal. */
class SentDocuments {
public:
    /** @param task  outlives this */
    explicit SentDocuments(Task &task) : m_task(task) {}

    /**
     * Before the export: takes the invoices down as they are, so that a change meanwhile shows later, and tries the
     * journal. @return false with the failure told: nothing should be written then
     */
    [[nodiscard]] bool prepare(const InvoiceSelection &selection);
    bool isEmpty() const { return m_records.isEmpty(); } ///< no invoice was selected
    /**
     * After it, for the files that are there. @param shownName  in place of the files' own, null for none
     * @return false with the failure told
     */
    [[nodiscard]] bool record(const QVector<ExportInvoices::File> &files, const QString &shownName = QString());

    /** SHA-256, hexadecimal, of an invoice with its rows and customer: all that `invoice show` tells but payments. */
    static QString hashOf(const InvoiceRecord &record);
    /** Finds those of the invoices that were sent, by their ids. @return false with the failure told */
    [[nodiscard]] static bool find(Task &task, const QSet<int> &ids, QSet<int> &sent);
    /** A sentence before a question where the invoice was sent. @return as find() */
    [[nodiscard]] static bool remarkOf(Task &task, const QVector<Invoice> &invoices, QString &remark);
    /**
     * Asks before an invoice is changed that was sent. @return false, with the problem told, when the answer is no or
     * nobody can be asked
     */
    [[nodiscard]] static bool agreesToChange(Task &task, const Invoice &invoice);

private:
    Task &m_task;
    QHash<int, QString> m_records; ///< hashes by the id of the invoice
};

#endif

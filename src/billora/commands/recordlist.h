#ifndef RECORDLIST_H
#define RECORDLIST_H

#include "field.h"
#include "selection.h"
#include "task.h"

#include <QVector>

#include <algorithm>

/** The list of a noun whose records are read at once: customers, products, accounts, layouts, companies. */
namespace RecordList {

/** Whether a text field of the record contains the text, letter case aside. */
bool contains(const RecordTable &table, const void *record, const QString &text);
/** The order of two records by a field: numbers and dates by their size, texts letter case aside. */
bool isLess(const Field &field, const void *a, const void *b);
/** The fields that a list can be ordered by. */
QStringList sortKeys(const RecordTable &table);

/** Answers with the records, by the options `search`, `sort`, `limit` and `full` where the command has them. */
template <class Record> bool answer(Task &task, const RecordTable &table, QVector<Record> &records)
{
    QString sort;
    bool descending = false;
    int limit = -1;
    task.answer.setFull(task.flag("full"));
    if (!Selection::readSort(task, sortKeys(table), sort, descending) || !Selection::readLimit(task, limit) ||
        !task.answer.beginList(table, task.session))
        return false;
    const QString text = task.arguments.text("search");
    if (!text.isEmpty())
        records.erase(std::remove_if(records.begin(), records.end(),
                                     [&](const Record &record) { return !contains(table, &record, text); }),
                      records.end());
    if (!sort.isEmpty()) {
        const Field &field = *table.find(sort);
        std::stable_sort(records.begin(), records.end(), [&](const Record &a, const Record &b) {
            return descending ? isLess(field, &b, &a) : isLess(field, &a, &b);
        });
    }
    int count = 0;
    for (const Record &record : qAsConst(records)) {
        if (limit >= 0 && count++ >= limit)
            break;
        if (!task.answer.add(&record))
            break;
    }
    task.answer.endList();
    return true;
}

} // namespace RecordList

#endif

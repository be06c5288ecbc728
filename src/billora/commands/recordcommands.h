#ifndef RECORDCOMMANDS_H
#define RECORDCOMMANDS_H

#include "csvimport.h"
#include "editorfile.h"
#include "jsonwriter.h"
#include "recordediting.h"
#include "recordfields.h"
#include "task.h"
#include "texts.h"
#include "writetransaction.h"

#include <QVector>

/*
 * Adding, editing and removing of the records that have a list of their own: customers, products, accounts. What
 * differs is told by a Kind:
 *
 *     using Record                        of the field table, with the stored record in the member `part`
 *     table, word                         the field table, and the name of the word that names records
 *     find(task, option, word, stored)
 *     check(task, stored, earlier)        what the fields must fulfil together; earlier is null for a new one
 *     added, changed, removing            sentences with the handle in "%1" and the name in "%2"
 *     nextStep(stored)                    a command line, empty for none
 *     complete(task, record)              reads what the record tells of other tables
 */
namespace RecordCommands {

/** The value of the field that is the handle, as -q prints it; empty when the record has none. */
template <class Kind> QString handle(const typename Kind::Record &record)
{
    for (const Field &field : Kind::table) {
        const Value value = field.get(&record);
        if (field.is(Field::handle) && !value.isNull())
            return value.kind() == Value::number ? QString::number(value.toNumber()) : value.toText();
    }
    return QString();
}

/** Writes the whole record, or for people the sentence with handle and name. @return false with the problem told */
template <class Kind> bool answer(Task &task, const typename Kind::Record &record, const char *sentence)
{
    return task.answer.saved(Kind::table, &record, text(sentence).arg(handle<Kind>(record), (record.*Kind::part).name),
                             task.session);
}

/**
 * Adds what the options say in a transaction of its own; false, with nothing stored and the problem told, when a value
 * does not fit.
 */
template <class Kind> bool add(Task &task)
{
    typename Kind::Record record;
    auto &stored = record.*Kind::part;
    if (!RecordFields::apply(task.reader, Kind::table, task.arguments, &stored))
        return false;
    WriteTransaction transaction(task.context().session);
    if (!transaction.hasBegun() || !Kind::check(task, stored, nullptr) ||
        !RecordEditing::save(task.context(), stored) || !transaction.commit() ||
        !answer<Kind>(task, record, Kind::added))
        return false;
    const QString next = Kind::nextStep(stored);
    if (!next.isEmpty())
        task.answer.hint(text(TEXT("Seuraavaksi: ")) + next);
    return true;
}

/** @param seen  what was shown to a person who edited it; null when nothing was */
template <class Kind>
bool change(Task &task, const QString &word, const Arguments &given, const typename Kind::Record *seen)
{
    WriteTransaction transaction(task.context().session);
    if (!transaction.hasBegun())
        return false;
    typename Kind::Record record;
    auto &stored = record.*Kind::part;
    if (!Kind::find(task, Kind::word, word, stored) || !Kind::complete(task, record))
        return false;
    const auto json = [](const typename Kind::Record &shown) {
        QByteArray bytes;
        JsonWriter(bytes).record(Kind::table, &shown);
        return bytes;
    };
    if (seen && json(record) != json(*seen))
        return task.fail(Problem::changedMeanwhile, text(TEXT("joku muu on muuttanut tietoja sillä välin")));
    const auto earlier = stored;
    return RecordFields::apply(task.reader, Kind::table, given, &stored) && Kind::check(task, stored, &earlier) &&
           RecordEditing::save(task.context(), stored) && transaction.commit() &&
           answer<Kind>(task, record, Kind::changed);
}

/** A new record needs its required fields. */
template <class Kind> bool checkRequired(Task &task, const Arguments &given, bool isKnown)
{
    for (const Field &field : Kind::table) {
        if (!isKnown && field.is(Field::required) && !given.has(field.name))
            return task.fail(Problem::missingOption, text(TEXT("kenttä puuttuu: %1")).arg(QLatin1String(field.name)),
                             QLatin1String(field.name));
    }
    return true;
}

/** With fields as options changes them; without any opens the editor, which needs a person. */
template <class Kind> bool edit(Task &task)
{
    const QString word = task.arguments.text(Kind::word);
    if (RecordFields::hasAny(Kind::table, task.arguments))
        return change<Kind>(task, word, task.arguments, nullptr);
    if (!task.manners.isInteractive)
        return task.fail(Problem::missingOption, text(TEXT("mitä muutetaan? Anna kenttiä valintoina")));
    typename Kind::Record seen;
    if (!Kind::find(task, Kind::word, word, seen.*Kind::part) || !Kind::complete(task, seen))
        return false;
    bool isUnchanged = false;
    const QString id = QStringLiteral("id:%1").arg((seen.*Kind::part).id);
    const bool edited = EditorFile::edit(
        task, Kind::table, &seen, nullptr,
        [&](const Arguments &changed) { return change<Kind>(task, id, changed, &seen); }, isUnchanged);
    return edited && (!isUnchanged || answer<Kind>(task, seen, TEXT("Mitään ei muutettu: %1 %2")));
}

/** Asks once for all; either every record is removed or none. A record named twice counts once. */
template <class Kind> bool remove(Task &task)
{
    using Record = typename Kind::Record;
    QVector<Record> records;
    const QStringList words = task.arguments.texts(Kind::word);
    for (const QString &word : words) {
        Record record;
        if (!Kind::find(task, Kind::word, word, record.*Kind::part))
            return false;
        bool isKnown = false;
        for (const Record &known : qAsConst(records))
            isKnown = isKnown || (known.*Kind::part).id == (record.*Kind::part).id;
        if (!isKnown)
            records.append(record);
    }
    QStringList names, handles;
    for (const Record &record : qAsConst(records)) {
        handles.append(handle<Kind>(record));
        names.append(handles.last() + QLatin1Char(' ') + (record.*Kind::part).name);
    }
    QString remark;
    if (!Kind::remark(task, records, remark) ||
        !task.confirm(text(Kind::removing).arg(names.join(QLatin1String(", "))) + remark, records.size(), false))
        return false;
    WriteTransaction transaction(task.context().session);
    if (!transaction.hasBegun())
        return false;
    for (Record &record : records) {
        if (!RecordEditing::remove(task.context(), record.*Kind::part))
            return false;
    }
    if (!transaction.commit())
        return false;
    task.answer.removed(handles);
    return true;
}

/**
 * Adds and, with `update`, changes the records of a CSV file: all or nothing.
 * Kind::findKnown(task, fields, stored, isKnown) looks up the stored record with the line's number.
 */
template <class Kind> bool importFile(Task &task)
{
    constexpr int mostProblems = 20;
    QVector<CsvImport::Line> lines;
    if (!CsvImport::read(task, Kind::table, task.arguments.text("file"), lines))
        return false;
    const bool updates = task.flag("update");
    WriteTransaction transaction(task.context().session);
    if (!transaction.hasBegun())
        return false;
    int added = 0, updated = 0, unchanged = 0;
    QStringList wrong;
    Problem first;
    for (const CsvImport::Line &line : qAsConst(lines)) {
        typename Kind::Record record;
        auto &stored = record.*Kind::part;
        bool isKnown = false;
        bool done = Kind::findKnown(task, line.fields, stored, isKnown);
        if (done && isKnown && !updates)
            done = task.fail(Problem::exists, text(TEXT("numero on jo käytössä: %1")).arg(handle<Kind>(record)),
                             QStringLiteral("number"), handle<Kind>(record));
        const auto earlier = stored;
        const auto json = [](const typename Kind::Record &shown) {
            QByteArray bytes;
            JsonWriter(bytes).record(Kind::table, &shown);
            return bytes;
        };
        const QByteArray before = json(record);
        done = done && checkRequired<Kind>(task, line.fields, isKnown) &&
               RecordFields::apply(task.reader, Kind::table, line.fields, &stored) &&
               Kind::check(task, stored, isKnown ? &earlier : nullptr);
        const bool isSame = isKnown && json(record) == before;
        done = done && (isSame || RecordEditing::save(task.context(), stored));
        if (done) {
            ++(isSame ? unchanged : isKnown ? updated : added);
            continue;
        }
        const Problem problem = task.session.problem();
        if (problem.exitCode() == 2 || problem.exitCode() == 5)
            return false;
        if (!first.isSet())
            first = problem;
        if (wrong.size() < mostProblems)
            wrong.append(text(TEXT("rivi %1: %2")).arg(QString::number(line.number), problem.message));
        task.session.clearProblem();
    }
    if (!wrong.isEmpty()) {
        first.message = wrong.join(QLatin1String("\n  "));
        return task.fail(first);
    }
    if (updated > 0 && !task.confirm(text(TEXT("Muutetaanko %1 tietuetta?")).arg(updated), updated, false))
        return false;
    if (!transaction.commit())
        return false;
    task.answer.object(
        [&](JsonWriter &json) {
            json.member("added", added);
            json.member("updated", updated);
            json.member("unchanged", unchanged);
        },
        text(TEXT("Lisätty %1, muutettu %2, ennallaan %3"))
            .arg(QString::number(added), QString::number(updated), QString::number(unchanged)));
    return true;
}

} // namespace RecordCommands

#endif

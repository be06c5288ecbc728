#include "editorfile.h"

#include "rowwords.h"
#include "task.h"
#include "texts.h"
#include "valuewriter.h"

#include <QDir>
#include <QFile>
#include <QTemporaryFile>

#include <cstdlib>
#include <sys/wait.h>

namespace {

QString escaped(QString value)
{
    return value.replace(QLatin1Char('\\'), QLatin1String("\\\\")).replace(QLatin1Char('\n'), QLatin1String("\\n"));
}

QString unescaped(const QString &value)
{
    QString text;
    for (int i = 0; i < value.size(); ++i) {
        const bool isEscape = value.at(i) == QLatin1Char('\\') && i + 1 < value.size();
        if (!isEscape) {
            text += value.at(i);
            continue;
        }
        ++i;
        text += value.at(i) == QLatin1Char('n') ? QLatin1Char('\n') : value.at(i);
    }
    return text;
}

/** The lines of the record; only what can be edited. */
QStringList linesOf(const RecordTable &table, const void *record, const QStringList *rows)
{
    QStringList lines;
    for (const Field &field : table) {
        if (!field.is(Field::editable))
            continue;
        const QString value = escaped(ValueWriter::plain(field, field.get(record)));
        lines.append((QLatin1String(field.name) + QLatin1String(": ") + value).trimmed());
    }
    if (rows) {
        for (const QString &row : *rows)
            lines.append(QLatin1String("row: ") + escaped(row));
    }
    return lines;
}

/** Reads the lines that differ from the original ones. */
bool parse(Task &task, const QStringList &lines, const QStringList &original, const RecordTable &table, bool hasRows,
           Arguments &changed, bool &isEmpty)
{
    QStringList rows, originalRows;
    isEmpty = true;
    for (const QString &line : original) {
        if (line.startsWith(QLatin1String("row:")))
            originalRows.append(line.mid(4).trimmed());
    }
    for (const QString &typed : lines) {
        const QString line = typed.trimmed();
        if (line.isEmpty() || line.startsWith(QLatin1Char('#')))
            continue;
        isEmpty = false;
        const int colon = line.indexOf(QLatin1Char(':'));
        const QString name = line.left(colon).trimmed();
        if (hasRows && name == QLatin1String("row")) {
            rows.append(line.mid(colon + 1).trimmed());
            continue;
        }
        const Field *field = colon < 0 ? nullptr : table.find(name);
        if (!field || !field->is(Field::editable))
            return task.fail(Problem::unknownField, text(TEXT("tuntematon rivi: %1")).arg(line), name, line);
        if (original.contains(line))
            continue;
        if (changed.has(name))
            return task.fail(Problem::conflict, text(TEXT("kenttä on kahdesti: %1")).arg(name), name);
        changed.add(name, unescaped(line.mid(colon + 1).trimmed()));
    }
    if (!hasRows || rows == originalRows)
        return true;
    changed.hasRows = true;
    for (const QString &row : qAsConst(rows)) {
        Arguments given;
        if (!RowWords::parse(task.reader, QStringLiteral("row"), unescaped(row), given))
            return false;
        changed.rows.append(given);
    }
    return true;
}

} // namespace

bool EditorFile::open(Task &task, const QString &fileName)
{
    QByteArray editor = qgetenv("VISUAL");
    if (editor.isEmpty())
        editor = qgetenv("EDITOR");
    if (editor.isEmpty())
        editor = "editor"; // Debian's own choice
    // The shell takes the editor's options apart; the name is a word of its own.
    const QByteArray command = editor + " '" + QFile::encodeName(fileName) + "'";
    const int status = std::system(command.constData());
    return (WIFEXITED(status) && WEXITSTATUS(status) == 0) ||
           task.fail(Problem::file, text(TEXT("muokkain ei onnistunut: %1")).arg(QString::fromLocal8Bit(editor)));
}

bool EditorFile::edit(Task &task, const RecordTable &table, const void *record, const QStringList *rows,
                      const Save &save, bool &isUnchanged)
{
    const QStringList original = linesOf(table, record, rows);
    QStringList lines = original;
    QString reason;
    QStringList refused;
    QTemporaryFile place(QDir::tempPath() + QLatin1String("/billora-XXXXXX.txt"));
    if (!place.open())
        return task.fail(Problem::file, place.errorString());
    const QString fileName = place.fileName();
    place.close();
    for (;;) {
        QStringList shown;
        if (!reason.isEmpty())
            shown.append(QLatin1String("# ") + QString(reason).replace(QLatin1Char('\n'), QLatin1String("\n# ")));
        shown.append(QLatin1String("# ") +
                     text(TEXT("Tallenna ja sulje; tyhjä tai muuttamaton tiedosto ei muuta mitään.")));
        if (rows)
            shown.append(QLatin1String("# ") + text(TEXT("Rivit: row: TUOTE [MÄÄRÄ] [KENTTÄ=ARVO]… text=teksti")));
        QFile file(fileName);
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
            return task.fail(Problem::file, file.errorString());
        file.write((shown + lines).join(QLatin1Char('\n')).toUtf8() + '\n');
        file.close();
        if (!open(task, fileName))
            return false;
        if (!file.open(QIODevice::ReadOnly))
            return task.fail(Problem::file, file.errorString());
        const QStringList read = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
        file.close();
        lines.clear();
        for (const QString &line : read) {
            if (!line.startsWith(QLatin1Char('#')) && !line.trimmed().isEmpty())
                lines.append(line);
        }
        Arguments changed;
        bool isEmpty = false;
        const bool isRead = parse(task, lines, original, table, rows, changed, isEmpty);
        isUnchanged = isRead && (isEmpty || (changed.isEmpty() && !changed.hasRows));
        if (isUnchanged)
            return true;
        if (isRead && save(changed))
            return true;
        const Problem problem = task.session.problem();
        if ((problem.exitCode() != 1 && problem.exitCode() != 3) || problem.code == Problem::changedMeanwhile)
            return false;
        if (lines == refused) // nothing was mended: an editor that does not wait for a person
            return false;
        refused = lines;
        reason = problem.message;
        task.session.clearProblem();
    }
}

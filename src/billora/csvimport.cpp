#include "csvimport.h"

#include "suggestions.h"
#include "task.h"
#include "texts.h"

#include <QFile>
#include <QTextCodec>

#include <algorithm>

namespace {

QString decoded(const QByteArray &bytes)
{
    QTextCodec::ConverterState state;
    const QString text = QTextCodec::codecForName("UTF-8")->toUnicode(bytes.constData(), bytes.size(), &state);
    if (state.invalidChars == 0 && state.remainingChars == 0)
        return text;
    return QTextCodec::codecForName("ISO-8859-15")->toUnicode(bytes);
}

/** The one that stands most often in the title line. */
QChar delimiterOf(const QString &text)
{
    const QString titles = text.section(QLatin1Char('\n'), 0, 0);
    QChar best = QLatin1Char(',');
    for (const char candidate : {',', ';', '\t'}) {
        if (titles.count(QLatin1Char(candidate)) > titles.count(best))
            best = QLatin1Char(candidate);
    }
    return best;
}

struct CsvLine {
    int number;
    QStringList cells;
};

/**
 * Takes a text apart; a quoted cell may hold delimiters and line ends.
 * @param badLine  where a quote is that nothing closes, or that more than its cell's end follows; 0: none
 */
QVector<CsvLine> parse(const QString &text, QChar delimiter, int &badLine)
{
    QVector<CsvLine> lines;
    bool wasQuoted = false; // the cell, up to its end
    badLine = 0;
    CsvLine line = {1, {}};
    QString cell;
    bool isQuoted = false;
    int number = 1;
    int quoteLine = 0;
    const auto endLine = [&] {
        wasQuoted = false;
        line.cells.append(cell);
        cell.clear();
        const bool isEmpty =
            std::all_of(line.cells.begin(), line.cells.end(), [](const QString &c) { return c.trimmed().isEmpty(); });
        if (!isEmpty)
            lines.append(line);
        line = {number, {}};
    };
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c == QLatin1Char('\n'))
            ++number;
        if (isQuoted) {
            if (c != QLatin1Char('"'))
                cell += c;
            else if (i + 1 < text.size() && text.at(i + 1) == QLatin1Char('"'))
                cell += text.at(++i);
            else
                isQuoted = false;
        } else if (c == QLatin1Char('"') && cell.isEmpty() && !wasQuoted) {
            isQuoted = wasQuoted = true;
            quoteLine = number;
        } else if (c == delimiter) {
            wasQuoted = false;
            line.cells.append(cell);
            cell.clear();
        } else if (c == QLatin1Char('\n')) {
            endLine();
        } else if (c != QLatin1Char('\r')) {
            if (wasQuoted && badLine == 0)
                badLine = number;
            cell += c;
        }
    }
    if (isQuoted && badLine == 0)
        badLine = quoteLine;
    if (!cell.isEmpty() || !line.cells.isEmpty())
        endLine();
    return lines;
}

/** The field that a title names, null for none. */
const Field *fieldOf(const RecordTable &table, const QString &title)
{
    for (const Field &field : table) {
        const QString names[] = {QLatin1String(field.name), QString::fromUtf8(field.heading), text(field.heading)};
        for (const QString &name : names) {
            if (field.is(Field::editable) && title.compare(name, Qt::CaseInsensitive) == 0)
                return &field;
        }
    }
    return nullptr;
}

bool readMap(Task &task, const RecordTable &table, QHash<QString, QString> &map)
{
    const QStringList words = task.arguments.texts("map");
    for (const QString &word : words) {
        const int equals = word.lastIndexOf(QLatin1Char('='));
        const Field *field = equals < 1 ? nullptr : table.find(word.mid(equals + 1));
        if (!field || !field->is(Field::editable))
            return task.reader.failValue(QStringLiteral("map"), word, text(TEXT("anna OTSIKKO=KENTTÄ")));
        map.insert(word.left(equals).toLower(), word.mid(equals + 1));
    }
    return true;
}

} // namespace

bool CsvImport::read(Task &task, const RecordTable &table, const QString &fileName, QVector<Line> &lines)
{
    QFile file(fileName);
    const bool isOpen =
        fileName == QLatin1String("-") ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly);
    if (!isOpen)
        return task.session.fail(Failure::fileUnreadable, {fileName, file.errorString()});
    QString content = decoded(file.readAll());
    if (content.startsWith(QChar(QChar::ByteOrderMark)))
        content.remove(0, 1);
    int badLine = 0;
    const QVector<CsvLine> read = parse(content, delimiterOf(content), badLine);
    if (badLine > 0)
        return task.fail(Problem::badValue, text(TEXT("rivin %1 lainausmerkit eivät täsmää")).arg(badLine),
                         QStringLiteral("file"), fileName);
    QHash<QString, QString> map;
    if (!readMap(task, table, map))
        return false;
    if (read.isEmpty())
        return task.fail(Problem::badValue, text(TEXT("tiedostossa ei ole otsikkoriviä")), QStringLiteral("file"),
                         fileName);
    QStringList names;
    QStringList known;
    for (const Field &field : table) {
        if (field.is(Field::editable))
            known.append(QLatin1String(field.name));
    }
    for (const QString &cell : read.first().cells) {
        const QString title = cell.trimmed();
        const QString mapped = map.value(title.toLower());
        const Field *field = mapped.isEmpty() ? fieldOf(table, title) : table.find(mapped);
        if (!field && !task.flag("ignoreUnknown")) {
            Problem problem;
            problem.code = Problem::unknownField;
            problem.message = text(TEXT("tuntematon otsikko: %1")).arg(title);
            problem.option = QStringLiteral("file");
            problem.value = title;
            const QStringList near = Suggestions::nearest(title, known);
            for (const QString &word : near)
                problem.suggestions.append({word, QString()});
            return task.fail(problem);
        }
        const QString name = field ? QString::fromLatin1(field->name) : QString();
        if (field && names.contains(name))
            return task.fail(Problem::conflict, text(TEXT("kenttä on kahdesti: %1")).arg(name), QStringLiteral("file"),
                             title);
        names.append(name);
    }
    for (int i = 1; i < read.size(); ++i) {
        Line line;
        line.number = read.at(i).number;
        if (read.at(i).cells.size() > names.size())
            return task.fail(Problem::badValue, text(TEXT("rivillä %1 on liikaa sarakkeita")).arg(line.number),
                             QStringLiteral("file"), fileName);
        for (int column = 0; column < read.at(i).cells.size(); ++column) {
            const QString value = read.at(i).cells.at(column).trimmed();
            if (!names.at(column).isEmpty() && !value.isEmpty())
                line.fields.add(names.at(column), value);
        }
        lines.append(line);
    }
    return true;
}

#include "answer.h"

#include "companycolumns.h"
#include "integer.h"
#include "problem.h"
#include "suggestions.h"
#include "terminal.h"
#include "texts.h"
#include "valuereader.h"
#include "valuewriter.h"

#include <QTextCodec>

#include <algorithm>

namespace {

/** An answer longer than this is written in pieces: a long list is not held in memory. */
constexpr int pieceSize = 65536;
constexpr int roomForRecord = 4096; // that memory is not moved for each

QString csvCell(const QString &cell)
{
    const bool isPlain = std::none_of(cell.begin(), cell.end(), [](QChar c) {
        return c == QLatin1Char(',') || c == QLatin1Char('"') || c == QLatin1Char('\n') || c == QLatin1Char('\r');
    });
    if (isPlain)
        return cell;
    return QLatin1Char('"') + QString(cell).replace(QLatin1Char('"'), QLatin1String("\"\"")) + QLatin1Char('"');
}

/** A cell of a line whose columns tabs separate. */
QString tabCell(QString cell)
{
    for (QChar &c : cell) {
        if (c == QLatin1Char('\t') || c == QLatin1Char('\n') || c == QLatin1Char('\r'))
            c = QLatin1Char(' ');
    }
    return cell;
}

/** Whether the field is asked for: by its name, or by that of the object it belongs to. */
bool isNamed(const Field &field, const QString &name)
{
    return name == QLatin1String(field.name) || QString::fromLatin1(field.name).startsWith(name + QLatin1Char('.'));
}

} // namespace

Answer::Answer(const AnswerOptions &options, Sink sink) : m_options(options), m_sink(std::move(sink)) {}

void Answer::chooseUsual(const RecordTable &table, bool whole)
{
    const bool forPeople = m_options.form == OutputForm::text && !whole;
    if (forPeople) {
        const QStringList columns = QString::fromLatin1(table.columns).split(QLatin1Char(','));
        for (const QString &column : columns)
            m_fields.append(table.find(column));
        return;
    }
    for (const Field &field : table) {
        if (whole || m_options.full || field.is(Field::summary))
            m_fields.append(&field);
    }
}

bool Answer::choose(const RecordTable &table, bool whole, ProblemSink &sink)
{
    m_table = &table;
    m_fields.clear();
    m_members.reset();
    QVector<const Field *> known;
    if (m_hasCompanies) {
        for (const Field &field : CompanyColumns::table)
            known.append(&field);
    }
    if (m_options.fields.isEmpty()) {
        m_fields = known;
        chooseUsual(table, whole);
    }
    for (const Field &field : table)
        known.append(&field);
    for (const QString &name : qAsConst(m_options.fields)) {
        const int before = m_fields.size();
        for (const Field *field : qAsConst(known)) {
            if (isNamed(*field, name) && !m_fields.contains(field))
                m_fields.append(field);
        }
        const bool isKnown =
            m_fields.size() > before || std::any_of(m_fields.begin(), m_fields.end(),
                                                    [&name](const Field *field) { return isNamed(*field, name); });
        if (isKnown)
            continue;
        Problem problem;
        problem.code = Problem::unknownField;
        problem.message = text(TEXT("kenttää ei ole: %1")).arg(name);
        problem.option = QStringLiteral("fields");
        problem.value = name;
        QStringList names;
        for (const Field *field : qAsConst(known))
            names.append(QLatin1String(field->name));
        const QStringList near = Suggestions::nearest(name, names);
        for (const QString &word : near)
            problem.suggestions.append({word, QString()});
        return sink.fail(problem);
    }
    if (m_options.fields.isEmpty() && (m_options.form == OutputForm::json || m_options.form == OutputForm::jsonl))
        return true; // in the order of the table the members of an object stand together
    if (m_options.form == OutputForm::json || m_options.form == OutputForm::jsonl) {
        // The members of an object stand together, where its first one was asked for.
        std::stable_sort(m_fields.begin(), m_fields.end(), [order = m_fields](const Field *a, const Field *b) {
            const auto place = [&order](const Field *field) {
                const QString object = QString::fromLatin1(field->name).section(QLatin1Char('.'), 0, 0);
                return std::distance(order.begin(), std::find_if(order.begin(), order.end(), [&](const Field *other) {
                                         return other == field ||
                                                (QString::fromLatin1(field->name).contains(QLatin1Char('.')) &&
                                                 isNamed(*other, object));
                                     }));
            };
            return place(a) < place(b);
        });
    } else if (m_options.form == OutputForm::csv || m_options.quiet) {
        m_fields.erase(std::remove_if(m_fields.begin(), m_fields.end(),
                                      [](const Field *field) { return field->type == ValueType::records; }),
                       m_fields.end());
    }
    return true;
}

bool Answer::shows(Field::Flag flag) const
{
    return std::any_of(m_fields.begin(), m_fields.end(), [flag](const Field *field) { return field->is(flag); });
}

void Answer::beginCompany(int number, const QString &name)
{
    flush();
    m_hasCompanies = true;
    CompanyColumns::set(number, name);
}

void Answer::endCompanies()
{
    m_hasCompanies = false;
    if (m_isBegun)
        endList();
    else if (m_options.form == OutputForm::json && !m_options.quiet)
        m_buffer += m_isFirst ? "[]\n" : "\n]\n";
}

bool Answer::beginList(const RecordTable &table, ProblemSink &sink)
{
    if (m_isBegun)
        return true;
    if (!choose(table, false, sink))
        return false;
    m_isBegun = m_hasCompanies;
    m_isFirst = true;
    m_buffer.reserve(pieceSize + roomForRecord);
    if (m_options.quiet)
        return true;
    if (m_options.form == OutputForm::json)
        m_buffer += '[';
    else if (m_options.form == OutputForm::csv)
        writeCsvLine([](const Field &field) { return QString::fromLatin1(field.name); });
    else if (isText() && m_options.isTerminal)
        m_columns = std::make_unique<TableWriter>(m_fields, m_options.width, m_options.hasColor);
    if (m_isBegun)
        flush();
    return true;
}

bool Answer::add(const void *record)
{
    if (m_columns) {
        m_columns->add(record);
        return true;
    }
    if (m_options.form == OutputForm::json && !m_options.quiet) {
        m_buffer += m_isFirst ? "\n" : ",\n";
        m_isFirst = false;
    }
    writeRecord(record);
    return m_buffer.size() < pieceSize || flush();
}

void Answer::endList()
{
    if (m_hasCompanies) {
        flush(); // each company's part by itself: take() leaves those before
    } else if (m_columns) {
        m_buffer += m_columns->text().toUtf8();
        m_columns.reset();
    } else if (m_options.form == OutputForm::json && !m_options.quiet) {
        m_buffer += m_isFirst ? "]\n" : "\n]\n";
    }
}

QString Answer::handleOf(const void *record) const
{
    for (const Field &field : *m_table) {
        if (!field.is(Field::handle))
            continue;
        const QString handle = ValueWriter::plain(field, field.get(record));
        if (!handle.isEmpty())
            return handle;
    }
    const Field *id = m_table->find(QStringLiteral("id"));
    return id ? QStringLiteral("id:") + ValueWriter::plain(*id, id->get(record)) : QString();
}

void Answer::writeCsvLine(const std::function<QString(const Field &)> &cell)
{
    for (int i = 0; i < m_fields.size(); ++i) {
        if (i > 0)
            m_buffer += ',';
        m_buffer += csvCell(cell(*m_fields.at(i))).toUtf8();
    }
    m_buffer += '\n';
}

void Answer::endMembers(JsonWriter &json) const
{
    if (m_options.isDryRun)
        json.member("dryRun", true);
    if (m_isReplayed)
        json.member("replayed", true);
}

void Answer::writeRecord(const void *record)
{
    if (m_options.quiet) {
        if (m_hasCompanies)
            m_buffer += QByteArray::number(CompanyColumns::number()) + '\t';
        m_buffer += handleOf(record).toUtf8() + '\n';
        return;
    }
    switch (m_options.form) {
    case OutputForm::json:
    case OutputForm::jsonl: {
        JsonWriter json(m_buffer);
        json.beginObject();
        if (m_fields.size() == m_table->count && m_options.fields.isEmpty()) {
            json.members(JsonMembers::of(*m_table), record);
        } else {
            if (!m_members)
                m_members = std::make_unique<JsonMembers>(m_fields);
            json.members(*m_members, record);
        }
        endMembers(json);
        json.endObject();
        if (m_options.form == OutputForm::jsonl)
            m_buffer += '\n';
        return;
    }
    case OutputForm::csv:
        writeCsvLine([record](const Field &field) { return ValueWriter::plain(field, field.get(record)); });
        return;
    case OutputForm::text:
        for (int i = 0; i < m_fields.size(); ++i) {
            if (i > 0)
                m_buffer += '\t';
            m_buffer += tabCell(ValueWriter::plain(*m_fields.at(i), m_fields.at(i)->get(record))).toUtf8();
        }
        m_buffer += '\n';
    }
}

void Answer::showForPeople(const RecordTable &table, const void *record)
{
    const auto isShown = [](const Value &value) { return !value.isNull() && value.kind() != Value::records; };
    int width = 0;
    for (const Field *field : qAsConst(m_fields))
        width = std::max(width, Terminal::width(::text(field->heading)));
    for (const Field *field : qAsConst(m_fields)) {
        const Value value = field->get(record);
        if (!isShown(value))
            continue;
        if (!m_options.isTerminal) {
            line(QLatin1String(field->name) + QLatin1Char('\t') + tabCell(ValueWriter::plain(*field, value)));
            continue;
        }
        const QString shown = ValueWriter::forPeople(*field, value);
        if (shown.isEmpty())
            continue;
        const QString heading = ::text(field->heading);
        line(heading + QString(width - Terminal::width(heading) + 2, QLatin1Char(' ')) + shown);
    }
    for (const Field *field : qAsConst(m_fields)) {
        const Value value = field->get(record);
        if (value.kind() != Value::records || value.toRecords().isEmpty())
            continue;
        AnswerOptions options = m_options;
        options.fields.clear();
        Answer nested(options, [this](const QByteArray &bytes) {
            m_buffer += bytes;
            return true;
        });
        nested.m_table = field->nested;
        nested.chooseUsual(*field->nested, false);
        m_buffer += '\n';
        if (m_options.isTerminal)
            nested.m_columns = std::make_unique<TableWriter>(nested.m_fields, m_options.width, m_options.hasColor);
        for (const void *row : value.toRecords())
            nested.add(row);
        nested.endList();
        nested.flush();
    }
    Q_UNUSED(table)
}

bool Answer::show(const RecordTable &table, const void *record, ProblemSink &sink)
{
    if (!choose(table, true, sink))
        return false;
    if (isText() && (m_options.isTerminal || m_options.fields.isEmpty())) {
        showForPeople(table, record);
        return true;
    }
    if (m_options.form == OutputForm::csv && !m_options.quiet)
        writeCsvLine([](const Field &field) { return QString::fromLatin1(field.name); });
    m_buffer.reserve(roomForRecord);
    writeRecord(record);
    if (m_options.form == OutputForm::json && !m_options.quiet)
        m_buffer += '\n';
    return true;
}

bool Answer::saved(const RecordTable &table, const void *record, const QString &sentence, ProblemSink &sink)
{
    if (!wantsSentences())
        return show(table, record, sink);
    doneLine(sentence);
    return true;
}

void Answer::object(const std::function<void(JsonWriter &)> &members, const QString &sentence)
{
    if (m_options.form == OutputForm::text) {
        if (!m_options.quiet)
            doneLine(sentence);
        return;
    }
    const bool isElement = m_hasCompanies && m_options.form == OutputForm::json;
    if (isElement) {
        m_buffer += m_isFirst ? "[\n" : ",\n";
        m_isFirst = false;
    }
    JsonWriter json(m_buffer);
    json.beginObject();
    members(json);
    endMembers(json);
    json.endObject();
    if (!isElement)
        m_buffer += '\n';
}

void Answer::removed(const QStringList &handles)
{
    if (m_options.quiet) {
        for (const QString &handle : handles)
            line(handle);
        return;
    }
    if (m_options.form == OutputForm::csv) {
        line(QStringLiteral("removed"));
        for (const QString &handle : handles)
            line(csvCell(handle));
        return;
    }
    object(
        [&handles](JsonWriter &json) {
            json.member("removed", static_cast<int>(handles.size()));
            json.name("records");
            json.beginArray();
            for (const QString &handle : handles) {
                bool isNumber = false;
                const int number = Integer::parse(handle, isNumber);
                if (isNumber)
                    json.number(number);
                else
                    json.string(handle);
            }
            json.endArray();
        },
        text(TEXT("Poistettu %1: %2")).arg(QString::number(handles.size()), handles.join(QLatin1String(", "))));
}

void Answer::line(const QString &text) { m_buffer += text.toUtf8() + '\n'; }

void Answer::doneLine(const QString &text) { line(m_options.isDryRun ? text + QStringLiteral(" (--dry-run)") : text); }

void Answer::hint(const QString &text)
{
    if (m_options.isTerminal && wantsSentences() && Terminal::isError()) {
        flush();
        Terminal::writeError(text);
    }
}

bool Answer::flush()
{
    if (m_buffer.isEmpty() || m_isReaderGone)
        return !m_isReaderGone;
    m_wasWritten = true;
    m_wasFirst = m_isFirst;
    m_isReaderGone = !m_sink(m_buffer);
    m_buffer.resize(0); // keeps the memory for the next piece
    return !m_isReaderGone;
}

bool Answer::take()
{
    m_buffer.clear();
    m_isFirst = m_wasFirst;
    if (!m_hasCompanies)
        m_columns.reset();
    return !m_wasWritten;
}

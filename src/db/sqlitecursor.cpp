#include "sqlitecursor.h"

#include "isodate.h"
#include "localetext.h"

#include <sqlite3.h>

namespace {

/** A command that is repeated line after line uses about ten. */
constexpr int maxKeptStatements = 40;

const QChar replacement(QChar::ReplacementCharacter);

QString utf16Text(sqlite3_stmt *statement, int column)
{
    const void *text = sqlite3_column_text16(statement, column);
    return QString(static_cast<const QChar *>(text), sqlite3_column_bytes16(statement, column) / 2);
}

/** The stored bytes, without the way through UTF-16 of the database, which reads all but broken texts the same. */
QString storedText(sqlite3_stmt *statement, int column)
{
    const char *bytes = reinterpret_cast<const char *>(sqlite3_column_text(statement, column));
    const int size = sqlite3_column_bytes(statement, column);
    const QString text = LocaleText::fromUtf8(bytes, size);
    return text.contains(replacement) ? utf16Text(statement, column) : text;
}

/** In UTF-8: of UTF-16 the database would take a first character for a byte order mark. */
int bindText(sqlite3_stmt *statement, int mark, const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    return sqlite3_bind_text(statement, mark, bytes.constData(), bytes.size(), SQLITE_TRANSIENT);
}

} // namespace

SQLiteCursor::~SQLiteCursor() { forgetAll(); }

void SQLiteCursor::forgetAll()
{
    for (sqlite3_stmt *statement : qAsConst(m_statements))
        sqlite3_finalize(statement);
    m_statements.clear();
    m_statement = nullptr;
}

bool SQLiteCursor::fail(const char *what)
{
    m_error = QString(static_cast<const QChar *>(sqlite3_errmsg16(m_handle))) + QLatin1Char(' ') + QLatin1String(what);
    return false;
}

sqlite3_stmt *SQLiteCursor::prepared(const QString &sql)
{
    const auto kept = m_statements.constFind(sql);
    if (kept != m_statements.constEnd())
        return *kept;
    sqlite3_stmt *statement = nullptr;
    const int size = (sql.size() + 1) * static_cast<int>(sizeof(QChar));
    if (sqlite3_prepare16_v2(m_handle, sql.constData(), size, &statement, nullptr) != SQLITE_OK || !statement) {
        fail("Unable to execute statement");
        return nullptr;
    }
    if (m_statements.size() == maxKeptStatements) // texts that vary without end, with a search's criteria
        forgetAll();
    m_statements.insert(sql, statement);
    return statement;
}

bool SQLiteCursor::bind(const QVariantList &values)
{
    int mark = 0;
    bool isBound = values.size() == sqlite3_bind_parameter_count(m_statement);
    for (const QVariant &value : values) {
        ++mark;
        int result = SQLITE_OK;
        if (value.isNull()) {
            result = sqlite3_bind_null(m_statement, mark);
        } else if (value.userType() == QMetaType::QByteArray) {
            const QByteArray bytes = value.toByteArray();
            result = sqlite3_bind_blob(m_statement, mark, bytes.constData(), bytes.size(), SQLITE_TRANSIENT);
        } else if (value.userType() == QMetaType::Int || value.userType() == QMetaType::Bool) {
            result = sqlite3_bind_int(m_statement, mark, value.toInt());
        } else if (value.userType() == QMetaType::LongLong) {
            result = sqlite3_bind_int64(m_statement, mark, value.toLongLong());
        } else if (value.userType() == QMetaType::QString) {
            result = bindText(m_statement, mark, *static_cast<const QString *>(value.constData()));
        } else if (value.userType() == QMetaType::QDate) {
            QString text;
            IsoDate::appendTo(text, value.toDate());
            result = bindText(m_statement, mark, text.isEmpty() ? value.toString() : text);
        } else {
            result = bindText(m_statement, mark, value.toString());
        }
        isBound = isBound && result == SQLITE_OK;
    }
    return isBound || fail("Unable to bind parameters");
}

bool SQLiteCursor::step()
{
    const int result = sqlite3_step(m_statement);
    m_isOnRow = result == SQLITE_ROW;
    if (m_isOnRow)
        return true;
    if (result != SQLITE_DONE)
        fail("Unable to fetch row");
    sqlite3_reset(m_statement);
    return result == SQLITE_DONE;
}

bool SQLiteCursor::execute(const QString &sql, const QVariantList &values)
{
    finish(); // what was not read of the statement before must not keep its table locked
    m_error.clear();
    m_statement = prepared(sql);
    m_wasPrepared = m_statement;
    if (!m_statement)
        return false;
    if (!bind(values) || !step()) { // perhaps for what the schema is now: the next time it is prepared anew
        sqlite3_finalize(m_statements.take(sql));
        m_statement = nullptr;
        return false;
    }
    m_isFirst = m_isOnRow;
    return true;
}

bool SQLiteCursor::next()
{
    if (!m_isFirst && m_isOnRow)
        step();
    m_isFirst = false;
    return m_isOnRow;
}

void SQLiteCursor::finish()
{
    if (m_statement)
        sqlite3_reset(m_statement);
    m_isOnRow = m_isFirst = false;
}

int SQLiteCursor::insertedId() const { return static_cast<int>(sqlite3_last_insert_rowid(m_handle)); }

int SQLiteCursor::affectedRows() const { return sqlite3_changes(m_handle); }

QVariant SQLiteCursor::value(int column) const
{
    switch (sqlite3_column_type(m_statement, column)) {
    case SQLITE_INTEGER:
        return static_cast<qlonglong>(sqlite3_column_int64(m_statement, column));
    case SQLITE_FLOAT:
        return sqlite3_column_double(m_statement, column);
    case SQLITE_BLOB: {
        const auto *bytes = static_cast<const char *>(sqlite3_column_blob(m_statement, column));
        return QByteArray(bytes, sqlite3_column_bytes(m_statement, column));
    }
    case SQLITE_NULL:
        return QVariant();
    default:
        return storedText(m_statement, column);
    }
}

bool SQLiteCursor::isNull(int column) const { return sqlite3_column_type(m_statement, column) == SQLITE_NULL; }

int SQLiteCursor::integer(int column) const
{
    if (sqlite3_column_type(m_statement, column) == SQLITE_INTEGER)
        return static_cast<int>(sqlite3_column_int64(m_statement, column));
    return value(column).toInt();
}

QString SQLiteCursor::text(int column) const
{
    if (sqlite3_column_type(m_statement, column) == SQLITE_TEXT)
        return storedText(m_statement, column);
    return value(column).toString();
}

QDate SQLiteCursor::date(int column) const
{
    if (isNull(column))
        return QDate();
    const QDate date = IsoDate::parse(text(column));
    return date.isValid() ? date : value(column).toDate();
}

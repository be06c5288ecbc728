#ifndef SQLITECURSOR_H
#define SQLITECURSOR_H

#include "cursor.h"

#include <QHash>

struct sqlite3;
struct sqlite3_stmt;

/**
 * Speaks to SQLite itself: the library's driver describes every column anew at each execution and converts all of a
 * row, which is several times the work of a small statement. Prepared statements are kept for the next time. Errors
 * read as that driver's do.
 */
class SQLiteCursor : public Cursor {
public:
    explicit SQLiteCursor(sqlite3 *handle) : m_handle(handle) {} ///< open, outlives this
    ~SQLiteCursor() override;
    SQLiteCursor(const SQLiteCursor &) = delete;
    SQLiteCursor &operator=(const SQLiteCursor &) = delete;

    /** As Cursor has them; a statement waits for another program's lock as long as the connection does. */
    bool execute(const QString &sql, const QVariantList &values) override;
    bool wasPrepared() const override { return m_wasPrepared; }
    bool next() override;
    void finish() override;
    bool hasError() const override { return !m_error.isEmpty(); }
    QString lastError() const override { return m_error; }
    int insertedId() const override;
    int affectedRows() const override;
    QVariant value(int column) const override;
    bool isNull(int column) const override;
    int integer(int column) const override;
    QString text(int column) const override;
    QDate date(int column) const override;

private:
    /** A kept statement of the same text, or a new one. @return null with the error set */
    sqlite3_stmt *prepared(const QString &sql);
    bool bind(const QVariantList &values);
    bool step(); ///< m_isOnRow tells whether there was a row. @return false with the error set
    bool fail(const char *what);
    void forgetAll(); ///< ends all kept statements

    sqlite3 *const m_handle;                     ///< not owned
    QHash<QString, sqlite3_stmt *> m_statements; ///< the kept ones by their text, owned
    sqlite3_stmt *m_statement = nullptr;         ///< the last one; null when it could not be prepared
    bool m_wasPrepared = true;                   ///< see wasPrepared()
    bool m_isOnRow = false;                      ///< the statement stands on a row
    bool m_isFirst = false;                      ///< which next() has not reached yet
    QString m_error;                             ///< of the last operation, empty when it went well
};

#endif

#ifndef CURSOR_H
#define CURSOR_H

#include <QByteArray>
#include <QDate>
#include <QString>
#include <QVariantList>

/**
 * The statements of a connection, one at a time, and a walk through the answer of the last one, from its first row to
 * its last. Columns count from 0; what is read in another form than it is stored in is converted as QVariant does.
 */
class Cursor {
public:
    virtual ~Cursor() = default;

    /**
     * Finishes the statement before, and runs one.
     * @param values  as many as the statement has marks `?`
     * @return false with the reason in lastError()
     */
    [[nodiscard]] virtual bool execute(const QString &sql, const QVariantList &values) = 0;
    /** Whether the last statement came to its execution. */
    virtual bool wasPrepared() const = 0;
    /** Steps to the first row, or to the next. @return false at the end, and on a failure, see hasError() */
    virtual bool next() = 0;
    /** Releases what an answer that was not read to its end holds. */
    virtual void finish() = 0;
    virtual bool hasError() const = 0;     ///< of the last operation
    virtual QString lastError() const = 0; ///< its text, which may be empty also where hasError() is true
    virtual int insertedId() const = 0;    ///< of the row that the last statement inserted; 0 where it cannot tell
    virtual int affectedRows() const = 0;  ///< by the last statement

    // The current row.
    virtual QVariant value(int column) const = 0;
    virtual bool isNull(int column) const { return value(column).isNull(); }
    virtual int integer(int column) const { return value(column).toInt(); }       ///< 0 for none; the low 32 bits
    virtual QString text(int column) const { return value(column).toString(); }   ///< a null text for none
    virtual QDate date(int column) const { return value(column).toDate(); }       ///< invalid for none
    long long bigInteger(int column) const { return value(column).toLongLong(); } ///< 0 for none
};

#endif

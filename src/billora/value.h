#ifndef VALUE_H
#define VALUE_H

#include <QDate>
#include <QString>
#include <QVector>

/** A field's value as writers see it; its ValueType tells what a number is. */
class Value {
public:
    /** A number is scaled as its ValueType says. */
    enum Kind { null, text, number, boolean, date, records };

    Value() = default; ///< null: not set
    /** Implicit: getters of tables return members as they are. Null texts are texts too. */
    Value(const QString &value) : m_kind(text), m_text(value) {}
    Value(int value) : m_kind(number), m_number(value) {}
    Value(long long value) : m_kind(number), m_number(value) {}
    Value(bool value) : m_kind(boolean), m_number(value) {}
    /** Null for an invalid date. */
    Value(const QDate &value) : m_kind(value.isValid() ? date : null), m_date(value) {}
    /** Records of the field's nested table; they live as long as the record that they were taken from. */
    Value(const QVector<const void *> &list) : m_kind(records), m_records(list) {}
    Value(const char *) = delete; // would be taken for a bool

    /** Each accessor but for kind() is for its kind only, see Kind; of another one it gives an empty value. */
    Kind kind() const { return m_kind; }
    bool isNull() const { return m_kind == null; }
    const QString &toText() const { return m_text; }
    long long toNumber() const { return m_number; }
    bool toBool() const { return m_number != 0; }
    const QDate &toDate() const { return m_date; }
    const QVector<const void *> &toRecords() const { return m_records; }

private:
    Kind m_kind = null;     ///< which of the members counts
    long long m_number = 0; ///< also 0 and 1 of a boolean
    QString m_text;
    QDate m_date;
    QVector<const void *> m_records; ///< not owned
};

#endif

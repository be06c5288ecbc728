#ifndef FIXEDRECORD_H
#define FIXEDRECORD_H

#include <QDate>
#include <QString>

/** A field's place in a record of a fixed-width file, and its name in messages. */
struct FixedField {
    const char *name; ///< in English, for messages; a literal
    int position;     ///< of its first character, from 1
    int length;       ///< in characters, which are bytes in the banks' sets
};

/**
 * Cuts fields out of one record. What is beyond the record's end reads as blanks: transfers strip them. The first
 * field that does not read is kept; a caller reads all fields and then asks once.
 */
class FixedRecord {
public:
    explicit FixedRecord(const QString &text) : m_text(text) {} ///< without its line end

    /** Of what the file holds, perhaps less than the record's length. */
    int size() const { return m_text.size(); }
    QString text(const FixedField &field) const; ///< always of the field's length
    /** Without blanks on either side. */
    QString trimmed(const FixedField &field) const { return text(field).trimmed(); }
    /** A name in plain letters: 7-bit files write `{` for `ä` (SFS 4017), and no name holds a brace. */
    QString name(const FixedField &field) const;
    bool isBlankFrom(int position) const;        ///< from 1
    bool isGiven(const FixedField &field) const; ///< neither blanks nor zeros only

    /** ASCII digits only, at most 18. @return 0 on failure */
    qint64 number(const FixedField &field);
    /** The whole field. @return the text as it is on failure */
    QString digits(const FixedField &field);
    /** YYMMDD of this century. */
    QDate date(const FixedField &field);
    /** The same, but blanks or zeros only give `missing`. */
    QDate optionalDate(const FixedField &field, const QDate &missing = QDate());
    /** Digits; blanks are no failure. */
    void checkNumber(const FixedField &field);
    /** Anything but control characters, which damage leaves. */
    void checkText(const FixedField &field);
    /** HHMM; blanks are no failure. */
    void checkTime(const FixedField &field);
    /** Digits without leading zeros, perhaps within an RF reference; blanks or zeros only are no reference. */
    QString reference(const FixedField &field);
    /** @param allowed  the characters that a field of one character may hold */
    QChar code(const FixedField &field, const char *allowed); ///< the character itself, also on failure

    /** @return the first field that did not read, null when all did */
    const FixedField *failedField() const { return m_failed; }

private:
    void fail(const FixedField &field); ///< keeps the first one only

    QString m_text;
    const FixedField *m_failed = nullptr; ///< not owned: fields are constants
};

#endif

#include "fixedrecord.h"

#include "integer.h"
#include "paymenttext.h"

#include <QTime>

#include <algorithm>

namespace {

constexpr int century = 2000;

struct Replacement {
    char typed;
    char16_t letter;
};

// The national characters of the 7-bit set. Its "@" and "`" stay: e-mail addresses hold the one.
constexpr Replacement replacements[] = {
    {'[', u'\u00C4'}, {'\\', u'\u00D6'}, {']', u'\u00C5'}, {'^', u'\u00DC'},
    {'{', u'\u00E4'}, {'|', u'\u00F6'},  {'}', u'\u00E5'}, {'~', u'\u00FC'},
};

} // namespace

QString FixedRecord::text(const FixedField &field) const
{
    return m_text.mid(field.position - 1, field.length).leftJustified(field.length);
}

QString FixedRecord::name(const FixedField &field) const
{
    QString name = trimmed(field);
    for (const Replacement &replacement : replacements)
        name.replace(QLatin1Char(replacement.typed), QChar(replacement.letter));
    return name;
}

bool FixedRecord::isBlankFrom(int position) const
{
    const QStringView rest = QStringView(m_text).mid(position - 1);
    return std::all_of(rest.begin(), rest.end(), [](QChar c) { return c.isSpace(); });
}

bool FixedRecord::isGiven(const FixedField &field) const
{
    const QString found = trimmed(field);
    return std::any_of(found.begin(), found.end(), [](QChar c) { return c != QLatin1Char('0'); });
}

void FixedRecord::fail(const FixedField &field)
{
    if (!m_failed)
        m_failed = &field;
}

QString FixedRecord::digits(const FixedField &field)
{
    const QString found = text(field);
    if (!Integer::isDigits(found))
        fail(field);
    return found;
}

qint64 FixedRecord::number(const FixedField &field)
{
    const QString found = digits(field);
    return Integer::isDigits(found) ? found.toLongLong() : 0;
}

QDate FixedRecord::date(const FixedField &field)
{
    const QString found = text(field);
    QDate date;
    if (Integer::isDigits(found))
        date.setDate(century + found.midRef(0, 2).toInt(), found.midRef(2, 2).toInt(), found.midRef(4, 2).toInt());
    if (!date.isValid())
        fail(field);
    return date;
}

QDate FixedRecord::optionalDate(const FixedField &field, const QDate &missing)
{
    return isGiven(field) ? date(field) : missing;
}

void FixedRecord::checkNumber(const FixedField &field)
{
    if (!trimmed(field).isEmpty())
        digits(field);
}

void FixedRecord::checkText(const FixedField &field)
{
    const QString found = text(field);
    if (std::any_of(found.begin(), found.end(), [](QChar c) { return c.category() == QChar::Other_Control; }))
        fail(field);
}

void FixedRecord::checkTime(const FixedField &field)
{
    if (!isGiven(field))
        return;
    const QString found = text(field);
    if (!Integer::isDigits(found) || !QTime::isValid(found.leftRef(2).toInt(), found.midRef(2).toInt(), 0))
        fail(field);
}

QString FixedRecord::reference(const FixedField &field)
{
    const QString reference = PaymentText::nationalReference(trimmed(field));
    if (!reference.isEmpty() && !Integer::isDigits(reference))
        fail(field);
    return reference;
}

QChar FixedRecord::code(const FixedField &field, const char *allowed)
{
    const QChar found = text(field).at(0);
    if (!QLatin1String(allowed).contains(found))
        fail(field);
    return found;
}

#include "rowwords.h"

#include "problem.h"
#include "records.h"
#include "suggestions.h"
#include "texts.h"

namespace {

/** Takes the next part off the text; quotes may stand anywhere in it. */
QString takePart(const QString &text, int &at)
{
    QString part;
    QChar quote;
    for (; at < text.size(); ++at) {
        const QChar c = text.at(at);
        const bool isQuote = c == QLatin1Char('"') || c == QLatin1Char('\'');
        const QChar next = at + 1 < text.size() ? text.at(at + 1) : QChar();
        const bool isEscape = next == QLatin1Char('"') || next == QLatin1Char('\'') ||
                              (next == QLatin1Char('\\') && !quote.isNull()); // a name may end with it
        if (c == QLatin1Char('\\') && isEscape)
            part += text.at(++at);
        else if (!quote.isNull() && c == quote)
            quote = QChar();
        else if (quote.isNull() && isQuote && (part.isEmpty() || part.endsWith(QLatin1Char('='))))
            quote = c;
        else if (quote.isNull() && c.isSpace())
            break;
        else
            part += c;
    }
    return part;
}

void skipBlanks(const QString &text, int &at)
{
    while (at < text.size() && text.at(at).isSpace())
        ++at;
}

} // namespace

QStringList RowWords::split(const QString &text)
{
    QStringList parts;
    int at = 0;
    for (skipBlanks(text, at); at < text.size(); skipBlanks(text, at))
        parts.append(takePart(text, at));
    return parts;
}

bool RowWords::parse(const ValueReader &reader, const QString &option, const QString &word, Arguments &row)
{
    int at = 0;
    int place = 0;
    for (skipBlanks(word, at); at < word.size(); skipBlanks(word, at)) {
        static const QString restOfWord = QStringLiteral("text=");
        if (place > 0 && word.midRef(at).startsWith(restOfWord)) {
            QString text = word.mid(at + restOfWord.size());
            const QChar quote = text.isEmpty() ? QChar() : text.at(0);
            const bool isQuoted = text.size() > 1 && (quote == QLatin1Char('"') || quote == QLatin1Char('\'')) &&
                                  text.indexOf(quote, 1) == text.size() - 1;
            if (isQuoted)
                text = text.mid(1, text.size() - 2);
            row.add(QStringLiteral("text"), text);
            break;
        }
        const QString part = takePart(word, at);
        const int equals = part.indexOf(QLatin1Char('='));
        if (place == 0) {
            row.add(QStringLiteral("product"), part);
        } else if (equals < 1 && place == 1) {
            row.add(QStringLiteral("quantity"), part);
        } else if (equals < 1) {
            return reader.failValue(option, word, text(TEXT("rivi on TUOTE [MÄÄRÄ] [KENTTÄ=ARVO]…")));
        } else {
            const QString name = part.left(equals);
            const Field *field = rowTable.find(name);
            if (!field || !field->is(Field::editable)) {
                QStringList known;
                for (const Field &candidate : rowTable) {
                    if (candidate.is(Field::editable))
                        known.append(QLatin1String(candidate.name));
                }
                Problem problem;
                problem.code = Problem::unknownField;
                problem.message = text(TEXT("rivillä ei ole kenttää: %1")).arg(name);
                problem.option = option;
                problem.value = name;
                const QStringList near = Suggestions::nearest(name, known);
                for (const QString &suggestion : near)
                    problem.suggestions.append({suggestion, QString()});
                return reader.fail(problem);
            }
            if (row.has(name))
                return reader.failValue(option, word, text(TEXT("kenttä on kahdesti: %1")).arg(name));
            row.add(name, part.mid(equals + 1));
        }
        ++place;
    }
    return place > 0 || reader.failValue(option, word, text(TEXT("rivi on tyhjä")));
}

#include "einvoicecodes.h"

#include "customer.h"

#include <QFile>
#include <QHash>
#include <QRegularExpression>
#include <QSet>
#include <QStringList>

// A resource in a static library is linked only when it is named; the macro does not work inside a namespace or class.
static void initCodes() { Q_INIT_RESOURCE(codes); }

namespace {

/** The rows of a table behind its title, as lists of cells. */
QVector<QStringList> rowsOf(const char *file)
{
    initCodes();
    QVector<QStringList> rows;
    QFile table(QLatin1String(":/codes/") + QLatin1String(file));
    if (!table.open(QIODevice::ReadOnly))
        return rows;
    const QStringList lines = QString::fromUtf8(table.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (int i = 1; i < lines.size(); ++i)
        rows.append(lines.at(i).split(QLatin1Char('\t')));
    return rows;
}

QString folded(const QString &text)
{
    QString result;
    for (const QChar c : text.toLower()) {
        if (!c.isSpace())
            result += c;
    }
    return result;
}

QString foldedUnit(QString text)
{
    text = text.trimmed().toLower();
    text.replace(QChar(0xb2), QLatin1Char('2')).replace(QChar(0xb3), QLatin1Char('3'));
    while (text.endsWith(QLatin1Char('.')))
        text.chop(1);
    return text;
}

QHash<QString, QString> countryTable()
{
    QHash<QString, QString> codes;
    for (const QStringList &row : rowsOf("countries.tsv")) {
        for (const QString &cell : row) {
            for (const QString &name : cell.split(QLatin1Char(';')))
                codes.insert(folded(name), row.first());
        }
    }
    return codes;
}

} // namespace

bool EInvoiceCodes::contains(const char *list, const QString &code)
{
    static const QSet<QString> codes = [] {
        QSet<QString> all;
        for (const QStringList &row : rowsOf("codes.tsv"))
            all.insert(row.join(QLatin1Char(' ')));
        return all;
    }();
    return codes.contains(QLatin1String(list) + QLatin1Char(' ') + code);
}

QStringList EInvoiceCodes::codes(const char *list)
{
    QStringList found;
    for (const QStringList &row : rowsOf("codes.tsv")) {
        if (row.first() == QLatin1String(list))
            found.append(row.last());
    }
    return found;
}

QString EInvoiceCodes::country(const QString &text)
{
    static const QHash<QString, QString> codes = countryTable();
    return codes.value(folded(text));
}

QString EInvoiceCodes::unit(const QString &text, const QString &own)
{
    static const QHash<QString, QString> codes = [] {
        QHash<QString, QString> all;
        for (const QStringList &row : rowsOf("units.tsv"))
            all.insert(foldedUnit(row.value(0)), row.value(1));
        return all;
    }();
    if (text.trimmed().isEmpty())
        return QStringLiteral("C62");
    const QString wanted = foldedUnit(text);
    static const QRegularExpression ends(QStringLiteral("[\\n,;]"));
    const QStringList lines = own.isEmpty() ? QStringList() : own.split(ends, Qt::SkipEmptyParts);
    for (const QString &line : lines) {
        if (foldedUnit(line.section(QLatin1Char('='), 0, 0)) == wanted)
            return line.section(QLatin1Char('='), 1).trimmed();
    }
    const QString known = codes.value(wanted);
    if (!known.isEmpty())
        return known;
    return contains("rec20", text.trimmed()) ? text.trimmed() : QString();
}

QString EInvoiceCodes::schemeOf(const QString &address)
{
    static const QRegularExpression ovt(QStringLiteral("^0037[0-9]{8}.{0,5}$"));
    static const QRegularExpression iban(QStringLiteral("^[A-Z]{2}[0-9]{2}[A-Z0-9]{11,30}$"));
    static const QRegularExpression gln(QStringLiteral("^[0-9]{13}$"));
    if (ovt.match(address).hasMatch())
        return QStringLiteral("0216");
    if (Customer::isValidBusinessId(address))
        return QStringLiteral("0212");
    if (iban.match(address).hasMatch() && address.size() == 18)
        return QStringLiteral("9918");
    if (gln.match(address).hasMatch() && isGln(address))
        return QStringLiteral("0088");
    static const QRegularExpression finnishVat(QStringLiteral("^FI[0-9]{8}$"));
    return finnishVat.match(address).hasMatch() ? QStringLiteral("0213") : QString();
}

bool EInvoiceCodes::isGln(const QString &digits)
{
    int sum = 0;
    for (int i = 0; i < digits.size(); ++i)
        sum += digits.at(i).digitValue() * (i % 2 == 0 ? 1 : 3);
    return digits.size() == 13 && sum % 10 == 0;
}

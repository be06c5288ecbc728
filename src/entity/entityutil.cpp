#include "entityutil.h"

#include <QVector>

QString EntityUtil::escapeString(const QString &text)
{
    QString escaped = text;
    escaped.remove(QLatin1Char('\r'));
    escaped.replace(QLatin1String("\\"), QLatin1String("\\\\"));
    escaped.replace(QLatin1String("\n"), QLatin1String("\\n"));
    return escaped;
}

QString EntityUtil::unescapeString(const QString &text)
{
    if (!text.contains(QLatin1Char('\\')))
        return text;
    QString plain;
    plain.reserve(text.size());
    const QLatin1Char backslash('\\');
    for (int i = 0; i < text.size(); ++i) {
        const bool marksLineFeed = text.at(i) == backslash && i + 1 < text.size() &&
                                   text.at(i + 1) == QLatin1Char('n') && (i == 0 || text.at(i - 1) != backslash);
        if (marksLineFeed) {
            plain.append(QLatin1Char('\n'));
            ++i;
        } else {
            plain.append(text.at(i));
        }
    }
    plain.replace(QLatin1String("\\\\"), QLatin1String("\\"));
    return plain;
}

QString EntityUtil::propertiesToString(const QMap<QString, QVariant> &map)
{
    QString text;
    for (auto it = map.cbegin(); it != map.cend(); ++it)
        text += it.key() + QLatin1Char('=') + escapeString(it.value().toString()) + QLatin1Char('\n');
    return text;
}

void EntityUtil::propertiesFromString(const QString &text, QMap<QString, QVariant> &map)
{
    map.clear();
    const QVector<QStringRef> lines = text.splitRef(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (const QStringRef &line : lines) {
        const int separator = line.indexOf(QLatin1Char('='));
        if (separator >= 0)
            map.insert(line.left(separator).toString(), unescapeString(line.mid(separator + 1).toString()));
    }
}

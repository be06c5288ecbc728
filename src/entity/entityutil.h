#ifndef ENTITYUTIL_H
#define ENTITYUTIL_H

#include <QMap>
#include <QString>
#include <QVariant>

/** The text form of a record's extra values: one `key=value` line each, line feeds and backslashes escaped. */
class EntityUtil {
public:
    /** Drops carriage returns, doubles backslashes, writes a line feed as `\n`. */
    static QString escapeString(const QString &text);

    /**
     * The reverse, with one gap that stored data relies on: a value with a backslash right before a line feed does not
     * come back unchanged.
     */
    static QString unescapeString(const QString &text);

    /** Lines in ascending key order, each ended by a line feed. Keys must hold neither "=" nor a line feed. */
    static QString propertiesToString(const QMap<QString, QVariant> &map);

    /** Replaces the map's content. Lines without "=" are skipped; of equal keys the last counts. Values are texts. */
    static void propertiesFromString(const QString &text, QMap<QString, QVariant> &map);
};

#endif

#include "sqltext.h"

#include <QSqlDriver>
#include <QSqlField>

QString SqlText::filled(const QSqlDriver &driver, const QString &sql, const QVariantList &values)
{
    QString text;
    bool isQuoted = false;
    int next = 0;
    for (const QChar c : sql) {
        if (c == QLatin1Char('\''))
            isQuoted = !isQuoted;
        if (c != QLatin1Char('?') || isQuoted || next >= values.size()) {
            text += c;
            continue;
        }
        const QVariant &value = values.at(next++);
        QSqlField field(QString(), value.type());
        if (value.isNull())
            field.clear();
        else
            field.setValue(value);
        text += driver.formatValue(field);
    }
    return text;
}

#ifndef SQLTEXT_H
#define SQLTEXT_H

#include <QString>
#include <QVariantList>

class QSqlDriver;

/** Statements as whole texts, where a prepared one may not be there any more when it is to be run. */
namespace SqlText {

/**
 * Puts the values in place of the marks `?` outside quotes, in the driver's own spelling.
 * @param driver  of an open connection. @param values  as many as there are marks
 */
QString filled(const QSqlDriver &driver, const QString &sql, const QVariantList &values);

} // namespace SqlText

#endif

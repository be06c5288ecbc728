#ifndef COMPANIES_H
#define COMPANIES_H

#include <QString>
#include <QVariantMap>

struct UseCaseContext;

/** The settings file's databases, several at a time. Entries are of the form of DatabaseList. */
namespace Companies {

/** What a look at a company's database tells. */
struct Look {
    QString sellerName;
    int version = 0; ///< of the schema, 0 in a database that was never filled
};

/** What an upgrade did. */
struct Upgrade {
    QString sellerName;
    int before = 0, after = 0; ///< versions of the schema; in a trial `after` is what it would be
};

/** Whether the text has a sign of a pattern in it, and is no file. */
bool isPattern(const QString &text);

/** Whether number, file name (with or without its suffix) or name of the database are those of a pattern. */
bool isMatch(const QVariantMap &entry, const QString &pattern);
/** The same of the seller's name, letter case aside. */
bool isNameMatch(const QString &sellerName, const QString &pattern);

/**
 * Opens the database, whatever the version of its schema, and closes it again. Nothing is upgraded, made or waited for.
 * @return false with the failure told
 */
[[nodiscard]] bool look(UseCaseContext &context, const QVariantMap &entry, Look &look);

/** Brings the database to the version of this program; in a trial it is only looked at. @return as look() */
[[nodiscard]] bool upgrade(UseCaseContext &context, const QVariantMap &entry, Upgrade &result);

} // namespace Companies

#endif

#ifndef CREATEDATABASE_H
#define CREATEDATABASE_H

#include <QVariantMap>

#include <functional>

struct UseCaseContext;

/** Makes a new company's database and puts it on the settings file's list, selected. */
namespace CreateDatabase {

/**
 * @param entry  as it will stand in the list: type, filename or host, port, databaseName, username, password; its
 * number is set when it has none
 * @param sellerName  the seller's name in the new database
 * @param fill   called with the new database open, to fill it; false takes everything back
 * @return false with the failure told: neither a file nor an entry is left. In a trial nothing is made.
 */
[[nodiscard]] bool run(UseCaseContext &context, QVariantMap &entry, const QString &sellerName,
                       const std::function<bool()> &fill);

} // namespace CreateDatabase

#endif

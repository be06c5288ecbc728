#ifndef SERVERADDRESS_H
#define SERVERADDRESS_H

#include <QVariantMap>

class Task;

/** Where a PostgreSQL database is, and its password. */
namespace ServerAddress {

/**
 * Reads `postgresql://[USER@]HOST[:PORT]/DATABASE` into the keys of an entry of the list, with `host`, `port`, `user`,
 * `sslmode` and `sslrootcert` behind a question mark as the client library knows them, and `pooled=true` for a pooler
 * that changes connections between transactions. A password in it is refused: the system shows the words of a command
 * to everybody. It comes from the file of `passwordFile`, from a person, or the client library finds it itself
 * (PGPASSWORD, .pgpass); only the first two are kept in the entry.
 */
[[nodiscard]] bool read(Task &task, const QString &url, QVariantMap &entry);

} // namespace ServerAddress

#endif

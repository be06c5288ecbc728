#ifndef UTCZONE_H
#define UTCZONE_H

#include <QByteArray>

/**
 * While it lives the process's time zone is UTC, for libraries that write moments as local time: what they write is
 * then the same everywhere. Not for programs with threads.
 */
class UtcZone {
public:
    UtcZone();
    ~UtcZone(); ///< brings the earlier zone back
    UtcZone(const UtcZone &) = delete;
    UtcZone &operator=(const UtcZone &) = delete;

private:
    const bool m_isSet;      ///< whether there was a zone in the environment
    const QByteArray m_zone; ///< the value of TZ
};

#endif

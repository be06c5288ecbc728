#include "utczone.h"

#include <QtGlobal>

#include <ctime>

UtcZone::UtcZone() : m_isSet(qEnvironmentVariableIsSet("TZ")), m_zone(qgetenv("TZ"))
{
    qputenv("TZ", "UTC0");
    tzset();
}

UtcZone::~UtcZone()
{
    if (m_isSet)
        qputenv("TZ", m_zone);
    else
        qunsetenv("TZ");
    tzset();
}

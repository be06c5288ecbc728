#include "reservedname.h"

#include <QFile>
#include <QFileInfo>

ReservedName::ReservedName(const std::function<QString()> &nextName)
{
    int triesLeft = 1000;
    do {
        m_name = nextName();
        QFile file(m_name);
        m_isMade = file.open(QIODevice::WriteOnly | QIODevice::NewOnly);
    } while (!m_isMade && QFile::exists(m_name) && --triesLeft > 0);
}

ReservedName::~ReservedName()
{
    if (m_isMade)
        release(m_name);
}

void ReservedName::release(const QString &name)
{
    if (QFileInfo(name).size() == 0)
        QFile::remove(name);
}

#include "reservedname.h"

#include "outputfile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

ReservedName::ReservedName(const std::function<QString()> &nextName, bool makesFolders)
{
    const auto make = [this] {
        const SignalPause pause;
        QFile file(m_name);
        m_isMade = file.open(QIODevice::WriteOnly | QIODevice::NewOnly);
        if (m_isMade)
            m_unfinished.emplace(m_name);
        return m_isMade;
    };
    int triesLeft = 1000;
    do {
        m_name = nextName();
        if (!make() && makesFolders && !QFile::exists(m_name) && QDir().mkpath(QFileInfo(m_name).path()))
            make();
    } while (!m_isMade && QFile::exists(m_name) && --triesLeft > 0);
}

ReservedName::~ReservedName()
{
    if (m_isMade)
        release(m_name);
}

bool ReservedName::write(const QByteArray &bytes, QString &error)
{
    if (!m_isMade) {
        OutputFile output(m_name);
        const bool isWritten = output.open() && output.device()->write(bytes) == bytes.size() && output.commit();
        error = output.errorString();
        return isWritten;
    }
    QFile file(m_name);
    const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
    if (!isWritten) {
        error = file.errorString();
        file.remove();
    }
    return isWritten;
}

void ReservedName::release(const QString &name)
{
    if (QFileInfo(name).size() == 0)
        QFile::remove(name);
}

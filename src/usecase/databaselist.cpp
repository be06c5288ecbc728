#include "databaselist.h"

#include "settingsfile.h"

#include <QElapsedTimer>
#include <QSet>
#include <QThread>

#include <algorithm>

namespace {

constexpr int lockWaitMs = 30000;
constexpr int lockStepMs = 20;

} // namespace

DatabaseList::DatabaseList(const QString &settingsFile, Access access)
{
    if (access == writing) {
        SettingsFile::makeFolder(settingsFile);
        m_lock = std::make_unique<QLockFile>(settingsFile + QLatin1String(".list-lock"));
        // Tried often: the library's own waiting grows to seconds. isWritable() tells whether it worked.
        QElapsedTimer waited;
        waited.start();
        while (!m_lock->tryLock(0) && m_lock->error() == QLockFile::LockFailedError && waited.elapsed() < lockWaitMs)
            QThread::msleep(lockStepMs);
    }
    m_settings = SettingsFile::open(settingsFile);
    read();
}

void DatabaseList::read()
{
    m_settings->beginGroup(QStringLiteral("databases"));
    m_lastUsed = m_settings->value(QStringLiteral("lastUsed"), -1).toInt();
    const int size = m_settings->beginReadArray(QStringLiteral("settings"));
    for (int i = 0; i < size; ++i) {
        m_settings->setArrayIndex(i);
        QVariantMap entry;
        const QStringList keys = m_settings->allKeys();
        for (const QString &key : keys)
            entry.insert(key, m_settings->value(key));
        m_entries.append(entry);
    }
    m_settings->endArray();
    m_settings->endGroup();
}

bool DatabaseList::isWritable()
{
    return m_lock && m_lock->isLocked() && SettingsFile::createPrivate(m_settings->fileName()) &&
           m_settings->isWritable();
}

int DatabaseList::number(const QVariantMap &entry) { return entry.value(QStringLiteral("number"), 0).toInt(); }

bool DatabaseList::isPostgreSQL(const QVariantMap &entry)
{
    return entry.value(QStringLiteral("type")).toString().compare(QLatin1String("postgresql"), Qt::CaseInsensitive) ==
           0;
}

int DatabaseList::indexOf(int wanted) const
{
    for (int i = 0; i < m_entries.size(); ++i) {
        if (number(m_entries.at(i)) == wanted)
            return i;
    }
    return -1;
}

int DatabaseList::nextFreeNumber() const
{
    QSet<int> taken; // asked of a long list, too
    for (const QVariantMap &entry : m_entries)
        taken.insert(number(entry));
    int free = 1;
    while (taken.contains(free))
        ++free;
    return free;
}

void DatabaseList::remove(int number)
{
    const int index = indexOf(number);
    if (index >= 0)
        m_entries.removeAt(index);
    if (m_lastUsed == number)
        m_lastUsed = -1;
}

bool DatabaseList::save()
{
    if (!isWritable())
        return false;
    const bool hasPassword = std::any_of(m_entries.begin(), m_entries.end(), [](const QVariantMap &entry) {
        return !entry.value(QStringLiteral("password")).toString().isEmpty();
    });
    if (hasPassword && !SettingsFile::makePrivate(m_settings->fileName())) // before the password is in it
        return false;
    m_settings->beginGroup(QStringLiteral("databases"));
    if (m_lastUsed < 0)
        m_settings->remove(QStringLiteral("lastUsed"));
    else
        m_settings->setValue(QStringLiteral("lastUsed"), m_lastUsed);
    m_settings->remove(QStringLiteral("settings"));
    m_settings->beginWriteArray(QStringLiteral("settings"), m_entries.size());
    for (int i = 0; i < m_entries.size(); ++i) {
        m_settings->setArrayIndex(i);
        const QVariantMap &entry = m_entries.at(i);
        for (auto it = entry.cbegin(); it != entry.cend(); ++it)
            m_settings->setValue(it.key(), it.value());
    }
    m_settings->endArray();
    m_settings->endGroup();
    m_settings->sync();
    return m_settings->status() == QSettings::NoError;
}

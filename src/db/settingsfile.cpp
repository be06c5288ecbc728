#include "settingsfile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QTextCodec>

namespace {

bool isNonAsciiUtf8(const QString &fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray content = file.readAll();
    bool ascii = true;
    for (const char c : content)
        ascii = ascii && static_cast<unsigned char>(c) < 128;
    if (ascii)
        return false;
    QTextCodec::ConverterState state;
    QTextCodec::codecForName("UTF-8")->toUnicode(content.constData(), content.size(), &state);
    return state.invalidChars == 0 && state.remainingChars == 0;
}

} // namespace

std::unique_ptr<QSettings> SettingsFile::open(const QString &fileName)
{
    const QString name = QCoreApplication::applicationName();
    auto settings = fileName.isEmpty()
                        ? std::make_unique<QSettings>(QSettings::IniFormat, QSettings::UserScope, name, name)
                        : std::make_unique<QSettings>(fileName, QSettings::IniFormat);
    if (isNonAsciiUtf8(settings->fileName())) {
        settings->setIniCodec("UTF-8");
        settings->allKeys(); // decodes every section now, with this codec
        settings->setIniCodec(static_cast<QTextCodec *>(nullptr));
    }
    const QDir directory = QFileInfo(settings->fileName()).dir();
    if (!directory.exists()) {
        const QFileInfo info(directory.path());
        info.dir().mkdir(info.fileName());
    }
    return settings;
}

void SettingsFile::makeFolder(const QString &fileName) { QDir().mkpath(QFileInfo(fileName).path()); }

bool SettingsFile::createPrivate(const QString &fileName)
{
    if (QFile::exists(fileName))
        return true;
    QFile file(fileName);
    return file.open(QIODevice::WriteOnly) && makePrivate(fileName);
}

bool SettingsFile::makePrivate(const QString &fileName)
{
    return QFile::setPermissions(fileName, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
}

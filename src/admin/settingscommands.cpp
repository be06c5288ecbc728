#include "settingscommands.h"

#include "parameterlist.h"
#include "query.h"
#include "settings.h"
#include "settingskeys.h"
#include "writetransaction.h"

#include <QDir>
#include <QFile>
#include <QImage>

namespace {

const QLatin1String logoKey("logo");

/** The logo is told by its size in pixels. */
QString logoText(const Settings &settings)
{
    const QImage image = QImage::fromData(settings.sellerLogo);
    return image.isNull() ? QStringLiteral("") : QStringLiteral("%1x%2").arg(image.width()).arg(image.height());
}

void printSettings(CommandContext &context, const Settings &settings, const QStringList &keys)
{
    context.response.startResponse(QStringLiteral("OK"));
    for (const QString &key : keys) {
        context.response.startRecord(QStringLiteral("setting"));
        context.response.printProperty("key", key);
        context.response.printProperty("value",
                                       key == logoKey ? logoText(settings) : SettingsKeys::value(settings, key));
        context.response.endRecord();
    }
    context.response.endResponse();
}

bool storeLogo(CommandContext &context, const QString &fileName, Settings &settings)
{
    if (fileName.isEmpty()) {
        settings.sellerLogo.clear();
        return true;
    }
    QFile file(QDir::fromNativeSeparators(fileName));
    if (!file.open(QIODevice::ReadOnly))
        return context.status.fail(
            ExitCode::badData, CommandContext::tr("Tiedostoa %1 ei voi lukea: %2").arg(fileName, file.errorString()));
    const QByteArray bytes = file.readAll();
    if (QImage::fromData(bytes).isNull())
        return context.status.fail(ExitCode::badData, CommandContext::tr("Tiedosto ei ole kuva: %1").arg(fileName));
    settings.sellerLogo = bytes;
    return true;
}

bool storeSetting(CommandContext &context, const QString &key, const QString &value, Settings &settings)
{
    if (key == logoKey)
        return storeLogo(context, value, settings);
    if (!SettingsKeys::isKnown(key))
        return context.status.failUnknownParameter(key);
    if (!SettingsKeys::store(settings, key, value))
        return context.status.fail(ExitCode::badData, CommandContext::tr("Virheellinen arvo: %1=%2").arg(key, value));
    return true;
}

} // namespace

void parseFindSettingsCommand(CommandContext &context, QStringList &args)
{
    if (!context.session.ensureOpen())
        return;
    QStringList keys;
    const ParameterList words = parseParameters(args);
    for (const auto &[word, value] : words) {
        const bool known = word == QLatin1String("key") && (value == logoKey || SettingsKeys::isKnown(value));
        if (!known) {
            context.status.failUnknownParameter(word == QLatin1String("key") ? value : word);
            return;
        }
        keys.append(value);
    }
    if (!context.session.fetch(CachedList::settings))
        return;
    const Settings &settings = *context.session.registry().settings();
    if (words.isEmpty()) {
        keys = SettingsKeys::keysWithValue(settings);
        if (!settings.sellerLogo.isEmpty())
            keys.append(logoKey);
    }
    printSettings(context, settings, keys);
}

void parseEditSettingsCommand(CommandContext &context, QStringList &args)
{
    if (!context.session.ensureOpen())
        return;
    const ParameterList words = parseParameters(args);
    WriteTransaction transaction(context.session);
    if (!transaction.hasBegun())
        return;
    context.session.invalidate(CachedList::settings);
    if (!context.session.fetch(CachedList::settings))
        return;
    Settings settings = *context.session.registry().settings();
    QStringList keys;
    for (const auto &[key, value] : words) {
        if (!storeSetting(context, key, value, settings))
            return;
        keys.removeAll(key);
        keys.append(key);
    }
    if (!context.session.query()->saveSettings(&settings)) {
        context.session.failQuery();
        return;
    }
    if (!transaction.commit())
        return;
    *context.session.registry().settings() = settings;
    context.session.invalidate(CachedList::settings);
    printSettings(context, settings, keys);
}

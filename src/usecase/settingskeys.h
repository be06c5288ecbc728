#ifndef SETTINGSKEYS_H
#define SETTINGSKEYS_H

#include <QString>
#include <QStringList>

class Settings;

/** The keys of the seller's settings: the seller's own fields and the properties by their path-like keys. */
namespace SettingsKeys {

/** @return whether the program knows the key; the logo is not one of these */
bool isKnown(const QString &key);

/**
 * Stores a value; an empty one removes the setting.
 * @return false, with nothing stored, when the value cannot be right
 */
bool store(Settings &settings, const QString &key, const QString &value);

/** Also of keys that only other programs know; empty for a setting without a value. */
QString value(const Settings &settings, const QString &key);

/** All keys that the program knows: the seller's fields, then the properties in ascending order. */
QStringList allKeys();

/** All keys that have a value: the seller's fields, then the properties in ascending order. */
QStringList keysWithValue(const Settings &settings);

} // namespace SettingsKeys

#endif

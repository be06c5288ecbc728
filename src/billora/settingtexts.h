#ifndef SETTINGTEXTS_H
#define SETTINGTEXTS_H

#include "valuetype.h"

#include <QString>
#include <QStringList>

class Task;

/** The company's settings as people see them. The keys are the stored ones, see SettingsKeys. */
namespace SettingTexts {

/** What a key is for, in the language of the run; empty for one without a text. */
QString description(const QString &key);
/** How its value is read and written: a percentage is stored in hundredths. */
ValueType type(const QString &key);
/** All keys, the logo last. */
QStringList keys();

/** Completes a key whose group was left out. @return false with the problem told */
[[nodiscard]] bool resolve(Task &task, const QString &word, QString &key);

/** A stored value as it is shown, and back. */
QString shown(const QString &key, const QString &stored);
[[nodiscard]] bool stored(Task &task, const QString &key, const QString &typed, QString &value);

} // namespace SettingTexts

#endif

#ifndef SETTINGSFILE_H
#define SETTINGSFILE_H

#include <QString>

#include <memory>

class QSettings;

/** The settings file (INI format) that this program shares with the graphical edition. */
namespace SettingsFile {

/**
 * Opens a settings file for reading and writing.
 *
 * A file written by hand may hold non-ASCII letters as UTF-8; the library itself reads Latin-1 and writes escapes.
 * Such a file is read as UTF-8 when it is valid UTF-8, and written with escapes, which every edition reads.
 * @param fileName  the file, or empty for the user's own one
 */
std::unique_ptr<QSettings> open(const QString &fileName);

/** Makes the folder of the file with all folders above it. */
void makeFolder(const QString &fileName);

/** Creates the file, readable by its owner alone (it may come to hold a password), unless it exists. */
bool createPrivate(const QString &fileName);
/** Makes a file that exists readable by its owner alone. */
bool makePrivate(const QString &fileName);

} // namespace SettingsFile

#endif

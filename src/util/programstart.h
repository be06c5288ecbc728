#ifndef PROGRAMSTART_H
#define PROGRAMSTART_H

#include <QStringList>

/** What every program of the system does around its application object. */
namespace ProgramStart {

/**
 * Before the application object is made: no display is needed, and a locale whose character set is plain ASCII (as
 * with LC_ALL=C) is taken as UTF-8, so that Finnish letters survive.
 */
void prepare();

/** The words after the program's name, decoded from the locale's character set. */
QStringList arguments(int argc, char *argv[]);

/** Names the application; the settings file is found by it. */
void nameApplication();

} // namespace ProgramStart

#endif

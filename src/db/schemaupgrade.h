#ifndef SCHEMAUPGRADE_H
#define SCHEMAUPGRADE_H

#include <QStringList>

/** The statements that bring an older schema to the current version, as data. */
namespace SchemaUpgrade {

/**
 * @param fromVersion  1 to 9
 * @return the statements of the step to the next version, in order; the last one writes the version number
 */
QStringList statements(int fromVersion, bool sqlite);

} // namespace SchemaUpgrade

#endif

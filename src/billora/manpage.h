#ifndef MANPAGE_H
#define MANPAGE_H

#include <QString>

/** Manual pages (man(7)) made of the table of commands, in the language of the run. */
namespace ManPage {

/** @param noun  empty for the program's own page, billora(1). @return empty for a word that is no noun */
QString of(const QString &noun);

} // namespace ManPage

#endif

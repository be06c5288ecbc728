#ifndef TEXTS_H
#define TEXTS_H

#include <QCoreApplication>
#include <QString>

/**
 * Marks a Finnish text of a table for translation; the value is the text itself. scripts/translations collects the
 * words of both forms into translations/.
 */
#define TEXT(finnish) finnish

/** A text in the language of the run, see Language. */
inline QString text(const char *finnish) { return QCoreApplication::translate("billora", finnish); }

#endif

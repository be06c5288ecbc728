#ifndef PARAMETERLIST_H
#define PARAMETERLIST_H

#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>

/** A command's parameters in the order of the words; a word without "=" (a flag) has an empty value. */
using ParameterList = QList<QPair<QString, QString>>;

/** Takes the words up to the next one that begins with "-" off the front. */
/** "=" ends the key at its first place: a value may hold further ones. */
ParameterList parseParameters(QStringList &args);

#endif

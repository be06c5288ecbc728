#ifndef FILEANSWER_H
#define FILEANSWER_H

#include "responsewriter.h"

#include <QDir>

/** The records of what was written. */
namespace FileAnswer {

/** Begins a `file` record; the caller ends it. */
inline void startRecord(ResponseWriter &response, const QString &fileName)
{
    response.startRecord(QStringLiteral("file"));
    response.printProperty("filename", QDir::toNativeSeparators(fileName));
}

} // namespace FileAnswer

#endif

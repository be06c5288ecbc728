#ifndef OUTPUTFILE_H
#define OUTPUTFILE_H

#include "replacedfile.h"

#include <QFile>
#include <QString>

/**
 * A file to be written as a whole or not at all: an existing file is replaced only by a complete new one, and a failure
 * (a full disk too) leaves nothing behind. What is no regular file, such as a pipe, is written directly.
 */
class OutputFile {
public:
    explicit OutputFile(const QString &fileName);

    [[nodiscard]] bool open();
    /** @return whether everything written until now is in the file; without a commit nothing is */
    [[nodiscard]] bool commit();

    QIODevice *device() { return &m_file; }
    QString errorString() const { return m_errorString; } ///< the system's own text of the last failure

private:
    bool fail(const QString &message);

    ReplacedFile m_place;
    QFile m_file;
    QString m_errorString;
};

#endif

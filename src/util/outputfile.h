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
    /** Touches nothing yet. */
    explicit OutputFile(const QString &fileName);

    /**
     * @return false, with the reason in errorString(), when the file must not be replaced or its folder not be written
     */
    [[nodiscard]] bool open();
    /** @return whether everything written until now is in the file; without a commit nothing is */
    [[nodiscard]] bool commit();

    /** Owned; open between open() and commit(). */
    QIODevice *device() { return &m_file; }
    QString errorString() const { return m_errorString; } ///< the system's own text of the last failure

private:
    bool fail(const QString &message); ///< keeps the message. @return false

    ReplacedFile m_place;  ///< declared before the file: the file is closed before its temporary is removed
    QFile m_file;          ///< the temporary one, or the pipe itself
    QString m_errorString; ///< null until a failure
};

#endif

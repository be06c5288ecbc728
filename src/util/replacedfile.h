#ifndef REPLACEDFILE_H
#define REPLACEDFILE_H

#include "unfinishedfile.h"

#include <QString>

#include <optional>

/**
 * A file that is written beside its place and put there when it is whole: until then an existing file stays as it was,
 * and nothing is left of a failure. What is no regular file, such as a pipe, has no such place and is written directly.
 * A link is followed. Nothing is forced to the disk, which would cost more than most files do.
 */
class ReplacedFile {
public:
    /** Chooses the names; creates and opens nothing. */
    explicit ReplacedFile(const QString &fileName);
    /** Removes what was not put in place. */
    ~ReplacedFile();
    ReplacedFile(const ReplacedFile &) = delete;
    ReplacedFile &operator=(const ReplacedFile &) = delete;

    /** Where to write; empty for a file that is written directly. */
    QString temporaryName() const { return m_temporary; }
    /** @return false, with the reason in errorString(), when the file must not be replaced */
    [[nodiscard]] bool mayBeReplaced();
    /** Gives it the permissions of the earlier file and renames. @return false, with the reason in errorString() */
    [[nodiscard]] bool putInPlace();
    QString errorString() const { return m_errorString; } ///< the system's own text; null until a failure

    /**
     * Removes what a child of this process, made by a fork and dead since, left beside a file. Nothing of this process
     * may be under way there, and prepareFork() must have been called before the fork.
     */
    static void removeLeftOvers(const QString &fileName);
    /** Lets children choose names that this process knows as theirs. */
    static void prepareFork();

private:
    bool fail(int error); ///< keeps the text of an errno. @return false

    const QString m_fileName; ///< as given
    QString m_target;         ///< the file behind a symbolic link
    QString m_temporary;      ///< a random name in the folder of m_target
    QString m_errorString;
    std::optional<UnfinishedFile> m_unfinished; ///< of the temporary
};

#endif

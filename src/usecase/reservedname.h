#ifndef RESERVEDNAME_H
#define RESERVEDNAME_H

#include "unfinishedfile.h"

#include <QString>

#include <functional>
#include <optional>

/**
 * A file name that nobody has: the empty file of the name is made at once, so that two exports to one name do not
 * overwrite each other. An empty file goes again with this object.
 */
class ReservedName {
public:
    /**
     * @param nextName      makes a name that no file has at the moment; asked again when somebody else was faster
     * @param makesFolders  whether those that the name stands in are made
     */
    ReservedName(const std::function<QString()> &nextName, bool makesFolders);
    ~ReservedName();
    ReservedName(const ReservedName &) = delete;
    ReservedName &operator=(const ReservedName &) = delete;

    const QString &name() const { return m_name; }
    /** Whether the file was made here: not in a folder that cannot be written, nor for a device. */
    bool isMade() const { return m_isMade; }
    /**
     * Writes the file at once where it was made here: it has no earlier content to keep until the new one is whole.
     * @return false with the system's text, and no file
     */
    [[nodiscard]] bool write(const QByteArray &bytes, QString &error);
    /** Removes a file that was made to reserve its name, if nothing was written into it. */
    static void release(const QString &name);

private:
    QString m_name;
    bool m_isMade = false;
    std::optional<UnfinishedFile> m_unfinished; ///< where it was made
};

#endif

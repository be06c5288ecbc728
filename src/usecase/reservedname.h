#ifndef RESERVEDNAME_H
#define RESERVEDNAME_H

#include <QString>

#include <functional>

/**
 * A file name that nobody has: the empty file of the name is made at once, so that two exports to one name do not
 * overwrite each other. An empty file goes again with this object.
 */
class ReservedName {
public:
    /** @param nextName  makes a name that no file has at the moment; asked again when somebody else was faster */
    explicit ReservedName(const std::function<QString()> &nextName);
    ~ReservedName();
    ReservedName(const ReservedName &) = delete;
    ReservedName &operator=(const ReservedName &) = delete;

    const QString &name() const { return m_name; }
    /** Whether the file was made here: not in a folder that cannot be written, nor for a device. */
    bool isMade() const { return m_isMade; }
    /** Removes a file that was made to reserve its name, if nothing was written into it. */
    static void release(const QString &name);

private:
    QString m_name;
    bool m_isMade = false;
};

#endif

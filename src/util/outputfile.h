#ifndef OUTPUTFILE_H
#define OUTPUTFILE_H

#include <QString>

#include <memory>

class QFileDevice;
class QIODevice;

/**
 * A file to be written as a whole or not at all: an existing file is replaced only by a complete new one, and a failure
 * (a full disk too) leaves nothing behind. What is no regular file, such as a pipe, is written directly.
 */
class OutputFile {
public:
    explicit OutputFile(const QString &fileName);
    ~OutputFile();

    [[nodiscard]] bool open();
    /** @return whether everything written until now is in the file; without a commit nothing is */
    [[nodiscard]] bool commit();

    QIODevice *device() const;
    QString errorString() const; ///< the file's own text of the last failure

private:
    std::unique_ptr<QFileDevice> m_file;
};

#endif

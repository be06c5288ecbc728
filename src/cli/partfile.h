#ifndef PARTFILE_H
#define PARTFILE_H

#include <QCoreApplication>
#include <QString>

/**
 * A file that others write, put in place only when it is whole: it is written under another name in the same folder
 * and renamed at the end. An existing file stays as it was until then, and nothing half-made is left.
 */
class PartFile {
    Q_DECLARE_TR_FUNCTIONS(PartFile)
public:
    explicit PartFile(const QString &fileName);
    /** Removes what was not committed. */
    ~PartFile();
    PartFile(const PartFile &) = delete;
    PartFile &operator=(const PartFile &) = delete;

    /** Makes the empty file. @return false, with the reason in lastError(), when the folder does not take it */
    [[nodiscard]] bool create();
    /** What is to be written. */
    QString partName() const { return m_partName; }
    /**
     * Puts the file in place.
     * @param ending  what a whole file ends with, trailing white space aside; a file that was cut short lacks it
     */
    [[nodiscard]] bool commit(const QByteArray &ending);

    /** Names the file. */
    QString lastError() const { return m_lastError; }

private:
    bool fail(const QString &reason);
    bool endsWith(const QByteArray &ending) const;

    QString m_fileName;
    QString m_partName;
    QString m_lastError;
};

#endif

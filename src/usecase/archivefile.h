#ifndef ARCHIVEFILE_H
#define ARCHIVEFILE_H

#include <QByteArray>
#include <QCoreApplication>
#include <QMap>
#include <QString>

/**
 * An archive of files that are held in memory until it is written: `.zip` or `.tar.zst` by its name. The same files and
 * day make the same bytes: names are sorted, owners are 0, times the beginning of the day in UTC.
 *
 * The library of archives is loaded when one is written: it brings a dozen others, which no other command should wait
 * for.
 */
class ArchiveFile {
    Q_DECLARE_TR_FUNCTIONS(ArchiveFile)
public:
    /** Whether the name tells a kind of archive that can be written. */
    static bool isKnown(const QString &fileName);

    /** @param name  with folders, in ASCII, relative */
    void add(const QString &name, const QByteArray &content) { m_files.insert(name, content); }
    const QMap<QString, QByteArray> &files() const { return m_files; } ///< by their names, sorted
    /** @return false, with the reason in lastError() and nothing left of it, when it cannot be written */
    [[nodiscard]] bool write(const QString &fileName, qint64 secondsSinceEpoch);

    QString lastError() const { return m_lastError; } ///< null before a failure

private:
    bool fail(const QString &reason); ///< @return false

    QMap<QString, QByteArray> m_files;
    QString m_lastError;
};

#endif

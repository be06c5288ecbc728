#include "createdatabase.h"

#include "databaselist.h"
#include "postgresqldatabase.h"
#include "sqlitedatabase.h"
#include "usecasecontext.h"

#include <QFile>
#include <QFileInfo>
#include <QSettings>

#include <cerrno>

#include <fcntl.h>
#include <stdio.h> // renameat2()
#include <unistd.h>

namespace {

const QString fileKey = QStringLiteral("filename");

/**
 * Puts a finished file in place unless another one has come there meanwhile.
 * @return false with errno set
 */
bool putInPlace(const QString &from, const QString &to)
{
    const QByteArray source = QFile::encodeName(from);
    const QByteArray target = QFile::encodeName(to);
    if (::renameat2(AT_FDCWD, source.constData(), AT_FDCWD, target.constData(), RENAME_NOREPLACE) == 0)
        return true;
    if (errno != EINVAL && errno != ENOSYS)
        return false;
    return ::link(source.constData(), target.constData()) == 0 && ::unlink(source.constData()) == 0;
}

/** Creates the database through its backend and fills it. */
bool create(UseCaseContext &context, const QVariantMap &entry, const QString &sellerName,
            const std::function<bool()> &fill)
{
    QVariantMap named = entry;
    named.insert(QStringLiteral("name"), sellerName);
    context.session.setCreating(true);
    const bool isOpen = context.session.openEntry(named);
    context.session.setCreating(false);
    const bool isFilled = isOpen && fill();
    context.session.closeDatabase();
    return isFilled;
}

/** A new file is made under another name first: what stands under its own name is whole, and is never another's. */
bool createFile(UseCaseContext &context, const QVariantMap &entry, const QString &sellerName,
                const std::function<bool()> &fill)
{
    const QString file = entry.value(fileKey).toString();
    QVariantMap part = entry;
    const QString partName = QStringLiteral("%1.%2.part").arg(file).arg(::getpid());
    part.insert(fileKey, partName);
    const bool created = create(context, part, sellerName, fill);
    if (created && putInPlace(partName, file))
        return true;
    const int error = errno;
    QFile::remove(partName);
    if (!created)
        return false;
    return error == EEXIST ? context.listener.fail(Failure::fileExists, {file})
                           : context.listener.fail(Failure::fileUnwritable, {file, qt_error_string(error)});
}

} // namespace

bool CreateDatabase::run(UseCaseContext &context, QVariantMap &entry, const QString &sellerName,
                         const std::function<bool()> &fill)
{
    QSettings *settings = context.session.registry().appSettings();
    DatabaseList list(settings->fileName(), DatabaseList::writing);
    const bool isPostgreSQL = DatabaseList::isPostgreSQL(entry);
    const QString file = entry.value(fileKey).toString();
    if (DatabaseList::number(entry) < 1)
        entry.insert(QStringLiteral("number"), list.nextFreeNumber());
    const int number = DatabaseList::number(entry);
    if (list.contains(number))
        return context.listener.fail(Failure::databaseNumberTaken, {QString::number(number)});
    if (!isPostgreSQL && (QFileInfo::exists(file) || QFileInfo(file).isSymLink()))
        return context.listener.fail(Failure::fileExists, {file});
    if (context.session.isTrial())
        return true;
    if (!list.isWritable())
        return context.listener.fail(Failure::settingsFileUnwritable, {settings->fileName()});
    if (!(isPostgreSQL ? create(context, entry, sellerName, fill) : createFile(context, entry, sellerName, fill)))
        return false;
    list.append(entry);
    list.setLastUsed(number);
    if (!list.save()) {
        if (!isPostgreSQL)
            QFile::remove(file);
        return context.listener.fail(Failure::settingsFileUnwritable, {settings->fileName()});
    }
    settings->sync(); // another object wrote the file
    return true;
}

#include "archivefile.h"

#include "outputfile.h"
#include "utczone.h"

#include <QLibrary>

#include <archive.h>
#include <archive_entry.h>

namespace {

constexpr int libraryVersion = 13;
constexpr mode_t filePermissions = 0644;

/** The functions that are used, as the library's headers declare them. */
struct Library {
    QLibrary library{QStringLiteral("archive"), libraryVersion};
    bool isWhole = library.load();

    template <class Function> Function *find(Function *, const char *name)
    {
        const QFunctionPointer found = isWhole ? library.resolve(name) : nullptr;
        isWhole = isWhole && found;
        return reinterpret_cast<Function *>(found);
    }
#define BILLORA_FUNCTION(name) decltype(&::name) name = find(static_cast<decltype(&::name)>(nullptr), #name)
    BILLORA_FUNCTION(archive_write_new);
    BILLORA_FUNCTION(archive_write_set_format_zip);
    BILLORA_FUNCTION(archive_write_set_format_ustar);
    BILLORA_FUNCTION(archive_write_add_filter_zstd);
    BILLORA_FUNCTION(archive_write_set_bytes_in_last_block);
    BILLORA_FUNCTION(archive_write_open);
    BILLORA_FUNCTION(archive_write_header);
    BILLORA_FUNCTION(archive_write_data);
    BILLORA_FUNCTION(archive_write_close);
    BILLORA_FUNCTION(archive_write_free);
    BILLORA_FUNCTION(archive_error_string);
    BILLORA_FUNCTION(archive_entry_new);
    BILLORA_FUNCTION(archive_entry_free);
    BILLORA_FUNCTION(archive_entry_set_pathname);
    BILLORA_FUNCTION(archive_entry_set_size);
    BILLORA_FUNCTION(archive_entry_set_filetype);
    BILLORA_FUNCTION(archive_entry_set_perm);
    BILLORA_FUNCTION(archive_entry_set_mtime);
#undef BILLORA_FUNCTION
};

la_ssize_t take(archive *, void *device, const void *bytes, size_t size)
{
    return static_cast<QIODevice *>(device)->write(static_cast<const char *>(bytes), static_cast<qint64>(size));
}

bool isZip(const QString &fileName) { return fileName.endsWith(QLatin1String(".zip"), Qt::CaseInsensitive); }

} // namespace

bool ArchiveFile::isKnown(const QString &fileName)
{
    return isZip(fileName) || fileName.endsWith(QLatin1String(".tar.zst"), Qt::CaseInsensitive);
}

bool ArchiveFile::fail(const QString &reason)
{
    m_lastError = reason;
    return false;
}

bool ArchiveFile::write(const QString &fileName, qint64 secondsSinceEpoch)
{
    Library library;
    if (!library.isWhole)
        return fail(tr("Pakkaamisen kirjasto puuttuu: %1").arg(library.library.errorString()));
    OutputFile output(fileName);
    if (!output.open())
        return fail(output.errorString());
    const UtcZone utc; // the day stands in zip files as local time
    archive *const target = library.archive_write_new();
    bool isRight = isZip(fileName) ? library.archive_write_set_format_zip(target) == ARCHIVE_OK
                                   : library.archive_write_set_format_ustar(target) == ARCHIVE_OK &&
                                         library.archive_write_add_filter_zstd(target) == ARCHIVE_OK;
    library.archive_write_set_bytes_in_last_block(target, 1);
    isRight = isRight && library.archive_write_open(target, output.device(), nullptr, take, nullptr) == ARCHIVE_OK;
    for (auto file = m_files.cbegin(); isRight && file != m_files.cend(); ++file) {
        archive_entry *const entry = library.archive_entry_new();
        library.archive_entry_set_pathname(entry, file.key().toLatin1().constData());
        library.archive_entry_set_size(entry, file.value().size());
        library.archive_entry_set_filetype(entry, AE_IFREG);
        library.archive_entry_set_perm(entry, filePermissions);
        library.archive_entry_set_mtime(entry, secondsSinceEpoch, 0);
        isRight = library.archive_write_header(target, entry) == ARCHIVE_OK &&
                  library.archive_write_data(target, file.value().constData(),
                                             static_cast<size_t>(file.value().size())) == file.value().size();
        library.archive_entry_free(entry);
    }
    isRight = isRight && library.archive_write_close(target) == ARCHIVE_OK;
    const QString reason = isRight ? QString() : QString::fromLocal8Bit(library.archive_error_string(target));
    library.archive_write_free(target);
    if (!isRight)
        return fail(reason);
    return output.commit() || fail(output.errorString());
}

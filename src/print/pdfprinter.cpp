#include "pdfprinter.h"

#include <QCoreApplication>
#include <QHash>

#include <malloc.h>

namespace {

/** What the allocator may keep, and what it gets from its own memory: some pages' worth of a document. */
constexpr int keptMemory = 32 << 20; // bytes

/**
 * The library takes and frees some megabytes for every document. Given back to the system each time, they would be
 * cleared anew for the next document: a quarter of its time.
 */
void keepFreedMemory()
{
    ::mallopt(M_TRIM_THRESHOLD, keptMemory);
    ::mallopt(M_MMAP_THRESHOLD, keptMemory);
}

} // namespace

std::unique_ptr<QPrinter> PdfPrinter::create(const QString &fileName)
{
    keepFreedMemory();
    // The library writes the fonts of a document in the order of a table that would be another one in every process.
    qSetGlobalQHashSeed(0);
    // Without library paths the plugin that speaks to the print server is not found. Later it is, so the server is set
    // to one that refuses at once.
    qputenv("CUPS_SERVER", "/dev/null");
    const QStringList paths = QCoreApplication::libraryPaths();
    QCoreApplication::setLibraryPaths({});
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    QCoreApplication::setLibraryPaths(paths);

    printer->setOutputFormat(QPrinter::PdfFormat);
    printer->setPageSize(QPageSize(QPageSize::A4));
    printer->setFullPage(true);
    if (!fileName.isEmpty()) // an empty name means paper, and a look for the plugin
        printer->setOutputFileName(fileName);
    return printer;
}

#include "pdfprinter.h"

#include <QCoreApplication>
#include <QHash>

std::unique_ptr<QPrinter> PdfPrinter::create(const QString &fileName)
{
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

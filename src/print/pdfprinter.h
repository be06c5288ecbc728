#ifndef PDFPRINTER_H
#define PDFPRINTER_H

#include <QPrinter>

#include <memory>

/**
 * Makes printers that write PDF files: A4, 1200 dpi, coordinates from the corner of the paper. Tables of the library
 * that are made from then on have a fixed order, so that the same document has the same bytes.
 *
 * A printer asks the print server for its queues when it is made, which costs milliseconds, or much more where the
 * server does not answer. The first printer made here does without; make one and change its output file name.
 */
namespace PdfPrinter {

/**
 * @param fileName  empty: to be set before printing
 * @return never null
 */
std::unique_ptr<QPrinter> create(const QString &fileName = QString());

} // namespace PdfPrinter

#endif

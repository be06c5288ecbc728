#ifndef PRINTFORMAT_H
#define PRINTFORMAT_H

/** What kind of file an export writes. */
enum PrintFormat { pdfFormat = 0, csvFormat = 1, finvoiceFormat = 2 };

#endif

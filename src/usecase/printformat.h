#ifndef PRINTFORMAT_H
#define PRINTFORMAT_H

/** What kind of file an export writes. */
enum PrintFormat {
    pdfFormat = 0,       ///< A4, by a script
    csvFormat = 1,       ///< all invoices, or a list, in one file (RFC 4180)
    finvoiceFormat = 2,  ///< 1.3, by a script
    finvoice3Format = 3, ///< with the marker of EN 16931
    peppolFormat = 4,    ///< UBL 2.1 by Peppol BIS Billing 3
    einvoiceFormat = 5,  ///< the one of the last three that the customer or the company is set to
};

#endif

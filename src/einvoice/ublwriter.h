#ifndef UBLWRITER_H
#define UBLWRITER_H

#include "einvoicedocument.h"

#include <QByteArray>

namespace EInvoice {

/** UBL 2.1, an Invoice or a CreditNote by Peppol BIS Billing 3, in UTF-8. The document has no error of the rules. */
QByteArray writeUbl(const Document &document);

} // namespace EInvoice

#endif

#ifndef FINVOICE3WRITER_H
#define FINVOICE3WRITER_H

#include "einvoicedocument.h"

#include <QByteArray>

namespace EInvoice {

/** Finvoice 3.0 with the marker of EN 16931, in ISO-8859-15. The document has no error of the rules. */
QByteArray writeFinvoice3(const Document &document);

} // namespace EInvoice

#endif

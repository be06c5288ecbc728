#ifndef SOAPENVELOPE_H
#define SOAPENVELOPE_H

#include <QByteArray>

class PrintModel;

/** The transmission frame of a Finvoice document: a SOAP 1.1 envelope with an ebXML Message Service 2.0 header. */
namespace SoapEnvelope {

/**
 * Encoded, without an XML declaration, ended by a line feed.
 * @param model  is asked for `settings/...` and `invoice/...`; what it does not know is an empty text
 */
QByteArray create(PrintModel *model);

} // namespace SoapEnvelope

#endif

#include "soapenvelope.h"

#include "printmodel.h"
#include "xmlencoding.h"

#include <QDateTime>
#include <QXmlStreamWriter>

namespace {

constexpr char soapNamespace[] = "http://schemas.xmlsoap.org/soap/envelope/";
constexpr char xlinkNamespace[] = "http://www.w3.org/1999/xlink";
constexpr char ebxmlNamespace[] = "http://www.oasis-open.org/committees/ebxml-msg/schema/msg-header-2_0.xsd";
constexpr char finvoiceSchema[] = "http://www.finvoice.info/finvoice.xsd";

void start(QXmlStreamWriter &writer, const char *name) { writer.writeStartElement(QLatin1String(name)); }

void attribute(QXmlStreamWriter &writer, const char *name, const QString &value)
{
    writer.writeAttribute(QLatin1String(name), value);
}

void attribute(QXmlStreamWriter &writer, const char *name, const char *value)
{
    attribute(writer, name, QString::fromLatin1(value));
}

void text(QXmlStreamWriter &writer, const char *name, const QString &value)
{
    writer.writeTextElement(QLatin1String(name), value);
}

/** Writes nothing for a party without an id. */
void writeParty(QXmlStreamWriter &writer, const char *element, const QString &id, const char *role)
{
    if (id.isEmpty())
        return;
    start(writer, element);
    text(writer, "eb:PartyId", id);
    text(writer, "eb:Role", QString::fromLatin1(role));
    writer.writeEndElement();
}

void writeMessageHeader(QXmlStreamWriter &writer, PrintModel *model, const QString &invoiceNumber)
{
    const auto value = [model](const char *path) { return model->value(QString::fromLatin1(path)).toString(); };
    start(writer, "eb:MessageHeader");
    attribute(writer, "xmlns:eb", ebxmlNamespace);
    attribute(writer, "SOAP-ENV:mustUnderstand", "1");
    writeParty(writer, "eb:From", value("settings/senderId"), "Sender");
    writeParty(writer, "eb:From", value("settings/intermediatorId"), "Intermediator");
    const QString receiver = value("invoice/customer/receiverId");
    writeParty(writer, "eb:To", receiver.isEmpty() ? value("settings/defaultReceiverId") : receiver, "Receiver");
    writeParty(writer, "eb:To", value("invoice/customer/intermediatorId"), "Intermediator");
    text(writer, "eb:CPAId", QStringLiteral("yoursandmycpa"));
    start(writer, "eb:MessageData");
    text(writer, "eb:MessageId", invoiceNumber);
    text(writer, "eb:Timestamp", QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd'T'hh:mm:ss")));
    writer.writeEndElement();
    writer.writeEndElement();
}

void writeBody(QXmlStreamWriter &writer, const QString &invoiceNumber)
{
    start(writer, "SOAP-ENV:Body");
    start(writer, "eb:Manifest");
    attribute(writer, "eb:id", "Manifest");
    attribute(writer, "eb:version", "2.0");
    start(writer, "eb:Reference");
    attribute(writer, "eb:id", "Finvoice");
    attribute(writer, "xlink:href", invoiceNumber);
    start(writer, "eb:Schema");
    attribute(writer, "eb:location", finvoiceSchema);
    attribute(writer, "eb:version", "2.0");
    for (int i = 0; i < 4; ++i)
        writer.writeEndElement();
}

} // namespace

QByteArray SoapEnvelope::create(PrintModel *model)
{
    const QString invoiceNumber = model->value(QStringLiteral("invoice/number")).toString();
    QString xml;
    QXmlStreamWriter writer(&xml);
    start(writer, "SOAP-ENV:Envelope");
    attribute(writer, "xmlns:SOAP-ENV", soapNamespace);
    attribute(writer, "xmlns:xlink", xlinkNamespace);
    attribute(writer, "xmlns:eb", ebxmlNamespace);
    writer.setAutoFormatting(true);
    writer.setAutoFormattingIndent(0);
    start(writer, "SOAP-ENV:Header");
    writeMessageHeader(writer, model, invoiceNumber);
    writer.writeEndElement();
    writeBody(writer, invoiceNumber);
    writer.writeEndElement();
    return XmlEncoding::encode(xml) + '\n';
}

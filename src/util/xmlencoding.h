#ifndef XMLENCODING_H
#define XMLENCODING_H

#include <QByteArray>
#include <QString>

/** The character set of Finvoice files. */
namespace XmlEncoding {

/** The first line of a document, without a line feed. */
constexpr char declaration[] = "<?xml version=\"1.0\" encoding=\"ISO-8859-15\"?>";

/**
 * Encodes an XML text. What the character set lacks becomes a numeric character reference; what XML 1.0 forbids
 * (control characters, half a surrogate pair) is dropped, since no reference to it is allowed either.
 *
 * The library's XML writer drops a whole text instead when one of its characters cannot be encoded.
 */
QByteArray encode(const QString &xml);

} // namespace XmlEncoding

#endif

#ifndef EXPORTFILENAME_H
#define EXPORTFILENAME_H

#include <QString>

class Customer;
class Invoice;

/** The name of an exported invoice's file, made of the user's template and the invoice's data. */
namespace ExportFileName {

/**
 * Expands the template's variables. The data cannot lead out of the folder that the template names, nor make a name
 * that a file system refuses: what is too long is cut before the suffix.
 * @param kind  see TemplateStringHelper::substituteShortVariables()
 * @return a name that no file has yet; where one has it, with a number behind
 */
QString make(const QString &form, const Invoice &invoice, const Customer *customer, int kind);

/** One step of a path made legal: no separators or control characters, at most 240 bytes of UTF-8, not a device. */
QString legalName(const QString &name);

} // namespace ExportFileName

#endif

#ifndef EINVOICERULES_H
#define EINVOICERULES_H

#include "einvoicedocument.h"

namespace EInvoice {

/** Only an error keeps a document from being sent. */
enum class Severity { error, warning, note };

/** What a rule found in a document. */
struct Finding {
    const char *rule;         ///< "BR-11"
    Severity severity;        ///< of the rule
    const char *term;         ///< "BT-55"; a literal
    const char *field;        ///< of the program's records, "customer.country"; empty for none
    int row;                  ///< position of the row that it is about, 0 for none
    QString finnish, english; ///< the sentence with the value found, in both languages
};

/** All that is wrong or worth knowing, in the order of the table. A document with an error must not be sent. */
QVector<Finding> check(const Document &document, Format format);
bool hasError(const QVector<Finding> &findings);

/** All rules as `BR-11@customer.country`, in the order of the table. */
QStringList rules();

} // namespace EInvoice

#endif

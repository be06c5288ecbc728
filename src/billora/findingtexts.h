#ifndef FINDINGTEXTS_H
#define FINDINGTEXTS_H

#include "einvoicerules.h"

#include <QStringList>

/** What the rules of e-invoices found, in the language of the run. */
namespace FindingTexts {

QString sentence(const EInvoice::Finding &finding);
/** The sentence behind the id of its rule. */
QString reason(const EInvoice::Finding &finding);
/** The reasons that keep a document from being sent, in the order of the rules; empty: none does. */
QStringList errors(const QVector<EInvoice::Finding> &findings);

} // namespace FindingTexts

#endif

#ifndef IMPORTPAYMENTS_H
#define IMPORTPAYMENTS_H

#include "importedpayment.h"

#include <QVector>

struct UseCaseContext;

/** Takes the payments of a bank's file: each once, to the invoice that its reference names. */
namespace ImportPayments {

/** Reads a file. Its damage is among the payments. @return false with the failure told */
[[nodiscard]] bool readFile(UseCaseContext &context, const QString &fileName, QVector<ImportedPayment> &payments);

/** Matches and saves, for use in a transaction of the caller's. @return false with the failure told */
[[nodiscard]] bool save(UseCaseContext &context, QVector<ImportedPayment> &payments);

} // namespace ImportPayments

#endif

#ifndef LAYOUTS_H
#define LAYOUTS_H

#include "printscript.h"

#include <QVector>

struct UseCaseContext;

/** The stored scripts that draw invoices or write Finvoice. Failures are told. */
namespace Layouts {

/** The types of scripts. */
extern const char *const invoiceType;
extern const char *const finvoiceType;

/** All stored ones, without their sources. */
[[nodiscard]] bool read(UseCaseContext &context, QVector<PrintScript> &layouts);
/** Reads and checks the source of a script; a syntax error is a failure with its line. */
[[nodiscard]] bool readSource(UseCaseContext &context, const QString &fileName, QString &source);
/** The source of the built-in layout of the index. */
[[nodiscard]] bool readBuiltIn(UseCaseContext &context, int index, QString &source);
/** The id of the chosen invoice layout: a stored one, or the built-in one's; -1 for the default. */
[[nodiscard]] bool selected(UseCaseContext &context, int &id);

// For use in a transaction of the caller's.

/** Saves; one name is one layout. */
[[nodiscard]] bool save(UseCaseContext &context, PrintScript &layout);
/** Removes; the chosen one is chosen no more. */
[[nodiscard]] bool remove(UseCaseContext &context, const PrintScript &layout);
/** @param id  of a stored invoice layout or a built-in one; -1 for the default */
[[nodiscard]] bool select(UseCaseContext &context, int id);

} // namespace Layouts

#endif

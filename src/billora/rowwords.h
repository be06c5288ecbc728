#ifndef ROWWORDS_H
#define ROWWORDS_H

#include "arguments.h"
#include "valuereader.h"

/**
 * The grammar of a row in a word: `PRODUCT [QUANTITY] [FIELD=VALUE]…`. Quotes keep blanks together, `text=` takes the
 * rest of the word, `-` is a row without a product.
 */
namespace RowWords {

/** @param option  what a problem names. @param row  gets `product`, `quantity` and the fields as texts */
[[nodiscard]] bool parse(const ValueReader &reader, const QString &option, const QString &word, Arguments &row);

/** Splits a text at blanks outside of quotes, which are taken away; a backslash keeps a quote. */
QStringList split(const QString &text);

} // namespace RowWords

#endif

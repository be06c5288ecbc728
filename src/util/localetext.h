#ifndef LOCALETEXT_H
#define LOCALETEXT_H

#include <QString>

/** Bytes in the locale's character set, as words and lines come in. */
namespace LocaleText {

/** @return every character, a leading U+FEFF too; what is not valid becomes U+FFFD */
QString decode(const char *bytes, int length);

} // namespace LocaleText

#endif

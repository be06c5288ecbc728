#ifndef LOCALETEXT_H
#define LOCALETEXT_H

#include <QString>

/** Bytes as texts, with every character of them. */
namespace LocaleText {

/** Of the locale's character set, as words and lines come in. What is not valid becomes U+FFFD. */
QString decode(const char *bytes, int length);
/** As QString::fromUtf8(), which drops a U+FEFF at the start. */
QString fromUtf8(const char *bytes, int length);

} // namespace LocaleText

#endif

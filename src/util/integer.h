#ifndef INTEGER_H
#define INTEGER_H

#include <QString>
#include <QStringView>

/** Free of any locale. */
namespace Integer {

/**
 * Reads a decimal integer: an optional sign and ASCII digits, nothing else. Unlike QString::toInt() it refuses
 * surrounding blanks.
 * @param ok  set to whether the whole text was such a number within 32 bits
 * @return the number, 0 on failure
 */
int parse(QStringView text, bool &ok);

/** @return whether the text is not empty and consists of ASCII digits only. */
bool isDigits(QStringView text);

/** Appends the number as ASCII digits, a hyphen in front of a negative one. */
void appendTo(QString &target, long long value);

} // namespace Integer

#endif

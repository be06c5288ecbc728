#ifndef TERMINAL_H
#define TERMINAL_H

#include <QString>

/** What the program talks to: a person at a terminal, or a pipe. */
namespace Terminal {

bool isInput();  ///< standard input is a terminal
bool isOutput(); ///< standard output is one
bool isError();  ///< standard error is one

/** Columns of the output: COLUMNS, else the terminal's own, else 80. */
int width();
/** Columns that a text takes: two for a wide character, none for a combining one. */
int width(const QString &text);
/** The text cut to so many columns, the last of them "…" where something was cut. */
QString fitted(const QString &text, int columns);

/** Writes all bytes, however slowly the reader takes them. @return false when they cannot be written */
bool write(int descriptor, const QByteArray &bytes);
/** Why standard output could not be written, as of a full disk; empty when all was, or nobody reads any more. */
QString outputError();
/** Writes a line, in the locale's character set, to standard error. */
void writeError(const QString &line);

} // namespace Terminal

#endif

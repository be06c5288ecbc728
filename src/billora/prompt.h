#ifndef PROMPT_H
#define PROMPT_H

#include <QString>

/** Questions to a person: asked on standard error, answered on standard input. */
namespace Prompt {

/** Asks a yes-or-no question; the default is no. */
bool agrees(const QString &question);
/** Asks for the number of records concerned to be typed. */
bool agreesByNumber(const QString &question, int count);

/** answered: also by accepting the default; back: `<`; ended: the input has no more lines. */
enum Outcome { answered, back, ended };
/**
 * Asks for a text. An empty answer is the default; `<` goes back.
 * @param preset  shown in brackets, may be empty
 * @param result  unchanged unless answered
 */
Outcome ask(const QString &question, const QString &preset, QString &result);
/** The same without an echo, for a password. */
Outcome askSecret(const QString &question, QString &result);

} // namespace Prompt

#endif

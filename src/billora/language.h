#ifndef LANGUAGE_H
#define LANGUAGE_H

#include <QString>

/** The language that the program speaks to people. Machine forms do not depend on it. */
namespace Language {

/** Texts of the sources are Finnish: that language needs no translations. */
enum Code { finnish, english };

/** The first that is given: the words `fi` or `en`, else what LC_ALL, LC_MESSAGES or LANG say (`fi…`, else English). */
Code choose(const QString &option, const QString &environment, const QString &setting);
/** Whether a word names a language. */
bool isKnown(const QString &word);

/** Makes text() and tr() of the program's own layers speak the language. Documents are not touched. */
void use(Code code);
/** For an application object that took the place of another one. */
void renew();
Code current(); ///< Finnish until use()
/** "fi" or "en" */
QString name();

} // namespace Language

#endif

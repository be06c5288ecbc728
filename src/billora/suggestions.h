#ifndef SUGGESTIONS_H
#define SUGGESTIONS_H

#include <QString>
#include <QStringList>

/** What somebody may have meant by a word that is none. */
namespace Suggestions {

constexpr int most = 3; ///< of one word

/** @return up to three candidates at an edit distance (with swaps) of at most a third of the word, nearest first */
QStringList nearest(const QString &word, const QStringList &candidates);

/** The same for texts of several words, as names: the nearest of their words counts too. */
QStringList nearestPart(const QString &word, const QStringList &candidates);

/** Insertions, deletions, replacements and swaps of neighbours that lead from one text to the other, case aside. */
int distance(const QString &a, const QString &b);

} // namespace Suggestions

#endif

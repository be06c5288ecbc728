#include "suggestions.h"

#include <QPair>
#include <QVector>

#include <algorithm>

int Suggestions::distance(const QString &first, const QString &second)
{
    const QString a = first.toLower();
    const QString b = second.toLower();
    QVector<int> before(b.size() + 1), above(b.size() + 1), current(b.size() + 1);
    for (int j = 0; j <= b.size(); ++j)
        above[j] = j;
    for (int i = 1; i <= a.size(); ++i) {
        current[0] = i;
        for (int j = 1; j <= b.size(); ++j) {
            const bool same = a.at(i - 1) == b.at(j - 1);
            current[j] = std::min({above[j] + 1, current[j - 1] + 1, above[j - 1] + (same ? 0 : 1)});
            const bool swapped = i > 1 && j > 1 && a.at(i - 1) == b.at(j - 2) && a.at(i - 2) == b.at(j - 1);
            if (swapped)
                current[j] = std::min(current[j], before[j - 2] + 1);
        }
        before.swap(above);
        above.swap(current);
    }
    return above[b.size()];
}

namespace {

/** @return the steps from the word to the candidate, -1 when there are too many to have been meant */
int closeness(const QString &word, const QString &candidate)
{
    const int limit = std::max(1, word.size() / 3);
    // Lengths differ by a lower bound of the distance.
    if (std::abs(candidate.size() - word.size()) > limit)
        return -1;
    const int steps = Suggestions::distance(word, candidate);
    return steps <= limit && steps < word.size() ? steps : -1;
}

QStringList best(QVector<QPair<int, QString>> &near)
{
    std::stable_sort(near.begin(), near.end(), [](const auto &a, const auto &b) { return a.first < b.first; });
    QStringList words;
    for (const auto &candidate : qAsConst(near)) {
        if (!words.contains(candidate.second) && words.size() < Suggestions::most)
            words.append(candidate.second);
    }
    return words;
}

} // namespace

QStringList Suggestions::nearest(const QString &word, const QStringList &candidates)
{
    QVector<QPair<int, QString>> near;
    for (const QString &candidate : candidates) {
        const int steps = closeness(word, candidate);
        if (steps >= 0)
            near.append({steps, candidate});
    }
    return best(near);
}

QStringList Suggestions::nearestPart(const QString &word, const QStringList &candidates)
{
    QVector<QPair<int, QString>> near;
    for (const QString &candidate : candidates) {
        int least = closeness(word, candidate);
        const QStringList parts = candidate.split(QLatin1Char(' '), Qt::SkipEmptyParts);
        for (const QString &part : parts) {
            const int steps = closeness(word, part);
            if (steps >= 0 && (least < 0 || steps < least))
                least = steps;
        }
        if (least >= 0)
            near.append({least, candidate});
    }
    return best(near);
}

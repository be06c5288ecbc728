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
            const bool swapped =
                i > 1 && j > 1 && a.at(i - 1) == b.at(j - 2) && a.at(i - 2) == b.at(j - 1);
            if (swapped)
                current[j] = std::min(current[j], before[j - 2] + 1);
        }
        before.swap(above);
        above.swap(current);
    }
    return above[b.size()];
}

QStringList Suggestions::nearest(const QString &word, const QStringList &candidates)
{
    const int limit = std::max(1, word.size() / 3);
    QVector<QPair<int, QString>> near;
    for (const QString &candidate : candidates) {
        // Lengths differ by a lower bound of the distance.
        if (std::abs(candidate.size() - word.size()) > limit)
            continue;
        const int steps = distance(word, candidate);
        if (steps <= limit && steps < word.size())
            near.append({steps, candidate});
    }
    std::stable_sort(near.begin(), near.end(), [](const auto &a, const auto &b) { return a.first < b.first; });
    QStringList words;
    for (const auto &candidate : near) {
        if (!words.contains(candidate.second) && words.size() < most)
            words.append(candidate.second);
    }
    return words;
}

// SPDX-License-Identifier: MIT
#include "tools/nearest.h"

#include <algorithm>
#include <vector>

namespace tools {

using namespace Qt::StringLiterals;

int editDistance(QStringView a, QStringView b)
{
    // Rows of the table of distances between the beginnings of both words.
    const auto width = size_t(b.size()) + 1;
    std::vector<int> before(width);
    std::vector<int> above(width);
    std::vector<int> row(width);
    for (size_t j = 0; j < width; ++j)
        above[j] = int(j);
    for (qsizetype i = 1; i <= a.size(); ++i) {
        row[0] = int(i);
        for (size_t j = 1; j < width; ++j) {
            const auto same = [&](qsizetype ai, size_t bj) {
                return a[ai].toLower() == b[qsizetype(bj)].toLower();
            };
            row[j] = std::min(
                {above[j] + 1, row[j - 1] + 1, above[j - 1] + (same(i - 1, j - 1) ? 0 : 1)});
            if (i > 1 && j > 1 && same(i - 1, j - 2) && same(i - 2, j - 1))
                row[j] = std::min(row[j], before[j - 2] + 1);
        }
        before.swap(above);
        above.swap(row);
    }
    return above.back();
}

QString nearest(QStringView word, std::span<const QString> words)
{
    constexpr qsizetype Longest = 64; // no key word comes near; keeps a huge name cheap
    if (word.size() > Longest)
        return {};
    const qsizetype farthest = qMax(qsizetype(1), word.size() / 3);
    const QString *found = nullptr;
    qsizetype least = farthest + 1;
    for (const QString &other : words) {
        if (qAbs(other.size() - word.size()) >= least)
            continue; // that many letters to insert or delete at least
        if (const int distance = editDistance(word, other); distance < least) {
            least = distance;
            found = &other;
        }
    }
    return found ? *found : QString();
}

QString suggestion(QStringView word, std::span<const QString> words)
{
    const QString found = nearest(word, words);
    return found.isEmpty() ? found : " (did you mean `"_L1 + found + "`?)"_L1;
}

} // namespace tools

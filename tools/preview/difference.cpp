// SPDX-License-Identifier: MIT
#include "tools/preview/difference.h"

#include <algorithm>
#include <span>

namespace preview {

namespace {

constexpr size_t MostRows = 4'000;

/// The paper's own width is no difference of a line.
bool isSame(const Row &a, const Row &b)
{
    return a.kind == b.kind && a.mark == b.mark && a.text == b.text && a.note == b.note;
}

/// The lengths of the longest common subsequences of the rows from (i, j) to the ends.
class CommonLengths
{
public:
    CommonLengths(std::span<const Row> before, std::span<const Row> after)
        : columns(after.size() + 1)
        , lengths((before.size() + 1) * columns)
    {
        for (size_t i = before.size(); i-- > 0;) {
            for (size_t j = after.size(); j-- > 0;)
                at(i, j) = isSame(before[i], after[j]) ? quint16(at(i + 1, j + 1) + 1)
                                                       : std::max(at(i + 1, j), at(i, j + 1));
        }
    }
    quint16 &at(size_t i, size_t j) { return lengths[i * columns + j]; }

private:
    size_t columns;
    std::vector<quint16> lengths; // at most MostRows
};

/// The rows that differ, in pairs; the longer paper's rest stands alone.
void addDiffering(std::vector<RowPair> &pairs, size_t i, size_t endOfBefore, size_t j,
                  size_t endOfAfter)
{
    while (i < endOfBefore || j < endOfAfter) {
        RowPair pair;
        if (i < endOfBefore)
            pair.before = qsizetype(i++);
        if (j < endOfAfter)
            pair.after = qsizetype(j++);
        pairs.push_back(pair);
    }
}

} // namespace

std::vector<RowPair> pairedRows(const std::vector<Row> &before, const std::vector<Row> &after)
{
    std::vector<RowPair> pairs;
    size_t first = 0;
    for (; first < std::min(before.size(), after.size()); ++first) {
        if (!isSame(before[first], after[first]))
            break;
        pairs.push_back({qsizetype(first), qsizetype(first), true});
    }
    const std::span<const Row> restBefore = std::span(before).subspan(first);
    const std::span<const Row> restAfter = std::span(after).subspan(first);
    const bool comparable = restBefore.size() <= MostRows && restAfter.size() <= MostRows;
    size_t i = 0;
    size_t j = 0;
    size_t doneBefore = 0;
    size_t doneAfter = 0;
    const auto addUpTo = [&] {
        addDiffering(pairs, first + doneBefore, first + i, first + doneAfter, first + j);
    };
    if (comparable) {
        CommonLengths lengths(restBefore, restAfter);
        while (i < restBefore.size() && j < restAfter.size()) {
            if (!isSame(restBefore[i], restAfter[j])) {
                ++(lengths.at(i + 1, j) >= lengths.at(i, j + 1) ? i : j);
                continue;
            }
            addUpTo();
            pairs.push_back({qsizetype(first + i), qsizetype(first + j), true});
            doneBefore = ++i;
            doneAfter = ++j;
        }
    }
    i = restBefore.size();
    j = restAfter.size();
    addUpTo();
    return pairs;
}

} // namespace preview

// SPDX-License-Identifier: MIT
#include "tools/preview/difference.h"

#include <algorithm>
#include <span>

namespace preview {

using namespace Qt::StringLiterals;

namespace {

bool isEqual(const RowPair &pair)
{
    return pair.before >= 0 && pair.after >= 0;
}

/// `begin,count` of one sheet's rows in a hunk, counted from 1.
QString rangeOf(std::span<const RowPair> above, std::span<const RowPair> hunk,
                qsizetype RowPair::*member)
{
    const auto has = [member](const RowPair &pair) { return pair.*member >= 0; };
    const auto count = std::ranges::count_if(hunk, has);
    return QString::number(std::ranges::count_if(above, has) + (count > 0 ? 1 : 0)) + u','
           + QString::number(count);
}

QString coloured(const QString &line)
{
    const QLatin1StringView colour = line.startsWith(u'-')   ? "\x1b[31m"_L1 // red
                                     : line.startsWith(u'+') ? "\x1b[32m"_L1 // green
                                     : line.startsWith(u'@') ? "\x1b[36m"_L1 // cyan
                                                             : ""_L1;
    return colour.isEmpty() ? line : colour + line + "\x1b[0m"_L1;
}

} // namespace

std::vector<RowPair> comparedRows(const std::vector<Row> &before, const std::vector<Row> &after)
{
    const size_t rows = std::min(before.size(), MostRows);
    const size_t columns = std::min(after.size(), MostRows);
    // The lengths of the longest common subsequences of the rows from (i, j) to the ends.
    std::vector<quint16> lengths((rows + 1) * (columns + 1));
    const auto at = [&](size_t i, size_t j) -> quint16 & { return lengths[i * (columns + 1) + j]; };
    for (size_t i = rows; i-- > 0;) {
        for (size_t j = columns; j-- > 0;)
            at(i, j) = before[i].isSameAs(after[j]) ? quint16(at(i + 1, j + 1) + 1)
                                                    : std::max(at(i + 1, j), at(i, j + 1));
    }
    std::vector<RowPair> pairs;
    ptrdiff_t coming = 0; // pairs at the end that only the second sheet has: what goes stands first
    for (size_t i = 0, j = 0; i < rows || j < columns;) {
        if (i < rows && j < columns && before[i].isSameAs(after[j])) {
            pairs.push_back({qsizetype(i++), qsizetype(j++)});
            coming = 0;
        } else if (j == columns || (i < rows && at(i + 1, j) >= at(i, j + 1))) {
            pairs.insert(pairs.end() - coming, {qsizetype(i++), -1});
        } else {
            pairs.push_back({-1, qsizetype(j++)});
            ++coming;
        }
    }
    return pairs;
}

void markChanges(Sheet &before, Sheet &after)
{
    before.changed.assign(before.rows.size(), false);
    after.changed.assign(after.rows.size(), false);
    for (const RowPair &pair : comparedRows(before.rows, after.rows)) {
        if (pair.after < 0)
            before.changed[size_t(pair.before)] = true;
        else if (pair.before < 0)
            after.changed[size_t(pair.after)] = true;
    }
}

QString unifiedDifference(const std::vector<Row> &before, const std::vector<Row> &after,
                          const TerminalDrawing &drawing, bool inColours)
{
    constexpr ptrdiff_t Context = 3;
    const std::vector<RowPair> pairs = comparedRows(before, after);
    const auto isChange = [](const RowPair &pair) { return !isEqual(pair); };
    QString text;
    const auto addLine = [&](const QString &line) {
        text += (inColours ? coloured(line) : line) + u'\n';
    };
    auto end = pairs.begin(); // of the hunk before
    while (true) {
        auto last = std::find_if(end, pairs.end(), isChange);
        if (last == pairs.end())
            return text;
        const auto begin = last - std::min(last - end, Context);
        // Changes with at most twice the context between them share a hunk.
        for (auto next = last; next != pairs.end() && next - last <= 2 * Context + 1;
             next = std::find_if(next + 1, pairs.end(), isChange))
            last = next;
        end = last + std::min(pairs.end() - last, Context + 1);
        const std::span<const RowPair> above(pairs.begin(), begin);
        const std::span<const RowPair> hunk(begin, end);
        addLine("@@ -"_L1 + rangeOf(above, hunk, &RowPair::before) + " +"_L1
                + rangeOf(above, hunk, &RowPair::after) + " @@"_L1);
        for (const RowPair &pair : hunk) {
            const QChar sign = isEqual(pair) ? u' ' : pair.after < 0 ? u'-' : u'+';
            addLine(sign
                    + drawing.drawn(pair.before >= 0 ? before[size_t(pair.before)]
                                                     : after[size_t(pair.after)]));
        }
    }
}

} // namespace preview

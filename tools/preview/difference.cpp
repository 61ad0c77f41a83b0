// SPDX-License-Identifier: MIT
#include "tools/preview/difference.h"

#include <algorithm>
#include <span>

namespace preview {

using namespace Qt::StringLiterals;

namespace {

/// The lengths of the longest common subsequences of two sheets' rows from (i, j) to the ends.
class CommonLengths
{
public:
    CommonLengths(std::span<const Row> before, std::span<const Row> after)
        : columns(after.size() + 1)
        , lengths((before.size() + 1) * columns)
    {
        for (size_t i = before.size(); i-- > 0;) {
            for (size_t j = after.size(); j-- > 0;)
                at(i, j) = before[i].isSameAs(after[j]) ? quint16(at(i + 1, j + 1) + 1)
                                                        : std::max(at(i + 1, j), at(i, j + 1));
        }
    }
    quint16 &at(size_t i, size_t j) { return lengths[i * columns + j]; }

private:
    size_t columns;
    std::vector<quint16> lengths; // at most MostRows
};

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
    const auto old = std::span(before).first(std::min(before.size(), MostRows));
    const auto present = std::span(after).first(std::min(after.size(), MostRows));
    CommonLengths lengths(old, present);
    std::vector<RowPair> pairs;
    size_t i = 0;
    size_t j = 0;
    auto addUpTo = [&, doneBefore = size_t(0), doneAfter = size_t(0)]() mutable {
        for (; doneBefore < i; ++doneBefore)
            pairs.push_back({qsizetype(doneBefore), -1});
        for (; doneAfter < j; ++doneAfter)
            pairs.push_back({-1, qsizetype(doneAfter)});
        ++doneBefore; // the equal rows that follow
        ++doneAfter;
    };
    while (i < old.size() && j < present.size()) {
        if (old[i].isSameAs(present[j])) {
            addUpTo();
            pairs.push_back({qsizetype(i++), qsizetype(j++)});
        } else {
            ++(lengths.at(i + 1, j) >= lengths.at(i, j + 1) ? i : j);
        }
    }
    i = old.size();
    j = present.size();
    addUpTo();
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

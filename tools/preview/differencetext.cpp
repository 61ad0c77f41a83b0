// SPDX-License-Identifier: MIT
#include "tools/preview/differencetext.h"

#include <algorithm>
#include <span>

namespace preview {

using namespace Qt::StringLiterals;

namespace {

constexpr size_t Context = 3;

/// A stretch of pairs from `begin` up to `end`: changes, and the context around them.
struct Hunk
{
    size_t begin;
    size_t end;
};

std::vector<Hunk> hunksOf(const std::vector<RowPair> &pairs)
{
    std::vector<Hunk> hunks;
    for (size_t i = 0; i < pairs.size(); ++i) {
        if (pairs[i].equal)
            continue;
        const size_t begin = i - std::min(i, Context);
        const size_t end = std::min(i + 1 + Context, pairs.size());
        if (!hunks.empty() && begin <= hunks.back().end)
            hunks.back().end = end;
        else
            hunks.push_back({begin, end});
    }
    return hunks;
}

qsizetype rowCount(std::span<const RowPair> pairs, qsizetype RowPair::*member)
{
    return std::ranges::count_if(pairs,
                                 [member](const RowPair &pair) { return pair.*member >= 0; });
}

/// `begin,count` of one paper's rows in a hunk, counted from 1.
QString rangeOf(std::span<const RowPair> above, std::span<const RowPair> hunk,
                qsizetype RowPair::*member)
{
    const qsizetype count = rowCount(hunk, member);
    return QString::number(rowCount(above, member) + (count > 0 ? 1 : 0)) + u','
           + QString::number(count);
}

/// The rows of a run of pairs that differ: first all that go, then all that come.
QString changedRows(std::span<const RowPair> run, const PaperPair &papers,
                    const TerminalDrawing &drawing)
{
    QString text;
    for (const RowPair &pair : run) {
        if (pair.before >= 0)
            text += u'-' + drawing.drawn(papers.before[size_t(pair.before)]) + u'\n';
    }
    for (const RowPair &pair : run) {
        if (pair.after >= 0)
            text += u'+' + drawing.drawn(papers.after[size_t(pair.after)]) + u'\n';
    }
    return text;
}

QString rowsOf(std::span<const RowPair> hunk, const PaperPair &papers,
               const TerminalDrawing &drawing)
{
    QString text;
    while (!hunk.empty()) {
        const auto isEqual = [](const RowPair &pair) { return pair.equal; };
        const auto run = size_t(std::ranges::find_if(hunk, isEqual) - hunk.begin());
        text += changedRows(hunk.first(run), papers, drawing);
        if (run < hunk.size())
            text += u' ' + drawing.drawn(papers.before[size_t(hunk[run].before)]) + u'\n';
        hunk = hunk.subspan(std::min(run + 1, hunk.size()));
    }
    return text;
}

QChar signOf(const RowPair &pair)
{
    if (pair.equal)
        return u' ';
    return pair.before < 0 ? u'>' : pair.after < 0 ? u'<' : u'|';
}

} // namespace

QString unifiedDifference(const PaperPair &papers, const TerminalDrawing &drawing)
{
    const std::vector<RowPair> pairs = pairedRows(papers.before, papers.after);
    QString text;
    for (const Hunk &hunk : hunksOf(pairs)) {
        const std::span<const RowPair> all = pairs;
        const std::span<const RowPair> rows = all.subspan(hunk.begin, hunk.end - hunk.begin);
        const std::span<const RowPair> above = all.first(hunk.begin);
        text += "@@ -"_L1 + rangeOf(above, rows, &RowPair::before) + " +"_L1
                + rangeOf(above, rows, &RowPair::after) + " @@\n"_L1;
        text += rowsOf(rows, papers, drawing);
    }
    return text;
}

QString sideBySide(const PaperPair &papers, const TerminalDrawing &drawing)
{
    qsizetype width = 0;
    for (const Row &row : papers.before)
        width = std::max(width, drawing.drawn(row).size());
    QString text;
    for (const RowPair &pair : pairedRows(papers.before, papers.after)) {
        QString line =
            pair.before < 0 ? QString() : drawing.drawn(papers.before[size_t(pair.before)]);
        line = line.leftJustified(width) + u' ' + signOf(pair);
        if (pair.after >= 0)
            line += u' ' + drawing.drawn(papers.after[size_t(pair.after)]);
        text += line + u'\n';
    }
    return text;
}

} // namespace preview

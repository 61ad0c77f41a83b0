// SPDX-License-Identifier: MIT
#pragma once

#include "tools/preview/terminaldrawing.h"

namespace preview {

/// The most rows of a document that are compared, or drawn in a picture.
constexpr size_t MostRows = 4'000;

/// A row that both of two sheets have, or one of them: its place in each, -1 where it has none.
struct RowPair
{
    qsizetype before = -1;
    qsizetype after = -1;
};

/// The rows of two sheets in order, at most MostRows of each, with as many in both as there can be;
/// what differs between those is first all that goes, then all that comes.
std::vector<RowPair> comparedRows(const std::vector<Row> &before, const std::vector<Row> &after);

/// Marks the rows that only one of the sheets has.
void markChanges(Sheet &before, Sheet &after);

/// The difference as `diff -u` prints it, with three rows around each change: `-` before what only
/// the first sheet has, `+` before what only the second has; in colours for a terminal.
QString unifiedDifference(const std::vector<Row> &before, const std::vector<Row> &after,
                          const TerminalDrawing &drawing, bool coloured);

} // namespace preview

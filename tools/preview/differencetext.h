// SPDX-License-Identifier: MIT
#pragma once

#include "tools/preview/difference.h"
#include "tools/preview/terminaldrawing.h"

namespace preview {

/// The rows of two papers.
struct PaperPair
{
    std::vector<Row> before;
    std::vector<Row> after;
};

/// The difference as `diff -u` prints it, with three rows around each change: `-` before what only
/// the first paper has, `+` before what only the second has.
QString unifiedDifference(const PaperPair &papers, const TerminalDrawing &drawing);

/// Both papers whole, side by side: `<`, `>` or `|` between them where only the first, only the
/// second or both have a row, which differs.
QString sideBySide(const PaperPair &papers, const TerminalDrawing &drawing);

} // namespace preview

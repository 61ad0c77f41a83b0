// SPDX-License-Identifier: MIT
#pragma once

#include "tools/preview/paper.h"

#include <vector>

namespace preview {

/// A row of each of two papers, side by side; -1 where one has none.
struct RowPair
{
    qsizetype before = -1;
    qsizetype after = -1;
    bool equal = false;
};

/// The rows of two papers beside each other, equal ones where there are most of them. Between
/// those, the rows that differ stand in pairs as long as both papers have some. Papers that differ
/// in more than 4,000 rows are paired from the first differing row on.
std::vector<RowPair> pairedRows(const std::vector<Row> &before, const std::vector<Row> &after);

} // namespace preview

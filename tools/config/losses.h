// SPDX-License-Identifier: MIT
#pragma once

#include "tools/config/outline.h"

namespace configtool {

/// What a file written from the configuration in the format "cfg" or "xml" lacks, or what it holds
/// otherwise than it was: none means that it reads back the same. The subject of each finding is an
/// entry of the outline.
std::vector<Finding> lossesInFormat(const Outline &outline, const QString &format);

/// The most groups within each other that a file is written for: every level indents the lines
/// below it, and a deep tree would fill the disk with blanks.
constexpr int MostLevels = 1'000;
/// Whether groups stand deeper within each other than that.
bool nestsTooDeep(const Outline &outline);

} // namespace configtool

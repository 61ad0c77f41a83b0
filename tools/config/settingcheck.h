// SPDX-License-Identifier: MIT
#pragma once

#include "tools/config/outline.h"

/// What is wrong with a configuration, and what writing it would lose. The subjects of findings are
/// entries of the outline.
namespace configtool {

/// Where the file does not say what it seems to say, and what is wrong with its settings: keys and
/// groups that nothing reads or no lookup reaches, settings that others override, values that are
/// not what their key wants, columns that do not fit the paper, a language file that does not
/// exist.
std::vector<Finding> findingsIn(const Outline &outline);

/// That nothing reads a dotted key, and which key may be meant; empty when something reads it.
QString unreadKey(const QString &key);

/// What a file written in the format "cfg" or "xml" lacks, or what it holds otherwise than it was:
/// none means that it reads back the same.
std::vector<Finding> lossesInFormat(const Outline &outline, const QString &format);

} // namespace configtool

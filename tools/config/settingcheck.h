// SPDX-License-Identifier: MIT
#pragma once

#include "tools/config/outline.h"

namespace configtool {

/// What is wrong with the settings of a configuration, whatever its form: keys and groups that
/// nothing reads or no lookup reaches, settings that others override, values that are not what
/// their key wants, columns that do not fit the paper, a language file that does not exist. The
/// subject of each finding is an entry of the outline.
std::vector<Finding> checkSettings(const Outline &outline);

/// These, and where the file does not say what it seems to say.
std::vector<Finding> findingsIn(const Outline &outline);

/// That nothing reads a dotted key, and which key may be meant; empty when something reads it.
QString unreadKey(const QString &key);

} // namespace configtool

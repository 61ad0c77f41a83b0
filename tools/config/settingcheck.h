// SPDX-License-Identifier: MIT
#pragma once

#include "tools/config/outline.h"

namespace configtool {

/// What is wrong with the settings of a configuration, whatever its form: keys and groups that
/// nothing reads or no lookup reaches, values that are not what their key wants, columns that do
/// not fit the paper, a language file that does not exist. The subject of each finding is an entry
/// of the outline.
std::vector<Finding> checkSettings(const Outline &outline);

} // namespace configtool

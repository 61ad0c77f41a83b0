// SPDX-License-Identifier: MIT
#pragma once

#include "tools/config/outline.h"

namespace configtool {

/// Reads the "cfg" form as the store does, and notes where the text is lost or goes elsewhere than
/// it seems to.
Outline readCfgOutline(const QByteArray &content);

} // namespace configtool

// SPDX-License-Identifier: MIT
#pragma once

#include "tools/config/outline.h"

namespace configtool {

/// Reads the XML form: a group per element, a setting per attribute.
Outline readXmlOutline(const QByteArray &content);

} // namespace configtool

// SPDX-License-Identifier: MIT
#pragma once

#include "tools/command.h"

/// `zentaro preview`: shows what will be printed, on the terminal or in a picture.
namespace preview {

/// Runs the command.
int run(const tools::Call &call);

} // namespace preview

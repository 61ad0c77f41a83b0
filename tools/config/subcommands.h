// SPDX-License-Identifier: MIT
#pragma once

#include "tools/command.h"

/// The command `zentaro config` and those of its sub-commands that write, a function each; all
/// answer an exit status.
namespace configtool {

int run(const tools::Call &call);

int setValues(const tools::Call &call);
int unsetValues(const tools::Call &call);
int convert(const tools::Call &call);
int init(const tools::Call &call);

} // namespace configtool

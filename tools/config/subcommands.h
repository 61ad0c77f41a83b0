// SPDX-License-Identifier: MIT
#pragma once

#include "tools/command.h"

/// The sub-commands of `zentaro config`, a function each; all answer an exit status.
namespace configtool {

int getValues(const tools::Call &call);
int listValues(const tools::Call &call);
int showTree(const tools::Call &call);
int convert(const tools::Call &call);
int check(const tools::Call &call);
int edit(const tools::Call &call);
int init(const tools::Call &call);

/// `zentaro config` itself.
int run(const tools::Call &call);

} // namespace configtool

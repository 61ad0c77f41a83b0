// SPDX-License-Identifier: MIT
#pragma once

#include "tools/command.h"

/// `zentaro queue`: the print scheduler's queues of receipt printers, through the scheduler's own
/// commands, which get names and addresses as arguments and are shown with `--verbose`.
namespace queuetool {

int run(const tools::Call &call);

} // namespace queuetool

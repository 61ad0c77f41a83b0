// SPDX-License-Identifier: MIT
#pragma once

#include "tools/command.h"
#include "tools/finding.h"

class QIODevice;

/// `zentaro check`: tells what is wrong with print requests.
namespace requestcheck {

/// What is wrong with a request, in the order of its text; in constant memory. The request is read
/// and printed as by the print run, with the process's configuration and translation, but nothing
/// is written. `isConfigured`: whether there is a configuration.
std::vector<tools::Finding> check(QIODevice &request, bool isConfigured);

int run(const tools::Call &call);

} // namespace requestcheck

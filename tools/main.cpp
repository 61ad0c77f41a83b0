// SPDX-License-Identifier: MIT
#include "tools/command.h"

int main(int argc, char **argv) { return tools::runCompanion(argc, argv, nullptr); }

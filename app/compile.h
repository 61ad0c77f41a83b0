// SPDX-License-Identifier: MIT
#pragma once

/// One print run: reads the print request argv[1] and writes the print file argv[2]; a further word
/// is ignored, any other count of words prints the usage line. What there is to tell stands in
/// lines on standard output; nothing of the run's is written to standard error.
void compile(int argc, char **argv);

// SPDX-License-Identifier: MIT
#pragma once

/// One print run: reads the print request argv[1] and writes the print file argv[2]; a further word
/// is ignored, any other count of words prints the usage line. Whatever goes wrong is told in lines
/// on standard output, and nothing is ever written to standard error.
void compile(int argc, char **argv);

// SPDX-License-Identifier: MIT
#include "app/compile.h"

namespace {

/// What `zentaro --version` finds in the program, as what(1) does.
[[gnu::used]] const char version[] = "@(#) zentaro-print " ZENTARO_VERSION;

} // namespace

int main(int argc, char **argv)
{
    compile(argc, argv);
    return 0;
}

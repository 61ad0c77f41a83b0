// SPDX-License-Identifier: MIT
#include "app/compile.h"

int main(int argc, char **argv)
{
    compile(argc, argv);
    return 0;
}

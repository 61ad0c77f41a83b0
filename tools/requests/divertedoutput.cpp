// SPDX-License-Identifier: MIT
#include "tools/requests/divertedoutput.h"

#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace tools {

DivertedOutput::DivertedOutput(Target target)
{
    std::fflush(stdout);
    output = dup(STDOUT_FILENO);
    const int nowhere = target == Target::Nowhere ? ::open("/dev/null", O_WRONLY) : -1;
    dup2(nowhere >= 0 ? nowhere : STDERR_FILENO, STDOUT_FILENO);
    if (nowhere >= 0)
        ::close(nowhere);
}

DivertedOutput::~DivertedOutput()
{
    std::fflush(stdout);
    if (output < 0)
        return;
    dup2(output, STDOUT_FILENO);
    ::close(output);
}

} // namespace tools

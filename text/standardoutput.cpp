// SPDX-License-Identifier: MIT
#include "text/standardoutput.h"

#include <cstdio>

#include <fcntl.h>
#include <unistd.h>

namespace text {

void printLine(QByteArrayView line)
{
    std::fwrite(line.data(), 1, size_t(line.size()), stdout);
    std::fputc('\n', stdout);
    std::fflush(stdout);
}

void reserveStandardStreams()
{
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (fcntl(stream, F_GETFD) == -1)
            open("/dev/null", O_RDWR); // takes the lowest number that is free, which is this one
    }
}

} // namespace text

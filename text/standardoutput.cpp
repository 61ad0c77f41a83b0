// SPDX-License-Identifier: MIT
#include "text/standardoutput.h"

#include <fcntl.h>
#include <unistd.h>

namespace text {

std::FILE *diagnostics = stdout;

void printLine(QByteArrayView line)
{
    if (!diagnostics)
        return;
    std::fwrite(line.data(), 1, size_t(line.size()), diagnostics);
    std::fputc('\n', diagnostics);
    std::fflush(diagnostics);
}

void reserveStandardStreams()
{
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (fcntl(stream, F_GETFD) == -1)
            open("/dev/null", O_RDWR); // takes the lowest number that is free, which is this one
    }
}

} // namespace text

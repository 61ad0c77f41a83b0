// SPDX-License-Identifier: MIT
#include "text/standardoutput.h"

#include <cstdio>

namespace text {

void printLine(QByteArrayView line)
{
    std::fwrite(line.data(), 1, size_t(line.size()), stdout);
    std::fputc('\n', stdout);
    std::fflush(stdout);
}

} // namespace text

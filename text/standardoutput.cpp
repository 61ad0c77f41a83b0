// SPDX-License-Identifier: MIT
#include "text/standardoutput.h"

#include <cstdio>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

namespace text {

namespace {

void writeLine(QByteArrayView line, std::FILE *file)
{
    std::fwrite(line.data(), 1, size_t(line.size()), file);
    std::fputc('\n', file);
    std::fflush(file);
}

constinit LineSink::Take sink = nullptr; // standard output

} // namespace

void printLine(QByteArrayView line) { sink ? sink(line) : writeLine(line, stdout); }

LineSink::LineSink(Take take)
    : before(std::exchange(sink, take))
{
}

LineSink::~LineSink() { sink = before; }

void LineSink::toErrors(QByteArrayView line) { writeLine(line, stderr); }

void reserveStandardStreams()
{
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (fcntl(stream, F_GETFD) == -1)
            open("/dev/null", O_RDWR); // takes the lowest number that is free, which is this one
    }
}

} // namespace text

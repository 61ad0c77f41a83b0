// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>

namespace text {

/// Writes one diagnostic line, `line` and a line end, to standard output and lets it out at once.
/// Where standard output takes nothing the line is lost, which is no failure.
void printLine(QByteArrayView line);

/// As long as it lives, takes the lines of the process in place of standard output; of several, the
/// one made last.
class LineSink
{
public:
    using Take = void (*)(QByteArrayView line);

    explicit LineSink(Take take);
    Q_DISABLE_COPY_MOVE(LineSink)
    ~LineSink();

    // Ways to take them.
    static void drop(QByteArrayView) {}
    static void toErrors(QByteArrayView line);

private:
    const Take before;
};

/// Opens the standard streams that whoever started the process has closed, on the null device: a
/// file opened later would take the place of standard output and get the diagnostic lines.
void reserveStandardStreams();

} // namespace text

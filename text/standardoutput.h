// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>

namespace text {

/// Writes one diagnostic line, `line` and a line end, to standard output and lets it out at once.
/// A standard output that takes nothing is no failure: the line is lost.
void printLine(QByteArrayView line);

/// Opens the standard streams that whoever started the process has closed, on the null device: a
/// file opened later would take the place of standard output and get the diagnostic lines.
void reserveStandardStreams();

} // namespace text

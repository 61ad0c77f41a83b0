// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QScopedValueRollback>

#include <cstdio>

namespace text {

/// Where diagnostic lines go: standard output, unless a QScopedValueRollback puts another stream
/// here, or null, which drops them.
extern std::FILE *diagnostics;

/// Writes one diagnostic line, `line` and a line end, and lets it out at once. Where the stream
/// takes nothing the line is lost, which is no failure.
void printLine(QByteArrayView line);

/// Opens the standard streams that whoever started the process has closed, on the null device: a
/// file opened later would take the place of standard output and get the diagnostic lines.
void reserveStandardStreams();

} // namespace text

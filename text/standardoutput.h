// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>

namespace text {

/// Writes one diagnostic line, `line` and a line end, to standard output and lets it out at once.
/// A standard output that takes nothing is no failure: the line is lost.
void printLine(QByteArrayView line);

} // namespace text

// SPDX-License-Identifier: MIT
#pragma once

#include "tools/preview/paper.h"

namespace preview {

/// Draws rows of paper as lines of text. What a terminal does not show as one column is drawn as a
/// sign of its own and named behind the paper; nothing of a print file commands the terminal.
class TerminalDrawing
{
public:
    /// For a terminal of this codec, null meaning UTF-8; one without frames gets ASCII. With a
    /// `lastRequestLine` over 0, each row begins with the line that it comes from.
    TerminalDrawing(QTextCodec *codec, qint64 lastRequestLine);

    /// The row, without a line end.
    QString drawn(const Row &row) const;

private:
    QString cellsOf(CellsView cells) const;
    QString notesOn(const Row &row) const;
    bool isShown(char32_t c) const;

    QTextCodec *const codec;
    const bool frames;
    const qsizetype numberWidth; // 0: no line numbers
};

/// The difference as `diff -u` prints it, with three rows around each change: `-` before what only
/// the first sheet has, `+` before what only the second has; in colours for a terminal.
QString unifiedDifference(const std::vector<Row> &before, const std::vector<Row> &after,
                          const TerminalDrawing &drawing, bool coloured);

} // namespace preview

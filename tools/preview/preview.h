// SPDX-License-Identifier: MIT
#pragma once

#include "tools/command.h"
#include "tools/preview/paper.h"

/// `zentaro preview`: shows what will be printed, on the terminal or in a picture.
namespace preview {

/// Runs the command.
int run(const tools::Call &call);

/// The largest file, of requests and of what they print, that is held in memory: bytes.
constexpr qint64 MostBytes = qint64(64) * 1'024 * 1'024;

/// Whether a file is a print request, whatever its encoding: its first character other than white
/// space is `<`.
bool isRequest(const QByteArray &bytes);

/// Prints a request into memory, by the device of the print run, with the configuration and the
/// translation that are in use. What the print run tells goes where text::LineSink says. With
/// `traceElements` the origins know the lines of the request.
Document render(const QByteArray &request, bool traceElements);

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

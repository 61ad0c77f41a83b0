// SPDX-License-Identifier: MIT
#pragma once

#include "tools/preview/printfile.h"
#include "tools/preview/rendering.h"

#include <deque>

namespace preview {

/// A row of the paper as it is drawn.
struct Row
{
    enum class Kind {
        TopEdge, ///< a section is opened
        TornTop, ///< something is printed outside of a section
        Line,
        BottomEdge, ///< a section is closed
        TornBottom, ///< a section ends without being closed
    };

    Kind kind = Kind::Line;
    QString mark;           ///< stands before the paper: the section's command, or `!`
    Cells text;             ///< on the paper, and beyond its edge
    int width = 0;          ///< of the paper, in cells
    QString note;           ///< stands behind the paper, in one line
    qint64 requestLine = 0; ///< where it comes from; 0 where that is unknown

    /// The cells beyond the paper's edge.
    qsizetype overrun() const { return qMax<qsizetype>(qsizetype(text.size()) - width, 0); }
};

/// The characters in a line of the device's paper, where nothing tells the width.
constexpr int DevicePaperWidth = 32;

/// The most characters in a line of a paper that is drawn; a wider one is drawn so.
constexpr int MostPaperWidth = 500;

/// The width of the first rule of `=` in the print file, looked for in its first 64 KiB.
std::optional<int> widthOfRule(QIODevice &printFile, QTextCodec *codec);

/// Draws a print file on paper, row by row, in constant memory.
class Paper
{
public:
    /// The width is `width` cells; where that is 0, what `trace` says, or that of the first rule in
    /// the file, or the device's. `printFile` is open, not sequential, and borrowed like `trace`.
    Paper(QIODevice &printFile, QTextCodec *codec, const Trace &trace, int width);

    /// The next row; nothing after the last one.
    std::optional<Row> next();

private:
    enum class Section { None, Listing, Fiscal };

    void take(const PrintLine &line);
    void takeEmpty(const PrintLine &line);
    void open(Section kind, const PrintLine &line);
    void close(Section kind, const PrintLine &line);
    void tearOff();
    void print(const PrintLine &line, const QString &note);
    void printFiscal(const PrintLine &line);
    Row &add(Row::Kind kind, const PrintLine &line); ///< the row is the last one until the next

    PrintFile file;
    const Trace &trace;
    int givenWidth;
    int otherWidth;
    std::optional<PrintLine> ahead;
    std::deque<Row> rows;
    Section section = Section::None;
    int lastWidth = 0; // of the row before
    bool torn = false; // paper is open, without a section
};

} // namespace preview

// SPDX-License-Identifier: MIT
#pragma once

#include "tools/paperrules.h"
#include "tools/preview/printfile.h"

#include <QByteArray>

#include <functional>
#include <optional>

namespace preview {

/// Where the parts of a print file come from. Both lists are in the order of the file.
struct Trace
{
    /// What a tag of the request printed: the bytes up to `end`.
    struct Element
    {
        qint64 end;
        qint64 requestLine; ///< from 1: where the tag begins
    };
    struct Section
    {
        qint64 begin;   ///< bytes of the print file before it
        int paperWidth; ///< characters in a line, by the settings of its document
    };

    std::vector<Element> elements; ///< only where asked for
    std::vector<Section> sections;

    /// The line of the request that printed the byte at `offset`; 0 where that is unknown.
    qint64 requestLineAt(qint64 offset) const;
    /// The paper's width at `offset`; nothing before the first section.
    std::optional<int> paperWidthAt(qint64 offset) const;
};

/// A print file, and what is known of where it comes from.
struct Document
{
    QByteArray printFile;
    QTextCodec *codec = nullptr; ///< of the print file; null: UTF-8
    Trace trace;                 ///< empty where no request is known
    QString fault;               ///< why the print file is not whole; empty when it is
};

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

    CellsView onPaper() const { return CellsView(text).substr(0, size_t(width)); }
    CellsView beyond() const { return CellsView(text).substr(onPaper().size()); }
    /// The cells beyond the paper's edge that should not be there.
    qsizetype overrun() const { return tools::beyondEdge(text, width); }
    /// The paper's own width is no difference of a row.
    bool isSameAs(const Row &other) const
    {
        return kind == other.kind && mark == other.mark && text == other.text && note == other.note;
    }
};

/// The rows of one document, as pictures and windows show them.
struct Sheet
{
    QString title;
    std::vector<Row> rows;
    std::vector<bool> changed; ///< of each row; empty: none
};

/// The paper's measures.
struct PaperSize
{
    int dpi = 203;
    int widthMm = 80; ///< of which the printer leaves 4 mm white at each side, 5 mm of 58
};

enum class PictureFormat { Png, Svg, Pdf };

/// A picture of sheets: where it goes, and how it looks.
struct PictureOptions
{
    QString fileName; ///< empty: no picture
    PictureFormat format = PictureFormat::Png;
    PaperSize paper;
    size_t perRow = 1; ///< sheets beside each other; not 0
};

/// The characters in a line of the device's paper, where nothing tells the width.
constexpr int DevicePaperWidth = 32;

/// The most characters in a line of a paper that is drawn; a wider one is drawn so.
constexpr int MostPaperWidth = 500;

/// Draws a document row by row, until `take` answers false. The paper is `columns` cells wide;
/// where that is 0, as the trace says; where that is empty, as wide as the first rule of `=` in the
/// first 64 KiB of the file, else as its longest line, at least the device's.
void drawRows(const Document &document, int columns, const std::function<bool(Row)> &take);

/// The first rows of a document, `most` of them.
std::vector<Row> rowsOf(const Document &document, int columns, size_t most);

} // namespace preview

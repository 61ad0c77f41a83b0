// SPDX-License-Identifier: MIT
#pragma once

#include "tools/preview/paper.h"

#include <QPoint>
#include <QRect>
#include <QSize>

#include <vector>

/// Pictures of paper as boxes and characters on a grid, for whoever draws them.
namespace preview {

/// What is drawn says what colour it has.
enum class Tone {
    Desk,    ///< around the paper
    Sheet,   ///< the paper
    Shadow,  ///< its edges
    Beyond,  ///< behind text that runs over the paper's edge
    Changed, ///< behind a line that differs
    Ink,     ///< what is printed
    Overrun, ///< what is printed beyond the edge
    Remark,  ///< what is said beside the paper
};

struct Box
{
    QRect place; ///< pixels
    Tone tone;
};

/// Characters side by side, each in a cell of its own that is twice as high as wide.
struct Run
{
    QPoint at; ///< pixels: the upper left corner of the first cell
    int cellWidth;
    Cells text;
    Tone tone;
};

struct Picture
{
    QSize size; ///< pixels
    int dpi;    ///< pixels in an inch of the paper
    std::vector<Box> boxes;
    std::vector<Run> runs;
};

/// The rows of one document, and what is written above it.
struct Sheet
{
    QString title;
    std::vector<Row> rows;
    std::vector<bool> changed; ///< of each row; empty: none
};

enum class PictureFormat { Png, Svg, Pdf };

/// The format that a file name ends in, in any letter case; nothing for another ending.
std::optional<PictureFormat> pictureFormatOf(const QString &fileName);

/// The paper's measures.
struct PaperSize
{
    int dpi = 203;
    int widthMm = 80; ///< of which the printer leaves 4 mm white at each side, 5 mm of 58
};

/// Draws the documents in rows of `perRow`, which is not 0, beside each other. Cells are whole
/// pixels: as wide as the paper's printed width allows for the document's columns.
class PictureLayout
{
public:
    /// The limits of a picture: its sides, and its area (160 MB while it is drawn).
    static constexpr int MostPixelsOfSide = 32'000;
    static constexpr qint64 MostPixels = 40'000'000;
    static constexpr size_t MostRows = 4'000; ///< of a document
    static constexpr int LeastCellWidth = 3;  ///< pixels, below which nothing can be read

    PictureLayout(const PaperSize &paper, const std::vector<Sheet> &sheets, size_t perRow);

    /// Why there is no such picture: empty when there is.
    QString fault() const;
    Picture picture() const;

private:
    /// The measures of one document, in pixels but for the counts of cells.
    struct Grid
    {
        int cell = 1; ///< width of a cell; its height is twice that
        int columns = 1;
        int marks = 0;  ///< cells before the paper
        int beyond = 0; ///< what is drawn behind the paper's edge
        int margin = 0; ///< of the paper, at each side

        int left() const { return (marks + 2) * cell; }
        int paperWidth() const { return columns * cell + 2 * margin; }
        int width() const { return left() + paperWidth() + beyond + 2 * cell; }
    };

    Grid gridOf(const Sheet &sheet) const;
    int heightOfRow(size_t first) const;
    void draw(Picture &picture, size_t index, QPoint corner) const;
    static void drawPaper(Picture &picture, const Row &row, const Grid &grid, QPoint at);
    static void drawText(Picture &picture, const Row &row, const Grid &grid, QPoint at);

    const PaperSize paper;
    const std::vector<Sheet> &sheets;
    const size_t perRow;
    std::vector<Grid> grids;  // of each document
    std::vector<int> columns; // the width of each column of documents, in pixels
    QSize size{0, 0};
};

/// The same in SVG, each character at a place of its own.
QByteArray svgOf(const Picture &picture);

/// The colour of a tone, as `#rrggbb`.
QLatin1StringView colourOf(Tone tone);

} // namespace preview

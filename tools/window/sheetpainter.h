// SPDX-License-Identifier: MIT
#pragma once

#include "tools/preview/preview.h"

#include <QColor>
#include <QFontMetricsF>
#include <QHash>
#include <QPainter>

namespace preview {

/// The family that sheets are written in; empty when there is no usable monospaced font.
QString monospacedFamily();

/// What a sheet is painted with: each ground has one colour of text.
struct Colours
{
    struct Ground
    {
        QColor ground, ink;
    };

    Ground desk{0xE4E2DD, 0x66645F};    ///< around the paper, and what is said there
    Ground paper{0xFFFFFF, 0x1B1B1B};   ///< what is printed
    Ground changed{0xFFF0B8, 0x1B1B1B}; ///< a line that differs
    Ground beyond{0xFBDADA, 0xB00020};  ///< text that runs over the paper's edge
    QColor edge{0xB4B2AD};              ///< of the paper
};

/// Paints the rows of one document on paper. Characters stand in cells of whole pixels, twice as
/// high as wide: as wide as the paper's printed width allows for the document's columns.
class SheetPainter
{
public:
    /// What is around the paper: what is said of its lines; that and the title; only what is said,
    /// without the commands of sections, so that a faultless sheet is as large as its paper.
    enum class Frame { Notes, Title, Bare };

    /// The sheet is borrowed. Sizes are pixels of the paper's dots per inch.
    SheetPainter(const Sheet &sheet, const PaperSize &paper, Frame frame);

    QSize size() const;
    int cellWidth() const { return cell; }
    /// Paints the sheet at the origin. Rows outside of the painter's clip are left out.
    void paint(QPainter &painter, const Colours &colours) const;

private:
    struct Glyph
    {
        enum class Kind { Plain, Odd, Missing };
        Kind kind;
        QRectF ink; ///< around its origin
    };

    /// What stands before a row's paper and behind it.
    struct Aside
    {
        Cells mark, note;
        int offset; ///< of the note, from the paper's edge
    };

    Aside asideOf(const Row &row) const;
    int top(size_t row) const { return head + int(row) * 2 * cell; }
    void paintPaper(QPainter &painter, const Colours &colours, size_t first, size_t end) const;
    void paintRow(QPainter &painter, const Colours &colours, size_t index) const;
    void write(QPainter &painter, QPointF at, CellsView text, const QColor &colour) const;
    void writeOdd(QPainter &painter, QPointF at, char32_t c) const;
    void writeNumber(QPainter &painter, QPointF corner, char32_t c) const;
    Glyph glyphOf(char32_t c) const;

    const Sheet &sheet;
    const Frame frame;
    // Pixels:
    int cell = 1;
    int paperWidth = 0;
    int margin = 0; // of the paper, at each side
    int left = 0;   // of the paper
    int head = 0;   // above the first row
    int foot = 0;
    int right = 0; // of the paper's edge
    int line = 1;  // width of an edge

    QFont font;
    QFontMetricsF metrics;
    double baseline = 0; // of text, below the top of its row
    mutable QHash<char32_t, Glyph> glyphs;
    std::vector<Aside> asides; // of the rows
};

/// Draws the sheets into a file, in rows beside each other; each row is a page of a PDF. The file
/// is replaced when the new one is complete. Answers why it could not be written, and an empty text
/// when it was. Needs a QGuiApplication, and no display.
QString writePicture(const std::vector<Sheet> &sheets, const PictureOptions &options);

} // namespace preview

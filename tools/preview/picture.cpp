// SPDX-License-Identifier: MIT
#include "tools/preview/picture.h"

#include <QStringList>

#include <algorithm>
#include <array>
#include <utility>

namespace preview {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array<std::pair<QLatin1StringView, PictureFormat>, 3> endings = {{
    {".png"_L1, PictureFormat::Png},
    {".svg"_L1, PictureFormat::Svg},
    {".pdf"_L1, PictureFormat::Pdf},
}};

constexpr size_t MostRemarkCells = 60;

/// What is written around the paper loses its end where it is long.
Cells shortened(const Cells &text)
{
    return text.size() > MostRemarkCells ? text.substr(0, MostRemarkCells - 1) + U"…" : text;
}

int pixels(double millimetres, int dpi)
{
    constexpr double MillimetresOfInch = 25.4;
    return int(millimetres * dpi / MillimetresOfInch);
}

/// What the printer reaches of the paper's width: 72 mm of 80, 48 mm of 58.
int printedWidth(const PaperSize &paper)
{
    constexpr int WideMm = 80;
    return pixels(paper.widthMm - (paper.widthMm >= WideMm ? 8 : 10), paper.dpi);
}

/// The cells of a row beyond the paper that a picture shows: as many as are on it.
CellsView shownOverrun(const Row &row)
{
    const CellsView text = row.text;
    const CellsView beyond = text.substr(text.size() - size_t(row.overrun()));
    return beyond.substr(0, size_t(row.width));
}

Cells noteOf(const Row &row)
{
    QStringList parts;
    if (row.overrun() > 0)
        parts.append(u'+' + QString::number(row.overrun()));
    if (!row.note.isEmpty())
        parts.append(row.note);
    for (const char32_t c : row.text) {
        if (drawable(c) != c)
            parts.append(numberOf(c));
        if (parts.size() > qsizetype(MostRemarkCells))
            break; // more than is shown
    }
    return shortened(cellsOf(parts.join(u' ')));
}

Cells markOf(const Row &row)
{
    const QString number = row.requestLine > 0 ? QString::number(row.requestLine) : QString();
    return cellsOf(number + (number.isEmpty() || row.mark.isEmpty() ? u""_s : u" "_s) + row.mark);
}

/// How far behind the paper's edge a row's note begins, in pixels.
int beyondPaper(const Row &row, int columns, int cell, int margin)
{
    const int overrun = (row.width + int(shownOverrun(row).size()) - columns) * cell - margin;
    return std::max(row.overrun() > 0 ? overrun : 0, 0) + (noteOf(row).empty() ? 0 : cell);
}

} // namespace

std::optional<PictureFormat> pictureFormatOf(const QString &fileName)
{
    for (const auto &[ending, format] : endings) {
        if (fileName.endsWith(ending, Qt::CaseInsensitive))
            return format;
    }
    return std::nullopt;
}

PictureLayout::PictureLayout(const PaperSize &paper, const std::vector<Sheet> &sheets,
                             size_t perRow)
    : paper(paper)
    , sheets(sheets)
    , perRow(perRow)
{
    constexpr int TooHigh = 1'000'000'000; // and no higher, for the sum to remain a number
    columns.resize(std::min(perRow, sheets.size()));
    for (size_t i = 0; i < sheets.size(); ++i) {
        grids.push_back(gridOf(sheets[i]));
        columns[i % perRow] = std::max(columns[i % perRow], grids[i].width());
    }
    for (const int column : columns)
        size.rwidth() += column;
    for (size_t first = 0; first < sheets.size(); first += perRow)
        size.setHeight(std::min(size.height() + heightOfRow(first), TooHigh));
}

QString PictureLayout::fault() const
{
    const auto tooLong = [](const Sheet &sheet) { return sheet.rows.size() > MostRows; };
    if (std::ranges::any_of(sheets, tooLong))
        return u"a document has more than %1 lines, the most of a picture"_s.arg(MostRows);
    const auto tooSmall = [](const Grid &grid) { return grid.cell < LeastCellWidth; };
    if (std::ranges::any_of(grids, tooSmall))
        return u"the characters would be too small to be read: raise --dpi"_s;
    if (size.width() <= MostPixelsOfSide && size.height() <= MostPixelsOfSide
        && qint64(size.width()) * size.height() <= MostPixels)
        return {};
    return u"the picture would have %1 by %2 pixels, more than %3 at a side or %4 in all: lower "
           "--dpi, or preview less at a time"_s.arg(size.width())
               .arg(size.height())
               .arg(MostPixelsOfSide)
               .arg(MostPixels);
}

Picture PictureLayout::picture() const
{
    Picture picture{size, paper.dpi, {{QRect(QPoint(), size), Tone::Desk}}, {}};
    QPoint corner;
    for (size_t i = 0; i < sheets.size(); ++i) {
        draw(picture, i, corner);
        corner.rx() += columns[i % perRow];
        if ((i + 1) % perRow == 0)
            corner = {0, corner.y() + heightOfRow(i + 1 - perRow)};
    }
    return picture;
}

PictureLayout::Grid PictureLayout::gridOf(const Sheet &sheet) const
{
    Grid grid;
    grid.columns = sheet.rows.empty() ? DevicePaperWidth : 1;
    for (const Row &row : sheet.rows) {
        grid.columns = std::max(grid.columns, row.width);
        grid.marks = std::max(grid.marks, int(markOf(row).size()));
    }
    grid.cell = std::max(printedWidth(paper) / grid.columns, 1);
    grid.margin = (pixels(paper.widthMm, paper.dpi) - grid.columns * grid.cell) / 2;
    const int title = int(shortened(cellsOf(sheet.title)).size()) * grid.cell;
    grid.beyond = std::max(title - grid.paperWidth(), 0);
    for (const Row &row : sheet.rows)
        grid.beyond = std::max(grid.beyond, beyondPaper(row, grid.columns, grid.cell, grid.margin)
                                                + int(noteOf(row).size()) * grid.cell);
    return grid;
}

/// Of the documents from `first` on that stand beside each other.
int PictureLayout::heightOfRow(size_t first) const
{
    int height = 0;
    for (size_t i = first; i < std::min(first + perRow, sheets.size()); ++i) {
        const int lines = int(sheets[i].rows.size()) + (sheets[i].title.isEmpty() ? 2 : 4);
        height = std::max(height, lines * 2 * grids[i].cell);
    }
    return height;
}

void PictureLayout::draw(Picture &picture, size_t index, QPoint corner) const
{
    const Sheet &sheet = sheets[index];
    const Grid &grid = grids[index];
    const int height = 2 * grid.cell;
    QPoint at(corner.x() + grid.left(), corner.y() + height);
    if (!sheet.title.isEmpty()) {
        picture.runs.push_back({at, grid.cell, shortened(cellsOf(sheet.title)), Tone::Remark});
        at.ry() += height + grid.cell;
    }
    for (size_t i = 0; i < sheet.rows.size(); ++i, at.ry() += height) {
        drawPaper(picture, sheet.rows[i], grid, at);
        if (i < sheet.changed.size() && sheet.changed[i])
            picture.boxes.push_back(
                {{at.x() + 1, at.y(), grid.paperWidth() - 2, height}, Tone::Changed});
        drawText(picture, sheet.rows[i], grid, at);
    }
}

/// The paper behind one row: `at` is its left edge, at the top of the row.
void PictureLayout::drawPaper(Picture &picture, const Row &row, const Grid &grid, QPoint at)
{
    const int height = 2 * grid.cell;
    const int width = grid.paperWidth();
    const bool begins = row.kind == Row::Kind::TopEdge || row.kind == Row::Kind::TornTop;
    const bool ends = row.kind == Row::Kind::BottomEdge || row.kind == Row::Kind::TornBottom;
    const bool torn = row.kind == Row::Kind::TornTop || row.kind == Row::Kind::TornBottom;
    const int top = at.y() + (begins ? grid.cell : 0);
    const int bottom = at.y() + (ends ? grid.cell : height);
    picture.boxes.push_back({{at.x(), top, width, bottom - top}, Tone::Sheet});
    picture.boxes.push_back({{at.x(), top, 1, bottom - top}, Tone::Shadow});
    picture.boxes.push_back({{at.x() + width - 1, top, 1, bottom - top}, Tone::Shadow});
    if (!begins && !ends)
        return;
    const int edge = begins ? top : bottom - 1;
    if (!torn)
        picture.boxes.push_back({{at.x(), edge, width, 1}, Tone::Shadow});
    const int tooth = std::max(grid.cell / 2, 2);
    for (int x = 0; torn && x + tooth <= width; x += 2 * tooth)
        picture.boxes.push_back(
            {{at.x() + x, begins ? edge : edge - tooth + 1, tooth, tooth}, Tone::Desk});
}

void PictureLayout::drawText(Picture &picture, const Row &row, const Grid &grid, QPoint at)
{
    const auto add = [&](int x, const Cells &text, Tone tone) {
        if (!text.empty())
            picture.runs.push_back({{at.x() + x, at.y()}, grid.cell, text, tone});
    };
    const Cells mark = markOf(row);
    add(-(int(mark.size()) + 1) * grid.cell, mark, Tone::Remark);
    add(grid.margin, row.text.substr(0, row.text.size() - size_t(row.overrun())), Tone::Ink);
    const Cells overrun(shownOverrun(row));
    const int edge = grid.margin + row.width * grid.cell;
    if (!overrun.empty())
        picture.boxes.push_back(
            {{at.x() + edge, at.y(), int(overrun.size()) * grid.cell, 2 * grid.cell},
             Tone::Beyond});
    add(edge, overrun, Tone::Overrun);
    add(grid.paperWidth() + beyondPaper(row, grid.columns, grid.cell, grid.margin), noteOf(row),
        Tone::Remark);
}

} // namespace preview

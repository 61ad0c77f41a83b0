// SPDX-License-Identifier: MIT
#include "tools/window/sheetpainter.h"

#include <QRawFont>

namespace preview {

using namespace Qt::StringLiterals;

namespace {

constexpr size_t MostNoteCells = 60;

/// What is written around the paper loses its end where it is long.
Cells shortened(const Cells &text)
{
    return text.size() > MostNoteCells ? text.substr(0, MostNoteCells - 1) + U"…" : text;
}

int pixels(double millimetres, int dpi)
{
    constexpr double MillimetresOfInch = 25.4;
    return int(millimetres * dpi / MillimetresOfInch);
}

/// The cells of a row beyond the paper that are shown: as many as are on it.
CellsView shownBeyond(const Row &row) { return row.beyond().substr(0, size_t(row.width)); }

/// The font whose characters are as wide as the cell, and spaced to fill it.
QFont fontOf(int cell)
{
    constexpr int Large = 1'000;
    QFont font(monospacedFamily());
    font.setStyleStrategy(
        QFont::StyleStrategy(QFont::PreferAntialias | QFont::NoSubpixelAntialias));
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setPixelSize(Large);
    const double advance = QFontMetricsF(font).horizontalAdvance(u'0');
    font.setPixelSize(std::max(int(Large * cell / std::max(advance, 1.0)), 1));
    font.setLetterSpacing(QFont::PercentageSpacing,
                          100 * cell / QFontMetricsF(font).horizontalAdvance(u'0'));
    return font;
}

} // namespace

QString monospacedFamily()
{
    static const QString name = [] {
        QFont font;
        font.setFamilies({u"DejaVu Sans Mono"_s, u"Liberation Mono"_s, u"monospace"_s});
        const QRawFont found = QRawFont::fromFont(font);
        // Without any font the toolkit still finds one of boxes, which has no tables.
        return found.fontTable("cmap").isEmpty() ? QString() : found.familyName();
    }();
    return name;
}

SheetPainter::SheetPainter(const Sheet &sheet, const PaperSize &paper, Frame frame)
    : sheet(sheet)
    , frame(frame)
    , paperWidth(pixels(paper.widthMm, paper.dpi))
    , line(std::max(paper.dpi / PaperSize().dpi, 1))
    , metrics(font)
{
    int columns = sheet.rows.empty() ? DevicePaperWidth : 1;
    for (const Row &row : sheet.rows)
        columns = std::max(columns, row.width);
    constexpr int WideMm = 80;
    const int printed = pixels(paper.widthMm - (paper.widthMm >= WideMm ? 8 : 10), paper.dpi);
    cell = std::max(printed / columns, 1);
    margin = (paperWidth - columns * cell) / 2;
    font = fontOf(cell);
    metrics = QFontMetricsF(font);
    baseline = (2 * cell - metrics.descent() + metrics.ascent()) / 2;

    int marks = 0;
    for (const Row &row : sheet.rows) {
        const auto &[mark, note, offset] = asides.emplace_back(asideOf(row));
        marks = std::max(marks, int(mark.size()));
        right = std::max(right, offset + int(note.size()) * cell);
    }
    const int border = frame == Frame::Bare ? 0 : 2 * cell;
    left = marks > 0 ? (marks + 2) * cell : border;
    head = foot = border;
    if (frame == Frame::Title) {
        const int title = int(shortened(cellsOf(sheet.title)).size()) * cell;
        right = std::max(right, title - paperWidth);
        head += 3 * cell;
        foot += cell;
    }
    right += right > 0 ? 2 * cell : border;
}

QSize SheetPainter::size() const
{
    return {left + paperWidth + right, top(std::max<size_t>(sheet.rows.size(), 1)) + foot};
}

SheetPainter::Aside SheetPainter::asideOf(const Row &row) const
{
    QStringList mark;
    if (row.requestLine > 0)
        mark.append(QString::number(row.requestLine));
    if (!row.mark.isEmpty() && (frame != Frame::Bare || row.kind == Row::Kind::Line))
        mark.append(row.mark);
    QStringList note;
    if (row.overrun() > 0)
        note.append(u'+' + QString::number(row.overrun()));
    if (!row.note.isEmpty())
        note.append(row.note);
    for (const char32_t c : row.text) {
        if (drawable(c) != c || glyphOf(c).kind == Glyph::Kind::Missing)
            note.append(numberOf(c));
        if (note.size() > qsizetype(MostNoteCells))
            break; // more than is shown
    }
    const int text = margin + (row.width + int(shownBeyond(row).size())) * cell - paperWidth;
    return {cellsOf(mark.join(u' ')), shortened(cellsOf(note.join(u' '))),
            std::max(row.beyond().empty() ? 0 : text, 0) + (note.isEmpty() ? 0 : cell)};
}

SheetPainter::Glyph SheetPainter::glyphOf(char32_t c) const
{
    if (const auto known = glyphs.constFind(c); known != glyphs.constEnd())
        return *known;
    const QString text = textOf({&c, 1});
    const double advance = metrics.horizontalAdvance(text);
    Glyph glyph{Glyph::Kind::Missing, {}};
    // Alone, a combining mark or an invisible command of the script would not be seen.
    if (metrics.inFontUcs4(drawable(c)) && advance > 0) {
        const bool fills = fillsOneColumn(drawable(c)) && std::abs(advance - cell) < 0.1;
        glyph = {fills ? Glyph::Kind::Plain : Glyph::Kind::Odd, metrics.tightBoundingRect(text)};
    }
    return *glyphs.insert(c, glyph);
}

void SheetPainter::paint(QPainter &painter, const Colours &colours) const
{
    painter.fillRect(QRect(QPoint(), size()), colours.desk.ground);
    painter.setFont(font);
    if (frame == Frame::Title)
        write(painter, QPointF(left, 2 * cell), shortened(cellsOf(sheet.title)), colours.desk.ink);
    const std::vector<Row> &rows = sheet.rows;
    for (size_t first = 0, end = 0; first < rows.size(); first = end) {
        for (end = first + 1; end < rows.size() && !rows[end].begins();)
            ++end;
        paintPaper(painter, colours, first, end);
    }
    const QRectF clip =
        painter.hasClipping() ? painter.clipBoundingRect() : QRectF(QPointF(), size());
    for (size_t i = 0; i < rows.size(); ++i) {
        if (top(i + 1) > clip.top() && top(i) < clip.bottom())
            paintRow(painter, colours, i);
    }
}

/// The paper behind the rows from `first` up to `end`, in one piece: seams would show.
void SheetPainter::paintPaper(QPainter &painter, const Colours &colours, size_t first,
                              size_t end) const
{
    const Row &lastRow = sheet.rows[end - 1];
    const int above = top(first) + (sheet.rows[first].begins() ? cell : 0);
    const int below = top(end) - (lastRow.ends() ? cell : 0);
    painter.fillRect(left, above, paperWidth, below - above, colours.paper.ground);
    if (frame == Frame::Bare && left == 0 && right == 0)
        return; // the page's own edges are the paper's
    painter.fillRect(left, above, line, below - above, colours.edge);
    painter.fillRect(left + paperWidth - line, above, line, below - above, colours.edge);
    const int tooth = std::max(cell / 2, 2);
    for (const auto &[row, y, height] :
         {std::tuple(&sheet.rows[first], above, tooth), std::tuple(&lastRow, below, -tooth)}) {
        if (row->kind == Row::Kind::TopEdge || row->kind == Row::Kind::BottomEdge)
            painter.fillRect(left, height > 0 ? y : y - line, paperWidth, line, colours.edge);
        const bool isTorn = row->kind == Row::Kind::TornTop || row->kind == Row::Kind::TornBottom;
        for (int x = 0; isTorn && x + tooth <= paperWidth; x += 2 * tooth)
            painter.fillRect(left + x, std::min(y, y + height), tooth, tooth, colours.desk.ground);
    }
}

void SheetPainter::paintRow(QPainter &painter, const Colours &colours, size_t index) const
{
    const Row &row = sheet.rows[index];
    const int y = top(index);
    const Colours::Ground &paper = row.isChanged ? colours.changed : colours.paper;
    if (row.isChanged)
        painter.fillRect(left + line, y, paperWidth - 2 * line, 2 * cell, paper.ground);
    const auto &[mark, note, offset] = asides[index];
    write(painter, QPointF(left - (int(mark.size()) + 1) * cell, y), mark, colours.desk.ink);
    write(painter, QPointF(left + margin, y), row.onPaper(), paper.ink);
    const CellsView beyond = shownBeyond(row);
    const int edge = left + margin + row.width * cell;
    const bool isOverrun = row.overrun() > 0;
    if (isOverrun)
        painter.fillRect(edge, y, int(beyond.size()) * cell, 2 * cell, colours.beyond.ground);
    write(painter, QPointF(edge, y), beyond, isOverrun ? colours.beyond.ink : paper.ink);
    write(painter, QPointF(left + paperWidth + offset, y), note, colours.desk.ink);
}

/// Writes each character into a cell of its own, from `at` on, the upper left corner of the first;
/// a word at a time where the font's characters fill their cells.
void SheetPainter::write(QPainter &painter, QPointF at, CellsView text, const QColor &colour) const
{
    painter.setPen(colour);
    const double indent = (cell - cell * 100 / font.letterSpacing()) / 2; // half the spacing
    for (size_t i = 0; i < text.size();) {
        const QPointF place(at.x() + double(i) * cell, at.y());
        const size_t begin = i;
        while (i < text.size() && text[i] != U' ' && glyphOf(text[i]).kind == Glyph::Kind::Plain)
            ++i;
        if (i > begin)
            painter.drawText(place + QPointF(indent, baseline),
                             textOf(text.substr(begin, i - begin)));
        else if (text[i++] != U' ')
            writeOdd(painter, place, text[begin]);
    }
}

/// A character whose ink is wider than its cell is squeezed, one that is narrower is centred; one
/// that no font has is its number in a box.
void SheetPainter::writeOdd(QPainter &painter, QPointF at, char32_t c) const
{
    const Glyph glyph = glyphOf(c);
    if (glyph.kind == Glyph::Kind::Missing)
        return writeNumber(painter, at, c);
    const double room = cell - 1;
    const double scale = std::min(1.0, room / std::max(glyph.ink.width(), 1.0));
    painter.save();
    painter.translate(at.x() + (cell - glyph.ink.width() * scale) / 2, at.y() + baseline);
    painter.scale(scale, 1);
    painter.drawText(QPointF(-glyph.ink.left(), 0), textOf({&c, 1}));
    painter.restore();
}

/// The digits of the number in two lines.
void SheetPainter::writeNumber(QPainter &painter, QPointF corner, char32_t c) const
{
    const QString digits = numberOf(c).sliced(2); // without `U+` or `\x`
    const qsizetype half = (digits.size() + 1) / 2;
    const double scale = std::min(0.8 / double(half), 0.45);
    painter.save();
    painter.translate(corner);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(QRectF(0.5, 1.5, cell - 2, 2 * cell - 3));
    for (const int i : {0, 1}) {
        painter.save();
        painter.translate((cell - double(half) * cell * scale) / 2, cell * (0.9 + 0.85 * i));
        painter.scale(scale, scale);
        painter.drawText(QPointF(), i == 0 ? digits.first(half) : digits.sliced(half));
        painter.restore();
    }
    painter.restore();
}

} // namespace preview

// SPDX-License-Identifier: MIT
#pragma once

#include "render/settings.h"
#include "tools/terminal.h"

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

class QTextCodec;

/// What will be printed, as it is shown: print files, the paper that the printer makes of them, and
/// its drawing.
namespace preview {

using tools::Finding; // whose texts the window shows in its own language

// What is wrong on paper, by one rule for those who check requests and those who draw print files.
// Texts are of any character type: views of UTF-16 or UTF-32.

/// Whether a line is a rule as long as the paper is wide, wherever it begins: where lines are
/// centred it is shifted, which no request can help.
template <typename Text>
bool isRule(const Text &text, qsizetype width)
{
    const auto first = std::find(text.begin(), text.end(), u'=');
    const auto isBlank = [](auto c) { return c == u' '; };
    return std::all_of(text.begin(), first, isBlank) && text.end() - first == width
           && std::all_of(first, text.end(), [](auto c) { return c == u'='; });
}

/// The characters of a printed line that stand behind the edge of paper `width` characters wide and
/// should not: blanks at the end are not seen, and a rule is as it has to be.
template <typename Text>
qsizetype beyondEdge(const Text &text, qsizetype width)
{
    qsizetype size = qsizetype(text.size());
    while (size > 0 && text[size - 1] == u' ')
        --size;
    return isRule(text, width) ? 0 : std::max<qsizetype>(size - width, 0);
}

/// Whether a fiscal command takes the number: digits, and at most one `point`, which is 0 where
/// none is allowed.
template <typename Text>
bool isFiscalNumber(const Text &text, char16_t point = 0)
{
    const auto digits =
        std::count_if(text.begin(), text.end(), [](auto c) { return c >= u'0' && c <= u'9'; });
    const auto points = std::count_if(text.begin(), text.end(),
                                      [point](auto c) { return point != 0 && c == point; });
    return digits > 0 && points <= 1 && digits + points == qsizetype(text.size());
}

/// The cells of a line, in the order of the print file, a code point for each: combining, wide and
/// right-to-left characters have one like any other. A byte that is no text in the file's encoding
/// stands as `UndecodedByte` plus the byte, which is no character.
using Cells = std::u32string;
using CellsView = std::u32string_view;

constexpr char32_t UndecodedByte = 0xDC00;

constexpr bool isUndecodedByte(char32_t c)
{
    return c >= UndecodedByte + 0x80 && c <= UndecodedByte + 0xFF;
}

Cells cellsOf(QStringView text);
/// The cells as text, with `drawable(c)` for each.
QString textOf(CellsView cells);

/// The character itself, or what stands for it where it is drawn: the control's symbol, U+FFFD for
/// a byte that is no text.
char32_t drawable(char32_t c);
/// Whether a terminal moves by one column, to the right, for the character.
bool fillsOneColumn(char32_t c);
/// The character by its number: `\x1b` for a control or a byte, `U+4E2D` for any other.
QString numberOf(char32_t c);

/// What a line of a print file is to the printer.
enum class LineKind {
    Empty,        ///< a bare line end, the first half of a section's opening
    SectionStart, ///< `j`
    SectionEnd,   ///< `J`
    FiscalEnd,    ///< `1T`
    Printed,      ///< framed by a quote and `"@`
    Fiscal,       ///< an item, a discount or a payment
    Unframed,     ///< none of these
};

enum class LineEnd { Missing, LineFeed, CarriageReturn };

struct PrintLine
{
    LineKind kind = LineKind::Empty;
    Cells text; ///< inside the frame for Printed; else the whole line, without its end
    LineEnd end = LineEnd::LineFeed;
    qsizetype next = 0; ///< where the next line begins: bytes of the file
    QString fault{};    ///< why the printer takes it for something else; empty when it does not
    /// What stands at the left and at the right of each line that a Fiscal one comes to on the
    /// receipt: an item with quantity, price and department, and an adjustment of the price; a
    /// discount; a payment. Amounts are those of the command, as sums are the printer's to make.
    std::vector<std::pair<Cells, Cells>> receipt{};
};

/// The line of `file` that begins at `offset`, which is inside of it. Any bytes are a print file:
/// what the device would not have written is Unframed, and nothing is left out. A null codec means
/// UTF-8.
PrintLine lineAt(QByteArrayView file, qsizetype offset, QTextCodec *codec);

/// Where a stretch of a print file comes from.
struct Origin
{
    qint64 end;         ///< the bytes of the print file up to its end
    qint64 requestLine; ///< on which the tag begins, from 1; 0 where that is not known
    int paperWidth;     ///< characters in a line, by the settings of the document
};

/// A print file, and what is known of where it comes from.
struct Document
{
    QByteArray printFile;
    QTextCodec *codec = nullptr; ///< of the print file; null: UTF-8
    std::vector<Origin> origins; ///< in the order of the file; none where no request is known
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
    bool isChanged = false; ///< whether a document that it was compared with lacks it

    bool begins() const { return kind < Kind::Line; }
    bool ends() const { return kind > Kind::Line; }
    CellsView onPaper() const { return CellsView(text).substr(0, size_t(width)); }
    CellsView beyond() const { return CellsView(text).substr(onPaper().size()); }
    /// The cells beyond the paper's edge that should not be there.
    qsizetype overrun() const { return beyondEdge(text, width); }
    /// Whether it says the same, on paper of whatever width.
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
};

/// The paper's measures.
struct PaperSize
{
    int dpi = 203;
    int widthMm = 80; ///< of which the printer leaves 4 mm white at each side, 5 mm of 58
};

/// A picture of sheets: where it goes, and how it looks.
struct PictureOptions
{
    QString fileName; ///< by whose end the format goes; empty: no picture
    PaperSize paper;
    bool inPairs = false; ///< whether two sheets each belong side by side
};

/// The most characters in a line of a paper that is drawn; a wider one is drawn so.
constexpr int MostPaperWidth = 500;

/// The most rows of a document that are compared, or drawn in a picture.
constexpr size_t MostRows = 4'000;

/// Notes in one, those that are not empty.
QString joined(QStringList notes);

/// Draws a document row by row, until `take` answers false. The paper is `columns` cells wide;
/// where that is 0, as the origins say; without them as wide as the first rule of `=` in the file,
/// else as its longest line, at least the device's.
void drawRows(const Document &document, int columns, const std::function<bool(Row)> &take);

/// The first rows of a document, `most` of them.
std::vector<Row> rowsOf(const Document &document, int columns, size_t most);

/// Marks the rows that only one of two documents has, and takes the mark from the others, of which
/// there are as many as there can be in the same order. Looks at MostRows of each at most.
void markChanges(std::vector<Row> &before, std::vector<Row> &after);

/// The largest file, of requests and of what they print, that is held in memory: bytes.
constexpr qint64 MostBytes = qint64(64) * 1'024 * 1'024;

/// Whether a file is a print request, whatever its encoding: its first character other than white
/// space is `<`.
bool isRequest(const QByteArray &bytes);

/// Prints a request into memory, by the device of the print run, with the configuration and the
/// translation that are in use. What the print run tells goes to text::diagnostics. With
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
    QString drawnCells(CellsView cells) const;
    QString notesOn(const Row &row) const;
    bool isShown(char32_t c) const;

    QTextCodec *const codec;
    const bool frames;
    const qsizetype numberWidth; // 0: no line numbers
};

/// The difference between two documents whose changes are marked, as `diff -u` prints it, with
/// three rows around each change: `-` before what only the first has, `+` before what only the
/// second has; in colours for a terminal.
QString unifiedDifference(const std::vector<Row> &before, const std::vector<Row> &after,
                          const TerminalDrawing &drawing, bool inColours);

} // namespace preview

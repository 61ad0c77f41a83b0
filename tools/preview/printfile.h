// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QString>

#include <string>
#include <vector>

class QTextCodec;

/// The lines of a print file, as the printer takes them: a cell of the paper for each character, in
/// the order of the file. Combining, wide and right-to-left characters have one cell like any
/// other.
namespace preview {

/// A code point for each cell. A byte that is no text in the file's encoding stands as
/// `UndecodedByte` plus the byte, which is no character.
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
};

/// The line of `file` that begins at `offset`, which is inside of it. Any bytes are a print file:
/// what the device would not have written is Unframed, and nothing is left out. A null codec means
/// UTF-8.
PrintLine lineAt(QByteArrayView file, qsizetype offset, QTextCodec *codec);

/// What a fiscal command comes to on the receipt.
struct FiscalReceipt
{
    std::vector<Cells> lines;
    QString fault; ///< for which the printer refuses it; empty when there is none
};

/// What the fiscal printer makes of a Fiscal line, on paper of `width` cells: the item's name with
/// quantity, price and department at the right, on a line of their own where they do not fit, and
/// an adjustment of the price; a discount; a payment. Amounts stand as the command has them, as
/// sums are the printer's to make. Nothing for any other line.
FiscalReceipt fiscalReceipt(CellsView command, int width);

/// The cells as a terminal takes them: numbers for what does not fill one column.
QString escaped(CellsView cells);

} // namespace preview

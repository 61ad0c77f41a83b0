// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <string>

/// The text of a print file as the printer takes it: a cell of the paper for each character, in the
/// order of the file. Combining, wide and right-to-left characters have one cell like any other.
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

/// The character itself, or what stands for it on a picture: the control's symbol, U+FFFD for a
/// byte that is no text.
char32_t drawable(char32_t c);
/// Whether a terminal moves by one column, to the right, for the character.
bool fillsOneColumn(char32_t c);

/// The character by its number: `\x1b` for a control or a byte, `U+4E2D` for any other.
QString numberOf(char32_t c);
/// The cells in one line, as a terminal takes it: numbers for what is not to be seen.
QString escaped(CellsView cells);

} // namespace preview

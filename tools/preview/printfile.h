// SPDX-License-Identifier: MIT
#pragma once

#include "tools/preview/cells.h"

#include <QByteArray>

#include <optional>

class QIODevice;
class QTextCodec;

namespace preview {

/// What a line of a print file is to the printer.
enum class LineKind {
    Empty,        ///< a bare line end, the first half of a section's opening
    SectionStart, ///< `j`
    SectionEnd,   ///< `J`
    FiscalEnd,    ///< `1T`
    Printed,      ///< framed by a quote and `"@`
    FiscalItem,
    FiscalDiscount,
    FiscalPayment,
    Unframed, ///< none of these
    Piece,    ///< of a line that is longer than MaxLineBytes
};

enum class LineEnd { Missing, LineFeed, CarriageReturn };

struct PrintLine
{
    LineKind kind = LineKind::Empty;
    Cells text; ///< inside the frame for Printed; else the whole line, without its end
    LineEnd end = LineEnd::LineFeed;
    qint64 offset = 0; ///< bytes of the file before the line
};

/// Reads a print file line by line, in constant memory. Any bytes are a print file: what the device
/// would not have written is Unframed, and nothing is left out.
class PrintFile
{
public:
    /// A longer line is handed out in pieces of this size, give or take a character.
    static constexpr int MaxLineBytes = 4'096;

    /// `device` is open and borrowed. `codec` decodes the file; null means UTF-8, as
    /// text::localeCodec() has it.
    PrintFile(QIODevice &device, QTextCodec *codec);

    /// The next line; nothing at the end of the file.
    std::optional<PrintLine> next();

private:
    Cells decoded(const QByteArray &bytes) const;
    qsizetype characterAt(const QByteArray &bytes, qsizetype at, Cells &cells) const;
    PrintLine piece(QByteArray bytes);

    QIODevice &device;
    QTextCodec *const codec;
    QByteArray kept; // read and not yet handed out: the begin of a character
    qint64 offset = 0;
    bool insideLongLine = false;
};

/// What follows from `"` at the line's begin and `"@` at its end.
LineKind kindOf(CellsView line);

} // namespace preview

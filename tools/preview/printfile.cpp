// SPDX-License-Identifier: MIT
#include "tools/preview/printfile.h"

#include "tools/preview/fiscalline.h"

#include <QIODevice>
#include <QTextCodec>

#include <array>
#include <utility>

namespace preview {

namespace {

constexpr std::array<std::pair<CellsView, LineKind>, 4> commands = {{
    {U"", LineKind::Empty},
    {U"j", LineKind::SectionStart},
    {U"J", LineKind::SectionEnd},
    {U"1T", LineKind::FiscalEnd},
}};

QTextCodec *codecOrUtf8(QTextCodec *codec)
{
    return codec ? codec : QTextCodec::codecForName("UTF-8");
}

} // namespace

LineKind kindOf(CellsView line)
{
    for (const auto &[command, kind] : commands) {
        if (line == command)
            return kind;
    }
    constexpr size_t FrameSize = 3;
    if (line.size() >= FrameSize && line.starts_with(U'"') && line.ends_with(U"\"@"))
        return LineKind::Printed;
    return fiscalKind(line).value_or(LineKind::Unframed);
}

PrintFile::PrintFile(QIODevice &device, QTextCodec *codec)
    : device(device)
    , codec(codecOrUtf8(codec))
{
}

std::optional<PrintLine> PrintFile::next()
{
    QByteArray bytes = std::exchange(kept, {});
    bytes += device.readLine(MaxLineBytes - bytes.size());
    if (bytes.isEmpty())
        return std::nullopt;
    if (insideLongLine || (!bytes.endsWith('\n') && !device.atEnd()))
        return piece(std::move(bytes));

    PrintLine line;
    line.offset = std::exchange(offset, offset + bytes.size());
    line.end = bytes.endsWith("\r\n") ? LineEnd::CarriageReturn
               : bytes.endsWith('\n') ? LineEnd::LineFeed
                                      : LineEnd::Missing;
    bytes.chop(line.end == LineEnd::Missing ? 0 : line.end == LineEnd::LineFeed ? 1 : 2);
    line.text = decoded(bytes);
    line.kind = kindOf(line.text);
    if (line.kind == LineKind::Printed)
        line.text = line.text.substr(1, line.text.size() - 3);
    return line;
}

/// A part of a long line. The end of it may be the begin of a character, which is kept.
PrintLine PrintFile::piece(QByteArray bytes)
{
    constexpr qsizetype LongestCharacter = 4; // bytes, in any encoding
    PrintLine line;
    line.kind = LineKind::Piece;
    line.offset = offset;
    insideLongLine = !bytes.endsWith('\n');
    if (insideLongLine) {
        line.end = device.atEnd() ? LineEnd::Missing : LineEnd::LineFeed;
        line.text = decoded(bytes);
        qsizetype tail = 0;
        while (tail < LongestCharacter - 1 && !device.atEnd() && !line.text.empty()
               && isUndecodedByte(line.text.back())) {
            line.text.pop_back();
            ++tail;
        }
        kept = bytes.last(tail);
        bytes.chop(tail);
    } else {
        line.text = decoded(bytes.chopped(1));
    }
    offset += bytes.size();
    return line;
}

Cells PrintFile::decoded(const QByteArray &bytes) const
{
    Cells cells;
    cells.reserve(size_t(bytes.size()));
    for (qsizetype at = 0; at < bytes.size();)
        at += characterAt(bytes, at, cells);
    return cells;
}

/// Adds the character that begins at `at`, or the byte where none does; answers its size.
qsizetype PrintFile::characterAt(const QByteArray &bytes, qsizetype at, Cells &cells) const
{
    const auto first = uchar(bytes[at]);
    if (first < 0x80) {
        cells += char32_t(first);
        return 1;
    }
    for (qsizetype size = 1; size <= 4 && at + size <= bytes.size(); ++size) {
        QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
        const QString text = codec->toUnicode(bytes.constData() + at, int(size), &state);
        const bool isDecoded =
            !text.isEmpty() && state.invalidChars == 0 && state.remainingChars == 0;
        // Not every codec counts what it replaces.
        if (isDecoded
            && (text.front() != QChar::ReplacementCharacter
                || codec->fromUnicode(text) == bytes.sliced(at, size))) {
            cells += cellsOf(text);
            return size;
        }
    }
    cells += char32_t(UndecodedByte + first);
    return 1;
}

} // namespace preview
